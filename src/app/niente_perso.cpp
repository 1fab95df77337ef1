// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/niente_perso.h"

#include <QFile>
#include <algorithm>

#include "app/comandi_inserimento.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString NomeDellaMeta(const Meta& caricati) {
    return u"«%1» (codice %2)"_s.arg(caricati.localita.trimmed(), caricati.codice);
}

QString MetaNonSalvata(const Documento& documento) {
    if (!documento.Caricati().codice.isEmpty()) {
        return u"La mèta %1 ha modifiche non salvate."_s.arg(NomeDellaMeta(documento.Caricati()));
    }
    const QString localita = documento.Campi().localita.trimmed();
    return localita.isEmpty() ? u"La nuova mèta non è stata salvata."_s
                              : u"La nuova mèta «%1» non è stata salvata."_s.arg(localita);
}

QString VoceNonSalvata(const Documento& documento, const TavoloGuida& tavolo) {
    return u"L'annotazione «%1» di %2 non è stata salvata.\nMèta: %3"_s.arg(
        tavolo.Scritti().descrizione.trimmed(), tavolo.Corrente().localita, NomeDellaMeta(documento.Caricati()));
}

TavoloGuida* ConVoceScritta(Postazione& p) {
    auto* guida = p.Su<schermata::Guida>();
    return guida != nullptr && guida->tavolo->Modificata() ? guida->tavolo.get() : nullptr;
}

const schermata::Inserimento* ConTappaScritta(const Postazione& p) {
    const auto* inserimento = p.TappaInScrittura();
    return inserimento != nullptr && inserimento->campi != inserimento->letti ? inserimento : nullptr;
}

QString TappaNonInserita(const Documento& documento, const schermata::Inserimento& inserimento) {
    const QString localita = inserimento.campi.localita;
    const QString tappa = localita.isEmpty() ? u"La tappa"_s : u"La tappa «%1»"_s.arg(localita);
    return u"%1 che stai scrivendo nella riga %2 non è stata inserita.\nMèta: %3"_s.arg(
        tappa, QString::number(inserimento.riga), NomeDellaMeta(documento.Caricati()));
}

QStringList NonSalvate(Postazione& p) {
    QStringList nonSalvate;
    if (TavoloGuida* tavolo = ConVoceScritta(p)) nonSalvate += VoceNonSalvata(p.documento, *tavolo);
    if (const auto* scritta = ConTappaScritta(p)) nonSalvate += TappaNonInserita(p.documento, *scritta);
    if (p.documento.Modificato()) nonSalvate += MetaNonSalvata(p.documento);
    return nonSalvate;
}

Answer ChiedeSeSalvare(Postazione& p, const QStringList& nonSalvate) {
    return p.volti.interazione.Ask(
        {nonSalvate.join(u"\n\n"_s) + u"\n\nVuoi salvare?"_s, u"Modifiche non salvate"_s, true, Answer::Yes, true});
}

Answer ChiedeSeSovrascrivere(Postazione& p, const MetaCambiata& cambiata) {
    const QString sovrascrivi = cambiata.Persa() ? u"«Sovrascrivi» salva la tua come nuova mèta."_s
                                                 : u"«Sovrascrivi» mette la tua al suo posto."_s;
    return p.volti.interazione.Ask(
        {cambiata.Message() +
             u"\n\n«Ricarica» mostra l'archivio com'è adesso e rinuncia a ciò che hai scritto tu.\n"_s + sovrascrivi,
         u"Mèta cambiata nell'archivio"_s, true, Answer::Cancel, false, u"&Sovrascrivi"_s, u"&Ricarica"_s});
}

bool SalvaVoceScritta(Postazione& p, TavoloGuida& tavolo) {
    bool salvata = false;
    p.Prova([&] { salvata = tavolo.SalvaRiga(tavolo.Scritti()); });
    return salvata;
}

// Where it was typed, since a refusal is put right there.
bool InserisciScritta(Postazione& p, const schermata::Inserimento& scritta) {
    schermata::Inserimento inserimento = scritta;
    if (p.documento.Calcolata()) p.documento.Ricomponi();
    p.schermata = std::move(inserimento);
    comandi::Inserisce(p);
    return p.Su<schermata::Inserimento>()->appenaInserita;
}

