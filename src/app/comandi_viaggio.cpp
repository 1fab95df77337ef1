// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_viaggio.h"

#include <QCoreApplication>
#include <QDir>
#include <tuple>
#include <utility>

#include "app/comandi_cronovia.h"
#include "app/comandi_guida.h"
#include "app/comandi_inserimento.h"
#include "app/niente_perso.h"

namespace cronovia::comandi {

using namespace Qt::StringLiterals;
using Fase = schermata::Viaggio::Fase;

namespace {

void Default(Postazione& p, const QString& verbo, const std::function<void()>& azione) {
    p.Prova([&] {
        const QString titolo = u"Dati di default"_s;
        const bool memorizzata = !p.documento.Campi().codice.isEmpty();
        const QString meta = memorizzata ? u"\n\n"_s + p.documento.Nome() : QString();
        if (!p.ChiedeSePerdere(u"Vuoi %1 i dati di default?"_s.arg(verbo) + meta, titolo)) return;
        azione();
        p.Mostra(u"Operazione eseguita!"_s, titolo, Icon::Information);
    });
}

// The trip comes back with what it had when it was deleted, and in front unless something typed is there.
Passo PassoCancellazione(Postazione& p, const QString& nome, const MetaCancellata& cancellata) {
    const auto disfa = [&p, nome, cancellata](const Passo&) -> std::optional<Passo> {
        const QString codice = RimettiMeta(p.sessione.Archivio(), cancellata);
        if (!p.documento.Modificato()) {
            p.documento.Apri(codice);
            p.schermata = schermata::Viaggio{Fase::Aperta};
        }
        p.volti.mostra();
        p.Mostra(u"La mèta «%1» è di nuovo nell'archivio, con il codice %2."_s.arg(nome, codice), {},
                 Icon::Information);
        return std::nullopt;
    };
    return {u"cancellazione di «%1»"_s.arg(nome), Ambito::Archivio, disfa, {}};
}

// A trip that was changed meanwhile is shown as it is now, unless that would cost what is typed.
void CancellaOMostra(Postazione& p, const QString& mancato, const std::function<void()>& cancella) {
    bool cambiata = false;
    p.MentreScrive(mancato, [&] {
        try {
            cancella();
        } catch (const MetaCambiata&) {
            cambiata = true;
            throw;
        }
    });
    if (cambiata && !p.documento.Modificato()) p.Prova([&] { p.VaiAlViaggio(); });
}

// The screen in front after a step was taken back or made again.
void Segue(Postazione& p) {
    if (p.TappaInScrittura() != nullptr) SelezionaRiga(p, p.documento.RigaCorrente());
    RicalcolaSulPosto(p);
    SullaGuida(p, [](TavoloGuida&) {});
}

// The list of trips in front shows those that there are now.
bool AggiornaElenco(Postazione& p) {
    if (auto* elenco = p.Su<schermata::ElencoMete>()) {
        elenco->mete = AutostradeInFondo(ElencoMete(p.sessione.Archivio()));
        return true;
    }
    auto* copia = p.Su<schermata::Copia>();
    if (copia != nullptr) copia->tavolo.Aggiorna();
    return copia != nullptr;
}

}  // namespace

bool SenzaMeta(Postazione& p) {
    if (!p.documento.Campi().codice.isEmpty()) return false;
    const auto* viaggio = p.Su<schermata::Viaggio>();
    const bool nuova = viaggio != nullptr && viaggio->fase == Fase::Nuova;
    p.Mostra(nuova ? u"La nuova mèta non è ancora salvata: comincia con «Salva»."_s
                   : u"Nessuna mèta è aperta: comincia con «Nuovo», o scegline una con «Ricerca mèta»."_s);
    return true;
}

void Nuovo(Postazione& p) {
    if (!NientePerso(p)) return;
    p.Prova([&] {
        p.documento.Proponi(p.volti.adesso());
        p.schermata = schermata::Viaggio{Fase::Nuova};
    });
}

void Ricerca(Postazione& p) {
    auto* viaggio = p.Su<schermata::Viaggio>();
    if (viaggio == nullptr || !NientePerso(p)) return;
    p.documento.Scarta();  // it is not asked about again when a trip is chosen
    p.Prova([&] {
        std::vector<MetaInElenco> elenco = AutostradeInFondo(ElencoMete(p.sessione.Archivio()));
        if (elenco.empty()) {
            *viaggio = {Fase::Vuota};
            p.Mostra(u"Nessuna mèta nel database!"_s, u"Database vuoto"_s);
            return;
        }
        p.schermata = schermata::ElencoMete{std::move(elenco), {viaggio->fase}};
    });
}

void ScegliMeta(Postazione& p, const QString& codice) {
    if (!NientePerso(p)) return;
    p.Prova([&] {
        p.documento.Apri(codice);
        p.schermata = schermata::Viaggio{Fase::Aperta};
    });
}

void ChiudiElencoMete(Postazione& p) {
    if (auto* elenco = p.Su<schermata::ElencoMete>()) p.schermata = schermata::Viaggio{elenco->da};
}

void Salva(Postazione& p) {
    const std::optional<Salvataggio> salvataggio = DecideSalvataggio(p);
    if (!salvataggio || !Confermato(p, *salvataggio)) return;
    std::ignore = SalvaOChiede(p, u"La mèta non è stata salvata."_s, [&] {
        p.documento.SalvaCampi(*salvataggio);
        p.schermata = schermata::Viaggio{Fase::Aperta};
        return EsitoMemorizzazione();
    });
}

void CancMeta(Postazione& p) {
    if (SenzaMeta(p)) return;
    p.Prova([&] {
        if (!BoxConferma(p.volti.interazione, Operazione::AnnullamentoMeta, p.documento.Nome())) return;
        CancellaOMostra(p, u"La mèta non è stata cancellata."_s, [&] {
            const QString nome = p.documento.Caricati().localita.trimmed();
            const MetaCancellata cancellata = p.documento.Cancella(p.volti.avanzamento);
            p.documento.Modifiche().Ricorda(PassoCancellazione(p, nome, cancellata));
            p.VaiAlViaggio();
        });
    });
}

void CancItin(Postazione& p) {
    if (SenzaMeta(p)) return;
    p.Prova([&] {
        if (!BoxConferma(p.volti.interazione, Operazione::AnnullamentoItinerario, p.documento.Nome())) return;
        if (!p.ChiedeSePerdere(u"Sei sicuro di voler cancellare l'itinerario?\n\nIn caso positivo, non sarà più "
                               "recuperabile!\n\n"_s +
                                   p.documento.Nome(),
                               u"Annullamento itinerario"_s)) {
            return;
        }
        CancellaOMostra(p, u"L'itinerario non è stato cancellato."_s, [&] {
            p.documento.CancellaTappe(p.volti.avanzamento);
            p.documento.RicaricaTappe();
        });
    });
}

void SalvaDefault(Postazione& p) {
    const ParametriViaggio& parametri = p.documento.Campi().parametri;
    Default(p, u"salvare"_s, [&] {
        if (const auto difetto = DifettoDeiParametri(parametri)) p.daCorreggere = difetto->campo;
        MemorizzaDefaultMeta(p.sessione.Archivio(), parametri);
    });
}

void CaricaDefault(Postazione& p) {
    Default(p, u"caricare"_s, [&] { p.documento.ImpostaParametri(CaricaDefaultMeta(p.sessione.Archivio())); });
}

void RipristinaDefault(Postazione& p) {
    Default(p, u"ripristinare"_s, [&] { p.documento.ImpostaParametri(RipristinaDefaultMeta(p.sessione.Archivio())); });
}

void Esce(Postazione& p) {
    const QString titolo = u"Fine Lavoro"_s;
    if (!p.InCorsa()) {
        // What is not saved is asked about when the window closes, and one can stay then.
        if (QualcosaDaSalvare(p) || p.Chiede(u"Vuoi chiudere la procedura?"_s, titolo)) p.volti.chiudi();
    } else if (p.ChiedeSePerdere(u"Vuoi interrompere l'elaborazione?"_s, titolo)) {
        p.volti.ferma();
    }
}

bool PossoChiudere(Postazione& p) {
    if (p.InCorsa() || !NientePerso(p)) return false;
    Rinuncia(p);  // what was declined is neither asked about nor saved any more, should the window live on
    return true;
}

bool GuardaArchivio(Postazione& p) {
    if (p.attivita != Attivita::Nessuna) return false;
    std::optional<MetaMemorizzata> adesso;
    bool elencata = false;
    try {
        if (p.sessione.Archivio().PresentMark().others == p.scrittiDaAltri) return false;
        p.scrittiDaAltri = p.sessione.Archivio().PresentMark().others;
        elencata = AggiornaElenco(p);
        adesso = LeggiMemorizzata(p.sessione.Archivio(), p.documento.Letta().meta.codice);
    } catch (const Failure&) {
        return false;  // whoever needs the archive will tell
    }
    const bool nuova = p.documento.Letta().meta.codice.isEmpty();
    if (nuova ? !p.SenzaMete() : adesso == p.documento.Letta()) return elencata;
    const bool ricaricabile = p.Su<schermata::Viaggio>() || p.Su<schermata::Inserimento>();
    if (!ricaricabile || QualcosaDaSalvare(p)) {
        p.avviso = u"Un altro programma ha modificato questa mèta nell'archivio: prima di salvare ti sarà chiesto."_s;
        return true;
    }
    const bool inserimento = p.Su<schermata::Inserimento>() != nullptr;
    const QString codice = p.documento.Codice();
    const int riga = p.documento.RigaCorrente();
    p.Prova([&] { p.VaiAlViaggio(); });
    p.avviso = u"Un altro programma ha modificato questa mèta: ora la vedi com'è nell'archivio."_s;
    if (inserimento && p.documento.Codice() == codice) {
        Itinerario(p);
        SelezionaRiga(p, riga);
    }
    return true;
}

void SalvaAltrove(Postazione& p) {
    const QString cartella = p.volti.scegliFile(FileChiesto::Cartella);
    if (cartella.isEmpty()) return;
    const QString prima = QDir::toNativeSeparators(p.sessione.Cartella());
    if (!p.MentreScrive(u"L'archivio non è stato copiato."_s, [&] { p.sessione.TrasferisciIn(cartella); })) return;
    p.documento.Modifiche().ArchivioSostituito();
    p.scrittiDaAltri = p.sessione.Archivio().PresentMark().others;
    Recupero vecchio = std::exchange(p.recupero, Recupero(cartella));
    p.Prova([&] { MettiAlSicuro(p); });
    vecchio.Segui({}, {});
    p.volti.lavoraIn(cartella);
    const QString dove = QDir::toNativeSeparators(cartella);
    p.Mostra(
        u"L'archivio è ora anche nella cartella %1, e la finestra lavora lì. Ciò che non era salvato è ancora da "
        "salvare.\n\nAl prossimo avvio Cronovia cerca di nuovo nella cartella %2: rimetti lì l'archivio, oppure "
        "avvia il programma con l'opzione --cartella."_s.arg(dove, prima),
        {}, Icon::Information);
}

void Annulla(Postazione& p) {
    if (!p.DaAnnullare() || !VoceNonPersa(p) || !TappaNonPersa(p)) return;
    p.Prova([&] { p.documento.Modifiche().Annulla(*p.AmbitoInVista()); });
    Segue(p);
}

void Ripeti(Postazione& p) {
    if (!p.DaRipetere() || !VoceNonPersa(p) || !TappaNonPersa(p) || !p.DaRipetere()) return;
    p.Prova([&] { p.documento.Modifiche().Ripeti(*p.AmbitoInVista()); });
    Segue(p);
}

}  // namespace cronovia::comandi
