#include "app/comandi.h"

#include "app/comandi_copia.h"
#include "app/comandi_cronovia.h"
#include "app/comandi_guida.h"
#include "app/comandi_inserimento.h"
#include "app/comandi_scambio.h"
#include "app/comandi_viaggio.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<DescrizioneComando, kComandi> kDescrizioni = {{
    {Comando::Nuovo, u"cmdNuovo", u"&Nuovo", u"Inserisce una nuova mèta", &comandi::Nuovo},
    {Comando::Ricerca, u"cmdRicerca", u"Ricerca mè&ta", u"Cerca una mèta tra quelle memorizzate", &comandi::Ricerca},
    {Comando::Salva, u"cmdSalva", u"Sal&va", u"Salva i dati della mèta", &comandi::Salva},
    {Comando::CancMeta, u"cmdCancMeta", u"Canc.&mèta", u"Cancella la mèta con il suo itinerario", &comandi::CancMeta},
    {Comando::Calcola, u"cmdCalcola", u"&Calcola", u"Calcola la cronovia del viaggio", &comandi::Calcola},
    {Comando::Stampa, u"cmdStampa", u"&Stampa", u"Stampa la cronovia", &comandi::Stampa},
    {Comando::Itinerario, u"cmdItinerario", u"&Itinerario", u"Inserisce o modifica le tappe dell'itinerario",
     &comandi::Itinerario},
    {Comando::GuidaCitta, u"cmdGuidaCitta", u"&Guida città", u"Inserisce o modifica la guida delle città",
     &comandi::GuidaCitta},
    {Comando::CancItin, u"cmdCancItin", u"C&anc.Itin.", u"Cancella tutto l'itinerario della mèta", &comandi::CancItin},
    {Comando::Esce, u"cmdEsce", u"&Esce", u"Esce dal form", &comandi::Esce},
    {Comando::Import, u"cmdImport", u"Im&port", u"Importa mète da un file di scambio", &comandi::Import},
    {Comando::Export, u"cmdExport", u"E&xport", u"Esporta mète su un file di scambio", &comandi::Export},
    {Comando::Converte, u"cmdConverte", u"Converte", u"Recupera i dati della versione precedente", &comandi::Converte},
    {Comando::Inserisce, u"cmdInserisce", u"&Inserisce tappa", u"Inserisce la tappa nella riga corrente",
     &comandi::Inserisce},
    {Comando::Aggiunge, u"cmdAggiunge", u"&Aggiunge riga vuota", u"Apre una riga vuota prima di quella corrente",
     &comandi::Aggiunge},
    {Comando::Cancella, u"cmdCancella", u"&Cancella riga/tappa", u"Cancella la riga corrente", &comandi::Cancella},
    {Comando::Ricalcola, u"cmdRicalcola", u"Ricalc&ola", u"Calcola la cronovia con le modifiche in corso",
     &comandi::Ricalcola},
    {Comando::Ritorno, u"cmdRitorno", u"Ri&torno a start",
     u"Inserisce il ritorno alla località di partenza, dalla località più vicina", &comandi::Ritorno},
    {Comando::Cerca, u"cmdCerca", u"C&erca località", u"Cerca una località dell'itinerario", &comandi::Cerca},
    {Comando::Fine, u"cmdFine", u"&Fine inser.", u"Chiude l'inserimento dell'itinerario", &comandi::Fine},
    {Comando::Memorizza, u"cmdMemorizza", u"&Salva Reset", u"Salva l'itinerario o recupera quello memorizzato",
     &comandi::Memorizza},
    {Comando::Duplica, u"cmdDuplica", u"Copia da altre &mète", u"Duplica da altra meta", &comandi::Duplica},
    {Comando::AzzeraSoste, u"cmdAzzeraSoste", u"A&zzera soste itiner.", u"Toglie tutte le soste dell'itinerario",
     &comandi::AzzeraSoste},
    {Comando::Trasferisce, u"cmdTrasferisce", u"Copia soste guida ->itin.",
     u"Aggiunge alle soste i tempi di visita della guida", &comandi::Trasferisce},
    {Comando::AltriPacchetti, u"cmdMapPoint", u"Altri Pacc&h.", u"Recepisce dati forniti da pacchetti commerciali",
     &comandi::AltriPacchetti},
}};

constexpr bool InOrdine() {
    for (std::size_t i = 0; i < kComandi; ++i) {
        if (kDescrizioni[i].comando != static_cast<Comando>(i)) return false;
    }
    return true;
}
static_assert(InOrdine(), "a command is found by its number");

}  // namespace

const std::array<DescrizioneComando, kComandi>& TabellaComandi() { return kDescrizioni; }

const DescrizioneComando& Descrizione(Comando comando) { return kDescrizioni[static_cast<std::size_t>(comando)]; }

QString Scritta(Comando comando, const StatoComandi& stato) {
    if (comando == Comando::Calcola && stato.sblocca) return u"S&blocca"_s;
    if (comando == Comando::Esce && stato.stop) return u"&Stop"_s;
    return QString::fromUtf16(Descrizione(comando).scritta);
}

}  // namespace cronovia