// A new trip with the destination of a stored one would take that one's place.
bool TroppoNuova(const Meta& campi, const Salvataggio& salvataggio) {
    return campi.codice.isEmpty() && !salvataggio.nuova;
}

QString Mancato(const Documento& documento) {
    if (!documento.TappeModificate()) return u"La mèta non è stata salvata."_s;
    return documento.CampiModificati() ? u"La mèta e l'itinerario non sono stati salvati."_s
                                       : u"L'itinerario non è stato salvato."_s;
}

void SalvaSenzaChiedere(Postazione& p) {
    if (TavoloGuida* tavolo = ConVoceScritta(p)) tavolo->SalvaScritti();
    // No other screen is put under a command that has not ended.
    if (const auto* scritta = ConTappaScritta(p); scritta == p.Su<schermata::Inserimento>() && scritta != nullptr) {
        if (!InserisciScritta(p, *scritta)) return;
    }
    Documento& documento = p.documento;
    if (!documento.Modificato()) return;
    const Salvataggio salvataggio = documento.CampiModificati() ? documento.DecidiSalvataggio() : Salvataggio();
    if (documento.CampiModificati() && TroppoNuova(documento.Campi(), salvataggio)) return;
    documento.SalvaTutto(salvataggio, p.volti.avanzamento);
}

std::optional<LavoroSospeso> InSospeso(Postazione& p) {
    const Documento& documento = p.documento;
    LavoroSospeso lavoro;
    if (const auto* scritta = ConTappaScritta(p)) lavoro.tappa = scritta->campi;
    if (const TavoloGuida* tavolo = ConVoceScritta(p)) {
        const RigaGuida& riga = tavolo->Corrente();
        lavoro.voce = {riga.localita, riga.voce ? riga.voce->descrizione : QString(), tavolo->Scritti()};
    }
    if (!lavoro.tappa && !lavoro.voce && !documento.Modificato()) return std::nullopt;
    lavoro.letta = documento.Letta();
    lavoro.caricati = documento.Caricati();
    lavoro.campi = documento.Campi();
    lavoro.righe = documento.Righe();
    for (Tappa& tappa : lavoro.righe) tappa.guida = {};
    lavoro.riga = documento.RigaCorrente();
    return lavoro;
}

void RiprendiVoce(Postazione& p, const VoceSospesa& voce) {
    auto tavolo = std::make_unique<TavoloGuida>(p.sessione.Archivio(), p.volti.interazione, p.documento.Codice(),
                                                p.documento.Modifiche());
    const auto& righe = *tavolo->Elenco();
    const auto riga = std::find_if(righe.begin(), righe.end(), [&](const RigaGuida& r) {
        return r.localita == voce.localita && (r.voce ? r.voce->descrizione : QString()) == voce.mostrata;
    });
    if (riga != righe.end()) tavolo->VaiAllaRiga(static_cast<int>(riga - righe.begin()) + 1);
    tavolo->Scrivi(voce.scritti);
    p.schermata = schermata::Guida{std::move(tavolo)};
}

// Stages are saved where they are entered.
void Riprendi(Postazione& p, const LavoroSospeso& lavoro) {
    p.documento.Riprendi(lavoro);
    p.MettiSchermoDelViaggio();
    if (lavoro.voce) return RiprendiVoce(p, *lavoro.voce);
    if (!lavoro.tappa && !p.documento.TappeModificate()) return;
    const CampiTappa proposti = p.documento.CampiCorrenti();
    p.schermata = schermata::Inserimento{lavoro.tappa.value_or(proposti), proposti, p.documento.RigaCorrente()};
}

