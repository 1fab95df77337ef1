#include "app/comandi_scambio.h"

#include <QDir>
#include <QFileInfo>
#include <utility>

#include "exchange/iei/annulla_import.h"
#include "exchange/iei/esporta_mete.h"
#include "exchange/iei/importa_mete.h"
#include "exchange/vecchi/converti.h"
#include "interaction/failure.h"

namespace cronovia::comandi {

using namespace Qt::StringLiterals;
using Fase = schermata::Viaggio::Fase;

namespace {

// An empty trip under the screen, which covers it.
void Prepara(Postazione& p, ModoScambio modo) {
    p.documento.Proponi(p.volti.adesso());
    p.schermata = schermata::Scambio{TavoloScambio(modo, QString(), TavoloScambio::Lista())};
}

// The trip that was open is there again; none is when it cannot be read, since the screen covered an empty one.
void Torna(Postazione& p) {
    p.schermata = schermata::Viaggio{Fase::Lasciata};
    try {
        p.VaiAlViaggio();
    } catch (const Failure&) {
        p.documento.LasciaCodice();
        throw;
    }
}

// No trip is open any more. That comes first: the commands are needed even when the archive cannot be read.
void Lascia(Postazione& p, bool chiude) {
    p.documento.LasciaCodice();
    if (chiude) p.schermata = schermata::Viaggio{Fase::Lasciata};
    p.documento.Proponi(p.volti.adesso());
}

Passo PassoImport(Postazione& p, const QString& file, const TracciaImport& traccia) {
    const auto disfa = [&p, file, traccia](const Passo& passo) -> std::optional<Passo> {
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
        } else if (!p.documento.NuovaDigitata()) {
            p.VaiAlViaggio();
        }
        p.volti.mostra();
        p.Mostra(u"L'importazione di %1 è stata annullata."_s.arg(file), {}, Icon::Information);
        return std::nullopt;
    };
    return {u"importazione di %1"_s.arg(file), Ambito::Archivio, disfa, traccia.stato};
}

void Esporta(Postazione& p, const TavoloScambio& tavolo) {
    const QString file = p.volti.scegliFile(FileChiesto::Export);
    if (file.isEmpty()) return Torna(p);
    const QString nome = QDir::toNativeSeparators(file);
    const bool libero = !QFileInfo::exists(file) || p.ChiedeSePerdere(u"Il file %1 esiste già: ricopro?"_s.arg(nome),
                                                                      u"File %1 esistente"_s.arg(nome));
    EsitoExport esito;
    const bool esportate = libero && BoxConferma(p.volti.interazione, Operazione::Export) && p.MentreCorre([&] {
        esito = EsportaMete({p.sessione.Archivio(), file, tavolo.CodiciScelti(), true, true}, p.volti.avanzamento);
    });
    Lascia(p, false);
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
    if (!importate || esito.interrotta) {
        Lascia(p, false);
        if (esito.interrotta) p.Mostra(TestoEsito(esito));
        return;
    }
    const bool qualcosa = esito.meteInserite + esito.tappeInserite + esito.vociInserite > 0;
    Storia& storia = p.documento.Modifiche();
    if (qualcosa) {
        storia.Dimentica(Ambito::Archivio);  // an import before this one cannot be taken back any more
        storia.Ricorda(PassoImport(p, file, esito.traccia));
    }
    Lascia(p, true);
    p.volti.mostra();
    const Message fine{TestoEsito(esito), {}, Icon::Information};
    if (!qualcosa) return p.volti.interazione.Show(fine);
    if (p.volti.interazione.ShowUndoable(fine, u"Annulla importazione"_s)) storia.Annulla(Ambito::Archivio);
}

}  // namespace

void Export(Postazione& p) {
    p.Prova([&] {
        Prepara(p, ModoScambio::Export);
        TavoloScambio::Lista mete = ElencoMete(p.sessione.Archivio());
        const bool nessuna = mete.empty();
        p.schermata = schermata::Scambio{TavoloScambio(ModoScambio::Export, QString(), std::move(mete))};
        if (!nessuna) return;
        p.volti.mostra();
        p.Mostra(u"Non ci sono altre mète da esportare..."_s, {}, Icon::Information);
    });
}

void Import(Postazione& p) {
    p.Prova([&] {
        Prepara(p, ModoScambio::Import);
        p.volti.mostra();
        const QString file = p.volti.scegliFile(FileChiesto::Import);
        const StatoFile stato = StatoDelFile(file);
        std::optional<TavoloScambio::Lista> mete;
        const bool letto = !file.isEmpty() && p.MentreCorre([&] {
            mete = LeggiElencoMete(p.sessione.Archivio(), file, p.volti.avanzamento);
        });
        if (mete) {
            p.schermata = schermata::Scambio{TavoloScambio(ModoScambio::Import, file, std::move(*mete), stato)};
            return;
        }
        Torna(p);
        if (letto) p.Mostra(u"Lettura delle mète interrotta."_s);
    });
}

void ApriFile(Postazione& p, const QString& file) {
    if (!p.Comandi().Abilitato(Comando::Import)) {
        return p.Mostra(
            u"Per importare %1 torna prima alla schermata della mèta."_s.arg(QDir::toNativeSeparators(file)));
    }
    const auto chiede = std::exchange(p.volti.scegliFile, [file](FileChiesto) { return file; });
    Import(p);
    p.volti.scegliFile = chiede;
}

void SulloScambio(Postazione& p, const std::function<void(TavoloScambio&)>& comando) {
    if (auto* scambio = p.Su<schermata::Scambio>(); scambio != nullptr && !p.InCorsa()) comando(scambio->tavolo);
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
    p.Prova([&] { Lascia(p, true); });
}

void Converte(Postazione& p) {
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
