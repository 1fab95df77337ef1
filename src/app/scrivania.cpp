#include "app/scrivania.h"

#include <algorithm>
#include <utility>

#include "exchange/vecchi/vecchi_file.h"
#include "guide/guida_citta.h"
#include "interaction/failure.h"
#include "itinerary/itinerari.h"

namespace cronovia {

using namespace Qt::StringLiterals;

Scrivania::Scrivania(const QString& cartella, Volti volti) : volti_(std::move(volti)), sessione_(cartella) {
    CaricaMetaCorrente();
    converteOfferto_ = CiSonoVecchiFile(cartella);
}

StatoComandi Scrivania::Comandi() const {
    const int tappe = NumeroTappe(righe_);
    StatoComandi stato =
        AbilitaPulsantiComando(modoComandi_, modoItinerario_, {inserimento_, cronovia_.has_value(), tappe});
    if (inserimento_) {
        stato.altriPacchetti = tappe < (appenaInserita_ ? 1 : 2);
        for (const ComandoItinerario comando :
             {ComandoItinerario::Ricalcola, ComandoItinerario::Ritorno, ComandoItinerario::Cancella}) {
            const auto posto = static_cast<std::size_t>(comando);
            stato.itinerario[posto] = stato.itinerario[posto] && tappe >= 2;
        }
    }
    return stato;
}

std::optional<bool> Scrivania::KmProgressivi() const {
    if (!inserimento_ || rigaCorrente_ <= 2) return std::nullopt;
    return KmPrecedenti(righe_, riepilogo_, rigaCorrente_) > 100;
}

// Tells what was not done and what went wrong; false then.
bool Scrivania::Prova(const std::function<void()>& comando, const QString& mancato) {
    try {
        comando();
        return true;
    } catch (const Failure& failure) {
        const QString inizio = mancato.isEmpty() ? QString() : mancato + u"\n\n"_s;
        volti_.interazione.Show({inizio + failure.Message(), {}, Icon::Exclamation});
        return false;
    }
}

void Scrivania::MettiSulTavolo(MetaAperta aperta) {
    meta_ = std::move(aperta.meta);
    righe_ = std::move(aperta.tappe);
    cronovia_.reset();
    elencoMete_.reset();
    rigaCorrente_ = 1;
    cronologia_.Azzera();
    RicalcolaTempi();
    memorizzate_ = righe_;
}

// The trip on the desk as it is stored, the one that is current in the archive when that is gone, an empty desk when
// there is none. All is read before anything is replaced: what is on screen may exist nowhere else.
void Scrivania::CaricaMetaCorrente() {
    Archive& archivio = sessione_.Archivio();
    const bool esiste = CaricaDatiAnagraficiMeta(archivio, codiceMetaCorrente_).has_value();
    const QString codice = esiste ? codiceMetaCorrente_ : RicercaMetaCorrente(archivio);
    MettiSulTavolo(codice.isEmpty() ? MetaAperta{sessione_.MetaProposta(volti_.adesso()), {}, {}}
                                    : sessione_.ApriMeta(codice));
    codiceMetaCorrente_ = codice;
    ApplicaModo(codice.isEmpty() ? u"NuImEs"_s : u"All"_s);
}

void Scrivania::ApplicaModo(const QString& modo) {
    modoComandi_ = modo;
    converteOfferto_ = false;
}

// While the archive is written to, no other command can be given. What goes wrong is told, and the modes are as before.
bool Scrivania::SenzaComandi(const QString& mancato, const std::function<void()>& azione) {
    const QString comandi = modoComandi_;
    const QString itinerario = std::exchange(modoItinerario_, u"ZZ"_s);
    ApplicaModo(u"ZZ"_s);
    volti_.mostra();
    const bool riuscita = Prova(azione, mancato);
    if (modoComandi_ == "ZZ"_L1) modoComandi_ = comandi;
    modoItinerario_ = itinerario;
    return riuscita;
}

void Scrivania::RicalcolaTempi() {
    riepilogo_ = CalcolaKmTempiItinerario(righe_, OrarioCorretto(meta_.parametri), meta_.giorniAdeguamento);
    meta_.giorniAdeguamento = riepilogo_.giorniAdeguamento;
}

void Scrivania::ControllaOrari() { meta_.parametri = InOrdine(meta_.parametri); }

void Scrivania::AggiornaOrari() { meta_.parametri = OrarioCorretto(meta_.parametri).Parametri(); }

void Scrivania::Nuovo() {
    Prova([&] {
        MettiSulTavolo({sessione_.MetaProposta(volti_.adesso()), {}, {}});
        ApplicaModo(codiceMetaCorrente_.isEmpty() ? u"NuSaEs"_s : u"NuSaEsRi"_s);
    });
}

void Scrivania::Ricerca() {
    Prova([&] {
        std::vector<MetaInElenco> elenco = AutostradeInFondo(ElencoMete(sessione_.Archivio()));
        if (elenco.empty()) {
            ApplicaModo(u"NuImEs"_s);
            volti_.interazione.Show({u"Nessuna mèta nel database!"_s, u"Database vuoto"_s, Icon::Exclamation});
            return;
        }
        modoPrimaDellElenco_ = modoComandi_;
        ApplicaModo(u"NuEs"_s);
        elencoMete_ = std::move(elenco);
    });
}

void Scrivania::ScegliMeta(const QString& codice) {
    Prova([&] {
        MetaAperta scelta = sessione_.ApriMeta(codice);  // refused here when another window deleted it
        RicordaMetaCorrente(codice);
        MettiSulTavolo(std::move(scelta));
        codiceMetaCorrente_ = codice;
        ApplicaModo(u"All"_s);
    });
}

// What was on the desk before the search is there still.
void Scrivania::ChiudiElencoMete() {
    elencoMete_.reset();
    ApplicaModo(modoPrimaDellElenco_);
}

void Scrivania::Salva() {
    Salvataggio salvataggio;
    if (!Prova([&] { salvataggio = DecidiSalvataggio(sessione_.Archivio(), meta_); })) return;
    if (!BoxConferma(volti_.interazione, salvataggio.nuova ? u"I"_s : u"M"_s)) return;
    SenzaComandi(u"La mèta non è stata salvata."_s, [&] {
        codiceMetaCorrente_ = SalvaMeta(sessione_.Archivio(), meta_, salvataggio);
        CaricaMetaCorrente();
        AggiornaOrari();
    });
}

void Scrivania::CancMeta() {
    Prova([&] {
        CaricaMetaCorrente();
        volti_.mostra();
        if (codiceMetaCorrente_.isEmpty() || !BoxConferma(volti_.interazione, u"A"_s)) return;
        SenzaComandi(u"La mèta non è stata cancellata."_s, [&] {
            CancellaMeta(sessione_.Archivio(), codiceMetaCorrente_, volti_.avanzamento);
            CaricaMetaCorrente();
        });
    });
}

void Scrivania::CancItin() {
    if (SenzaMeta()) return;
    Prova([&] {
        if (!BoxConferma(volti_.interazione, u"AI"_s)) return;
        const Question sicuro{
            u"Sei sicuro di voler cancellare l'itinerario?\n\nIn caso positivo, non sarà più "
            "recuperabile!"_s,
            u"Annullamento itinerario"_s};
        if (volti_.interazione.Ask(sicuro) != Answer::Yes) return;
        SenzaComandi(u"L'itinerario non è stato cancellato."_s, [&] {
            MemorizzaTappeItinerario(sessione_.Archivio(), codiceMetaCorrente_, {}, OrarioCorretto(meta_.parametri),
                                     volti_.avanzamento);
            CaricaMetaCorrente();
        });
    });
}

void Scrivania::Default(const QString& verbo, const std::function<void()>& azione) {
    Prova([&] {
        const QString titolo = u"Dati di default"_s;
        if (volti_.interazione.Ask({u"Vuoi %1 i dati di default?"_s.arg(verbo), titolo}) != Answer::Yes) return;
        azione();
        RicalcolaTempi();
        volti_.mostra();
        volti_.interazione.Show({u"Operazione eseguita!"_s, titolo, Icon::Information});
    });
}

void Scrivania::SalvaDefault() {
    Default(u"salvare"_s, [&] { MemorizzaVariabiliMeta(sessione_.Archivio(), meta_.parametri); });
}

void Scrivania::CaricaDefault() {
    Default(u"caricare"_s, [&] { meta_.parametri = CaricaDefaultMeta(sessione_.Archivio()); });
}

void Scrivania::RipristinaDefault() {
    Default(u"ripristinare"_s, [&] { meta_.parametri = RipristinaDefaultMeta(sessione_.Archivio()); });
}

void Scrivania::Calcola() {
    if (!cronovia_) {
        EseguiCalcolo();
        return;
    }
    Ricomponi();
    ApplicaModo(u"all"_s);
}

// The itinerary is on screen again, in the state from which it was computed.
void Scrivania::Ricomponi() {
    cronovia_.reset();
    RicalcolaTempi();
    inserimento_ = std::exchange(daInserimento_, false);
    modoItinerario_ = inserimento_ ? u"all"_s : u"zz"_s;
}

void Scrivania::EseguiCalcolo(bool conMessaggio) {
    const QString modoPrima = modoComandi_;
    ApplicaModo(u"Es"_s);
    calcoloInCorso_ = true;
    volti_.mostra();
    EsitoCalcolo esito;
    Prova([&] {
        AggiornaOrari();
        esito = sessione_.Calcola({meta_, righe_, riepilogo_}, {}, volti_.avanzamento);
    });
    calcoloInCorso_ = false;
    volti_.avanzamento.Advance(0, 0);
    if (!esito.cronovia) {
        Ricomponi();
        ApplicaModo(modoPrima);
        return;
    }
    cronovia_ = std::move(esito.cronovia);
    ApplicaModo(u"CaSt"_s);
    if (!conMessaggio || esito.messaggio.isEmpty()) return;
    volti_.mostra();
    volti_.interazione.Show({esito.messaggio, u"Calcolo cronovia"_s, Icon::Information});
}

// A new trip is in the archive only after it was saved.
bool Scrivania::LasciaNuovaMeta() {
    if (!NuovaMetaDigitata()) return true;
    const Question domanda{u"La nuova mèta «%1» non è stata salvata: vuoi rinunciarvi?"_s.arg(meta_.localita.trimmed()),
                           u"Fine Lavoro"_s};
    return volti_.interazione.Ask(domanda) == Answer::Yes;
}

bool Scrivania::PossoChiudere() {
    if (calcoloInCorso_) return false;
    if (!Modificato()) return LasciaNuovaMeta();
    const Answer risposta =
        volti_.interazione.Ask({u"Hai chiesto di uscire dalla funzione 'Itinerari':\n\n"
                                "Vuoi salvare le eventuali modifiche?"_s,
                                u"Fine inserimento"_s, true});
    if (risposta == Answer::Cancel) return false;
    return risposta == Answer::No || MemorizzaTappe();
}

}  // namespace cronovia