Answer ChiedeSeRecuperare(Postazione& p, const Recupero::Trovato& trovato) {
    const LavoroSospeso& lavoro = trovato.lavoro;
    const QString meta = !lavoro.letta.meta.codice.isEmpty() ? NomeDellaMeta(lavoro.letta.meta)
                                                             : u"nuova «%1»"_s.arg(lavoro.campi.localita.trimmed());
    QString testo = u"Cronovia si è chiuso prima che il tuo lavoro fosse salvato, il %1.\n\nMèta %2:\n- %3"_s.arg(
        trovato.scritto.toString(u"dd/MM/yyyy HH:mm"_s), meta, Differenze(lavoro).join(u"\n- "_s));
    const std::optional<MetaMemorizzata> adesso = LeggiMemorizzata(p.sessione.Archivio(), lavoro.letta.meta.codice);
    const bool diversa = !lavoro.letta.meta.codice.isEmpty() && adesso != lavoro.letta;
    if (diversa) testo += u"\n\nNell'archivio questa mèta adesso è un'altra: quando salverai, ti sarà chiesto."_s;
    testo += u"\n\nVuoi recuperarlo? «Annulla» lo tiene per il prossimo avvio."_s;
    return p.volti.interazione.Ask(
        {testo, u"Lavoro non salvato"_s, true, Answer::Yes, false, u"&Recupera"_s, u"&Elimina"_s});
}

}  // namespace

bool QualcosaDaSalvare(Postazione& p) {
    return p.documento.Modificato() || ConVoceScritta(p) != nullptr || ConTappaScritta(p) != nullptr;
}

bool NientePerso(Postazione& p) {
    const QStringList nonSalvate = NonSalvate(p);
    if (nonSalvate.isEmpty()) return true;
    TavoloGuida* tavolo = ConVoceScritta(p);
    const Answer risposta = ChiedeSeSalvare(p, nonSalvate);
    if (risposta != Answer::Yes) return risposta == Answer::No;
    if (const auto* scritta = ConTappaScritta(p); scritta != nullptr && !InserisciScritta(p, *scritta)) return false;
    return (tavolo == nullptr || SalvaVoceScritta(p, *tavolo)) && (!p.documento.Modificato() || SalvaTutto(p));
}

bool NientePersoAMeta(Postazione& p) {
    const QStringList nonSalvate = NonSalvate(p);
    if (nonSalvate.isEmpty()) return p.attivita != Attivita::Scrittura;
    const Answer risposta = ChiedeSeSalvare(p, nonSalvate);
    if (risposta != Answer::Yes) return risposta == Answer::No;
    const bool libera = p.attivita == Attivita::Nessuna;
    if (libera && !p.Prova([&] { SalvaSenzaChiedere(p); }, Mancato(p.documento))) return false;
    if (!QualcosaDaSalvare(p)) return true;
    p.Mostra(u"Non si può salvare tutto mentre un altro comando è in corso: concludilo e riprova."_s);
    return false;
}

bool NullaInSospeso(Postazione& p) {
    if (!NientePerso(p)) return false;
    p.documento.Scarta();
    return true;
}

void Rinuncia(Postazione& p) {
    if (!QualcosaDaSalvare(p)) return;
    p.documento.Scarta();
    p.MettiSchermoDelViaggio();
}

bool VoceNonPersa(Postazione& p) {
    TavoloGuida* tavolo = ConVoceScritta(p);
    if (tavolo == nullptr) return true;
    const Answer risposta = ChiedeSeSalvare(p, {VoceNonSalvata(p.documento, *tavolo)});
    return risposta == Answer::Yes ? SalvaVoceScritta(p, *tavolo) : risposta == Answer::No;
}

bool TappaNonPersa(Postazione& p) {
    if (ConTappaScritta(p) == nullptr) return true;
    const Answer risposta = ChiedeSeSalvare(p, {TappaNonInserita(p.documento, *ConTappaScritta(p))});
    const schermata::Inserimento* scritta = ConTappaScritta(p);
    if (risposta == Answer::Cancel || scritta == nullptr) return risposta != Answer::Cancel;
    const int riga = scritta->riga;
    const int ancora = scritta->ancora;
    const bool davanti = scritta == p.Su<schermata::Inserimento>();
    if (risposta == Answer::Yes && !InserisciScritta(p, *scritta)) return false;
    p.documento.SelezionaRiga(riga);  // what follows is about the row that it was given in
    auto* inserimento = p.TappaInScrittura();
    *inserimento = comandi::NuovoInserimento(p.documento);
    inserimento->ancora = ancora;
    return davanti || risposta == Answer::No;
}

