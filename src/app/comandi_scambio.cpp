// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_scambio.h"

#include <QDir>
#include <QFileInfo>
#include <utility>

#include "app/comandi_viaggio.h"
#include "app/niente_perso.h"
#include "exchange/annulla_import.h"
#include "exchange/iei/esporta_mete.h"
#include "exchange/iei/importa_mete.h"
#include "exchange/vecchi/converti.h"
#include "interaction/failure.h"

namespace cronovia::comandi {

using namespace Qt::StringLiterals;

namespace {

// The trip that was open is there again, as it is stored. The screen goes first: the commands are needed even when the
// archive cannot be read.
void Torna(Postazione& p) {
    p.MettiSchermoDelViaggio();
    p.VaiAlViaggio();
}

void Esporta(Postazione& p, const TavoloScambio& tavolo) {
    const QString file = p.volti.scegliFile(FileChiesto::Export);
    if (file.isEmpty()) return;
    const QString nome = QDir::toNativeSeparators(file);
    const bool libero = !QFileInfo::exists(file) || p.ChiedeSePerdere(u"Il file %1 esiste già: ricopro?"_s.arg(nome),
                                                                      u"File %1 esistente"_s.arg(nome));
    EsitoExport esito;
    const bool esportate = libero && BoxConferma(p.volti.interazione, Operazione::Export) && p.MentreCorre([&] {
        esito = EsportaMete({p.sessione.Archivio(), file, tavolo.CodiciScelti(), true, true}, p.volti.avanzamento);
    });
    if (!esportate) return;
    p.volti.mostra();
    p.Mostra(TestoEsito(esito), {}, esito.interrotta ? Icon::Exclamation : Icon::Information);
}

void Importa(Postazione& p, const TavoloScambio& tavolo) {
    EsitoImport esito;
    const QString file = QFileInfo(tavolo.File()).fileName();
    const bool importate = BoxConferma(p.volti.interazione, Operazione::Import) && p.MentreCorre([&] {
        esito = ImportaMete({p.sessione.Archivio(), tavolo.File(), tavolo.CodiciScelti(), tavolo.StatoDelFileLetto()},
                            p.volti.avanzamento);
    });
    if (esito.interrotta) p.Mostra(TestoEsito(esito));
    if (!importate || esito.interrotta) return;
    const bool qualcosa = esito.meteInserite + esito.tappeInserite + esito.vociInserite > 0;
    Storia& storia = p.documento.Modifiche();
    if (qualcosa) storia.Ricorda(PassoImport(p, file, esito.traccia, p.documento.Codice()));
    Torna(p);
    if (esito.meteInserite == 1) ScegliMeta(p, esito.ultimaMeta);
    p.volti.mostra();
    const Message fine{TestoEsito(esito), {}, Icon::Information};
    if (!qualcosa) return p.volti.interazione.Show(fine);
    if (p.volti.interazione.ShowUndoable(fine, u"Annulla importazione"_s)) storia.Annulla(Ambito::Archivio);
}

}  // namespace

Passo PassoImport(Postazione& p, const QString& file, const TracciaImport& traccia, const QString& aperta) {
    const auto disfa = [&p, file, traccia, aperta](const Passo& passo) -> std::optional<Passo> {
        Archive& archivio = p.sessione.Archivio();
        TracciaImport fatta = traccia;
        fatta.stato = *passo.archivio;
        const bool intatto = archivio.PresentMark() == fatta.stato;
        try {
            AnnullaImport(archivio, fatta);
        } catch (const Failure& failure) {
            if (intatto) throw;  // it can be tried again, unless the archive is another one by now
            throw PassoPerduto(failure.Message());
        }
        if (CaricaMeta(archivio, p.documento.Codice())) {
            p.documento.RileggiVisite();  // what is typed in the trip's fields stays
        } else if (!p.documento.Modificato()) {
            if (CaricaMeta(archivio, aperta)) p.documento.Apri(aperta);
            p.VaiAlViaggio();
        } else {
            p.documento.DiventaNuova();
            p.MettiSchermoDelViaggio();
        }
        p.volti.mostra();
        p.Mostra(u"L'importazione di %1 è stata annullata."_s.arg(file), {}, Icon::Information);
        return std::nullopt;
    };
    return {u"importazione di %1"_s.arg(file), Ambito::Archivio, disfa, traccia.stato};
}

void Export(Postazione& p) {
    if (!NullaInSospeso(p)) return;
    p.Prova([&] {
        TavoloScambio::Lista mete = ElencoMete(p.sessione.Archivio());
        const bool nessuna = mete.empty();
        p.schermata = schermata::Scambio{TavoloScambio(ModoScambio::Export, QString(), std::move(mete))};
        if (!nessuna) return;
        p.volti.mostra();
        p.Mostra(u"Non ci sono altre mète da esportare..."_s, {}, Icon::Information);
    });
}

void Import(Postazione& p) {
    if (!NullaInSospeso(p)) return;
    const QString file = p.volti.scegliFile(FileChiesto::Import);
    if (file.isEmpty()) return;
    const StatoFile stato = StatoDelFile(file);
    std::optional<TavoloScambio::Lista> mete;
    const bool letto = p.MentreCorre([&] { mete = LeggiElencoMete(p.sessione.Archivio(), file, p.volti.avanzamento); });
    if (mete) {
        p.schermata = schermata::Scambio{TavoloScambio(ModoScambio::Import, file, std::move(*mete), stato)};
    } else if (letto) {
        p.Mostra(u"Lettura delle mète interrotta."_s);
    }
}

void ApriFile(Postazione& p, const QString& file) {
    if (!p.Su<schermata::Viaggio>() || p.attivita != Attivita::Nessuna) {
        return p.Mostra(
            u"Per importare %1 torna prima alla schermata della mèta."_s.arg(QDir::toNativeSeparators(file)));
    }
    const auto chiede = std::exchange(p.volti.scegliFile, [file](FileChiesto) { return file; });
    Import(p);
    p.volti.scegliFile = chiede;
}

void ApriEsempio(Postazione& p, const QString& file) {
    if (!p.SenzaMete()) return;
    EsitoImport esito;
    const QString aperta = p.documento.Codice();
    const bool importate = p.MentreCorre([&] {
        esito = ImportaMete({p.sessione.Archivio(), file, {}}, p.volti.avanzamento);
    });
    if (!importate || esito.interrotta) return;
    p.documento.Modifiche().Ricorda(PassoImport(p, QFileInfo(file).fileName(), esito.traccia, aperta));
    p.Prova([&] { Torna(p); });
    ScegliMeta(p, esito.ultimaMeta);
}

void SulloScambio(Postazione& p, const std::function<void(TavoloScambio&)>& comando) {
    if (auto* scambio = p.Su<schermata::Scambio>(); scambio != nullptr && !p.InCorsa()) comando(scambio->tavolo);
}

void ScambiaTutteDaPrima(Postazione& p) {
    SulloScambio(p, [](TavoloScambio& tavolo) { tavolo.TrasferisceTutte(0); });
}

void ScambiaTutteDaSeconda(Postazione& p) {
    SulloScambio(p, [](TavoloScambio& tavolo) { tavolo.TrasferisceTutte(1); });
}

void ImExp(Postazione& p) {
    const auto* scambio = p.Su<schermata::Scambio>();
    if (scambio == nullptr || scambio->tavolo.Scelte().empty()) return;
    p.Prova([&] {
        if (scambio->tavolo.Modo() == ModoScambio::Export) {
            Esporta(p, scambio->tavolo);
        } else {
            Importa(p, scambio->tavolo);
        }
    });
}

void FineScambio(Postazione& p) {
    p.Prova([&] { Torna(p); });
}

void Converte(Postazione& p) {
    if (!NientePerso(p)) return;
    if (!p.ChiedeSePerdere(u"Vuoi convertire i vecchi file nel corrente database?\n\n"
                           "I dati già presenti nel database saranno integrati e non cancellati.\n\nProcedo?"_s,
                           u"Conversione file"_s)) {
        return;
    }
    p.Prova([&] {
        EsitoConversione esito;
        const bool convertiti = p.MentreCorre([&] {
            esito = ConvertiVecchiFile({p.sessione.Archivio(), p.sessione.Cartella(), p.volti.adesso()},
                                       p.volti.avanzamento);
        });
        if (!convertiti || esito.interrotta) {
            if (auto* viaggio = p.Su<schermata::Viaggio>()) viaggio->converteOfferto = true;
            if (esito.interrotta) p.Mostra(TestoEsito(esito));
            return;
        }
        p.VaiAlViaggio();
        p.volti.mostra();
        p.Mostra(TestoEsito(esito), {}, Icon::Information);
    });
}

}  // namespace cronovia::comandi