std::optional<Salvataggio> DecideSalvataggio(Postazione& p, const QString& mancato) {
    std::optional<Salvataggio> deciso;
    if (p.Prova([&] { deciso = p.documento.DecidiSalvataggio(); }, mancato)) return deciso;
    if (const auto difetto = DifettoDellaMeta(p.documento.Campi())) p.daCorreggere = difetto->campo;
    return std::nullopt;
}

bool Confermato(Postazione& p, const Salvataggio& salvataggio) {
    QString perso;
    const auto nomina = [&] {
        const std::optional<Meta> presente = CaricaMeta(p.sessione.Archivio(), salvataggio.codice);
        if (!presente) return;  // deleted a moment ago: saving will find out
        perso = u"%1 è già nell'archivio: i suoi dati saranno sostituiti da quelli della nuova mèta."_s.arg(
            NomeDellaMeta(*presente));
    };
    if (TroppoNuova(p.documento.Campi(), salvataggio) && !p.Prova(nomina)) return false;
    const Operazione operazione = salvataggio.nuova ? Operazione::InserimentoMeta : Operazione::ModificaMeta;
    return BoxConferma(p.volti.interazione, operazione, perso);
}

bool SalvaTutto(Postazione& p) {
    Documento& documento = p.documento;
    const bool campi = documento.CampiModificati();
    const auto salvataggio = campi ? DecideSalvataggio(p, Mancato(documento)) : Salvataggio();
    if (!salvataggio) return false;
    if (campi && TroppoNuova(documento.Campi(), *salvataggio) && !Confermato(p, *salvataggio)) return false;
    return SalvaOChiede(p, Mancato(documento), [&] { return documento.SalvaTutto(*salvataggio, p.volti.avanzamento); });
}

bool SalvaOChiede(Postazione& p, const QString& mancato, const std::function<EsitoMemorizzazione()>& salva) {
    EsitoMemorizzazione esito;
    std::optional<MetaCambiata> cambiata;
    std::function<EsitoMemorizzazione()> tentativo = salva;
    for (;;) {
        cambiata.reset();
        const bool salvata = p.MentreScrive(mancato, [&] {
            try {
                esito = tentativo();
                if (auto* viaggio = p.Su<schermata::Viaggio>()) viaggio->fase = schermata::Viaggio::Fase::Aperta;
            } catch (const MetaCambiata& failure) {
                cambiata = failure;
            }
        });
        if (!cambiata) {
            if (esito.nomiAccorciati > 0) p.Mostra(TestoNomiAccorciati(esito));
            return salvata;
        }
        const Answer risposta = ChiedeSeSovrascrivere(p, *cambiata);
        if (risposta == Answer::No) p.Prova([&] { p.VaiAlViaggio(); });
        if (risposta != Answer::Yes) return false;
        const MetaCambiata vista = *cambiata;
        tentativo = [&p, vista] { return p.documento.Sovrascrivi(vista, p.volti.avanzamento); };
    }
}

bool MettiAlSicuro(Postazione& p) {
    if (p.attivita != Attivita::Nessuna) return false;
    p.recupero.Segui(InSospeso(p), p.volti.adesso());
    return true;
}

bool Congeda(Postazione& p) {
    try {
        return MettiAlSicuro(p);
    } catch (const Failure&) {  // nobody reads it
        return true;
    }
}

void OffriRecupero(Postazione& p) {
    for (const QString& file : p.recupero.Rimasti()) {
        std::optional<Recupero::Trovato> trovato;
        if (!p.Prova([&] { trovato = p.recupero.Leggi(file); })) continue;
        const Answer risposta = ChiedeSeRecuperare(p, *trovato);
        if (risposta == Answer::No) QFile::remove(file);
        if (risposta != Answer::Yes) continue;
        const auto riprende = [&] {
            Riprendi(p, trovato->lavoro);
            p.recupero.Riprendi(file, trovato->lavoro);
        };
        if (p.Prova(riprende)) return;
    }
}

}  // namespace cronovia
