// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi.h"

#include "app/comandi_aiuto.h"
#include "app/comandi_archivio.h"
#include "app/comandi_copia.h"
#include "app/comandi_cronovia.h"
#include "app/comandi_esporta.h"
#include "app/comandi_guida.h"
#include "app/comandi_inserimento.h"
#include "app/comandi_percorso.h"
#include "app/comandi_righe.h"
#include "app/comandi_scambio.h"
#include "app/comandi_viaggio.h"

namespace cronovia {

namespace {

using namespace momento;

// The fields of the trip can be typed into.
constexpr Momenti kCampiLiberi =
    kNuova | kAperta | kElencoMete | kInserimento | kElencoTappe | kCopia | kGuida | kElencoGuida;

constexpr std::array<DescrizioneComando, kComandi> kDescrizioni = {{
    {Comando::Nuovo, u"cmdNuovo", u"&Nuovo", u"&Nuova mèta", u"Ctrl+N", u"Inserisce una nuova mèta", Menu::File,
     kVuota | kNuova | kAperta | kElencoMete, &comandi::Nuovo},
    {Comando::Ricerca, u"cmdRicerca", u"Ricerca mè&ta", nullptr, u"Ctrl+O", u"Cerca una mèta tra quelle memorizzate",
     Menu::File, kNuovaDopoAltra | kAperta, &comandi::Ricerca},
    {Comando::Salva, u"cmdSalva", u"Sal&va", u"Sal&va mèta", u"Ctrl+S", u"Salva i dati della mèta", Menu::File,
     kNuova | kAperta, &comandi::Salva},
    {Comando::CancMeta, u"cmdCancMeta", u"Canc.&mèta", u"Cancella &mèta", u"",
     u"Cancella la mèta con il suo itinerario", Menu::File, kAperta, &comandi::CancMeta},
    {Comando::Import, u"cmdImport", u"Im&port", u"Im&porta mète…", u"", u"Importa mète da un file di scambio",
     Menu::File, kVuota | kAperta, &comandi::Import, true},
    {Comando::Export, u"cmdExport", u"E&xport", u"E&sporta mète…", u"", u"Esporta mète su un file di scambio",
     Menu::File, kAperta, &comandi::Export},
    {Comando::PaginaTelefono, u"cmdPaginaTelefono", u"Pagina telefono", u"Pagina per il &telefono…", u"",
     u"Scrive le giornate come pagina da leggere sul telefono, senza rete", Menu::File, kAperta | kCronovia,
     &comandi::PaginaTelefono},
    {Comando::Calendario, u"cmdCalendario", u"Calendario", u"Calen&dario…", u"",
     u"Scrive il viaggio come calendario, da importare nel telefono", Menu::File, kAperta | kCronovia,
     &comandi::Calendario},
    {Comando::Converte, u"cmdConverte", u"Converte", u"&Converte i vecchi dati", u"",
     u"Recupera i dati della versione precedente", Menu::File, kVecchiDati, &comandi::Converte},
    {Comando::Ripristina, u"cmdRipristina", u"Ripristina", u"&Ripristina una copia…", u"",
     u"Rimette al suo posto una copia dell'archivio", Menu::File, kVuota | kNuova | kAperta, &comandi::Ripristina,
     true},
    {Comando::Ripara, u"cmdRipara", u"Ripara", u"Ripara l'&archivio…", u"",
     u"Controlla l'archivio e, se è danneggiato, lo ripara", Menu::File, kVuota | kNuova | kAperta, &comandi::Ripara},
    {Comando::SalvaAltrove, u"cmdSalvaAltrove", u"Salva altrove", u"Sa&lva in un'altra cartella…", u"",
     u"Copia l'archivio in un'altra cartella e continua lì", Menu::File,
     kVuota | kNuova | kAperta | kInserimento | kGuida, &comandi::SalvaAltrove},
    {Comando::ScambiaTutteDaPrima, u"cmdTutto_0", u"Tutte a destra", nullptr, u"",
     u"Trasferisce tutte le mete sull'altra finestra", Menu::Nessuno, kPrimaPiena, &comandi::ScambiaTutteDaPrima},
    {Comando::ScambiaTutteDaSeconda, u"cmdTutto_1", u"Tutte a sinistra", nullptr, u"",
     u"Trasferisce tutte le mete sull'altra finestra", Menu::Nessuno, kSecondaPiena, &comandi::ScambiaTutteDaSeconda},
    {Comando::ImExp, u"cmdImExp_0", u"Trasferisce", nullptr, u"", u"Avvia il trasferimento delle mete scelte",
     Menu::Nessuno, kMeteScelte, &comandi::ImExp},
    {Comando::FineScambio, u"cmdImExp_1", u"&Fine", nullptr, u"", u"Rinuncia all'import-export in corso", Menu::Nessuno,
     kScambio, &comandi::FineScambio},
    {Comando::Preferenze, u"cmdPreferenze", u"Preferenze", u"Pre&ferenze…", u"Ctrl+,",
     u"Sceglie testi, colori, calcolo dal vivo, carta, copie e cartella portatile", Menu::File,
     kVuota | kNuova | kAperta | kInserimento | kCronovia | kGuida, &comandi::Preferenze, true},
    {Comando::Esce, u"cmdEsce", u"&Esce", nullptr, u"Ctrl+Q", u"Esce dal form", Menu::File,
     kVuota | kNuova | kAperta | kElencoMete | kCorsa, &comandi::Esce, true},
    {Comando::Annulla, u"cmdAnnulla", u"Annulla", nullptr, u"Ctrl+Z", u"Annulla l'ultima modifica", Menu::Modifica,
     kAnnullabile, &comandi::Annulla},
    {Comando::Ripeti, u"cmdRipeti", u"Ripeti", nullptr, u"Ctrl+Shift+Z", u"Ripete la modifica annullata",
     Menu::Modifica, kRipetibile, &comandi::Ripeti},
    {Comando::Taglia, u"cmdTaglia", u"Taglia", u"&Taglia righe", u"Ctrl+X",
     u"Copia le righe scelte e le toglie dall'itinerario", Menu::Modifica, kInserimento, &comandi::Taglia, true},
    {Comando::Copia, u"cmdCopia", u"Copia", u"C&opia righe", u"Ctrl+C",
     u"Copia le righe scelte, o la cronovia, anche per un foglio di calcolo", Menu::Modifica, kInserimento | kCronovia,
     &comandi::Copia},
    {Comando::Incolla, u"cmdIncolla", u"Incolla", u"&Incolla righe", u"Ctrl+V",
     u"Incolla le righe copiate, anche da un foglio di calcolo, prima della riga corrente", Menu::Modifica,
     kInserimento, &comandi::Incolla},
    {Comando::CopiaGiornate, u"cmdCopiaGiornate", u"Copia giornate", u"Copia le gior&nate come testo", u"Ctrl+Shift+C",
     u"Copia l'elenco delle giornate, per un messaggio", Menu::Modifica, kCronovia, &comandi::CopiaGiornate},
    {Comando::DuplicaRighe, u"cmdDuplicaRighe", u"Duplica", u"&Duplica righe", u"Ctrl+D",
     u"Ripete le righe scelte, o le tappe del giorno, subito dopo", Menu::Modifica, kInserimento | kCronovia,
     &comandi::DuplicaScelte},
    {Comando::TogliRighe, u"cmdTogliRighe", u"Toglie", u"To&glie righe", u"Del",
     u"Toglie le righe scelte, o le tappe del giorno", Menu::Modifica, kInserimento | kCronovia, &comandi::TogliScelte,
     false, true},
    {Comando::SpostaSu, u"cmdSpostaSu", u"Sposta su", u"Sposta s&u", u"Alt+Up",
     u"Sposta in su le righe scelte, o le tappe del giorno", Menu::Modifica, kInserimento | kCronovia,
     &comandi::SpostaSu, false, true},
    {Comando::SpostaGiu, u"cmdSpostaGiu", u"Sposta giù", u"Sposta giù", u"Alt+Down",
     u"Sposta in giù le righe scelte, o le tappe del giorno", Menu::Modifica, kInserimento | kCronovia,
     &comandi::SpostaGiu, false, true},
    {Comando::SalvaDefault, u"cmdDefault_0", u"Sa&lva abituali", u"&Salva come valori abituali", u"",
     u"Salva i tempi e le velocità come valori abituali", Menu::Modifica, kCampiLiberi, &comandi::SalvaDefault, true},
    {Comando::CaricaDefault, u"cmdDefault_1", u"Carica", u"&Carica i valori abituali", u"", u"Carica i valori abituali",
     Menu::Modifica, kCampiLiberi, &comandi::CaricaDefault},
    {Comando::RipristinaDefault, u"cmdDefault_2", u"&Reset", u"&Ripristina i valori iniziali", u"",
     u"Ripristina i valori iniziali del programma", Menu::Modifica, kCampiLiberi, &comandi::RipristinaDefault},
    {Comando::Itinerario, u"cmdItinerario", u"&Itinerario", u"&Inserimento delle tappe", u"Ctrl+I",
     u"Inserisce o modifica le tappe dell'itinerario", Menu::Itinerario, kAperta, &comandi::Itinerario},
    {Comando::CancItin, u"cmdCancItin", u"C&anc.Itin.", u"Cancella itiner&ario", u"",
     u"Cancella tutto l'itinerario della mèta", Menu::Itinerario, kAperta, &comandi::CancItin},
    {Comando::Inserisce, u"cmdInserisce", u"&Inserisce tappa", nullptr, u"", u"Inserisce la tappa nella riga corrente",
     Menu::Itinerario, kInserimento, &comandi::Inserisce, true},
    {Comando::Aggiunge, u"cmdAggiunge", u"&Aggiunge riga vuota", nullptr, u"",
     u"Apre una riga vuota prima di quella corrente", Menu::Itinerario, kInserimento, &comandi::Aggiunge},
    {Comando::Cancella, u"cmdCancella", u"&Cancella riga/tappa", nullptr, u"", u"Cancella la riga corrente",
     Menu::Itinerario, kDueTappe, &comandi::Cancella},
    {Comando::DividiTappa, u"cmdDividiTappa", u"Divide la tappa", u"&Divide la tappa…", u"",
     u"Mette una località lungo la strada della tappa corrente", Menu::Itinerario, kInserimento,
     &comandi::DividiTappaCorrente},
    {Comando::OrariENote, u"cmdOrariENote", u"Orari e note", u"&Orari e note della tappa…", u"Ctrl+T",
     u"Orari fissati da altri, prenotazioni, prezzi e appunti della tappa corrente", Menu::Itinerario, kInserimento,
     &comandi::OrariENote},
    {Comando::Cerca, u"cmdCerca", u"C&erca località", nullptr, u"Ctrl+F", u"Cerca una località dell'itinerario",
     Menu::Itinerario, kInserimento, &comandi::Cerca},
    {Comando::Ritorno, u"cmdRitorno", u"Ri&torno a start", nullptr, u"",
     u"Inserisce il ritorno alla località di partenza, dalla località più vicina", Menu::Itinerario, kDueTappe,
     &comandi::Ritorno},
    {Comando::Duplica, u"cmdDuplica", u"Copia da altre &mète", nullptr, u"", u"Duplica da altra meta", Menu::Itinerario,
     kInserimento, &comandi::Duplica},
    {Comando::AltriPacchetti, u"cmdMapPoint", u"Altri Pacc&h.", u"Altri pacc&hetti…", u"",
     u"Recepisce dati forniti da pacchetti commerciali", Menu::Itinerario, kSenzaTappe, &comandi::AltriPacchetti},
    {Comando::ImportaTratto, u"cmdImportaTratto", u"Importa un tratto", u"Importa &un tratto…", u"",
     u"Mette dopo la tappa corrente il percorso di un navigatore o di un altro programma", Menu::Itinerario,
     kInserimento, &comandi::ImportaTratto},
    {Comando::AzzeraSoste, u"cmdAzzeraSoste", u"A&zzera soste itiner.", u"A&zzera soste dell'itinerario", u"",
     u"Toglie tutte le soste dell'itinerario", Menu::Itinerario, kInserimento, &comandi::AzzeraSoste},
    {Comando::Trasferisce, u"cmdTrasferisce", u"Copia soste guida ->itin.", u"Copia soste della &guida nell'itinerario",
     u"", u"Aggiunge alle soste i tempi di visita della guida", Menu::Itinerario, kInserimento, &comandi::Trasferisce},
    {Comando::Memorizza, u"cmdMemorizza", u"&Salva Reset", u"&Salva o recupera l'itinerario", u"Ctrl+S",
     u"Salva l'itinerario o recupera quello memorizzato", Menu::Itinerario, kInserimento, &comandi::Memorizza, true},
    {Comando::Fine, u"cmdFine", u"&Fine inser.", u"&Fine inserimento", u"", u"Chiude l'inserimento dell'itinerario",
     Menu::Itinerario, kInserimento | kElencoTappe | kCopia, &comandi::Fine},
    {Comando::AssegnaInizio, u"cmdAssegna_0", u"Assegna tappa &iniziale", nullptr, u"",
     u"La località corrente sarà la prima inserita", Menu::Nessuno, kTratto, &comandi::AssegnaInizio},
    {Comando::AssegnaFine, u"cmdAssegna_1", u"Assegna tappa &finale", nullptr, u"",
     u"La località corrente sarà l'ultima inserita", Menu::Nessuno, kTratto, &comandi::AssegnaFine},
    {Comando::InserisceTratto, u"cmdInsEsegui_0", u"Inserisce &percorso", nullptr, u"",
     u"Inserisce il tratto selezionato nel verso indicato", Menu::Nessuno, kTrattoScelto, &comandi::InserisciTratto},
    {Comando::RinunciaCopia, u"cmdInsEsegui_1", u"Rin&uncia", nullptr, u"",
     u"Rinuncia alla duplicazione dell'itinerario", Menu::Nessuno, kCopia, &comandi::RinunciaDuplicaItinerario},
    {Comando::Calcola, u"cmdCalcola", u"&Calcola", u"&Calcola cronovia", u"F9", u"Calcola la cronovia del viaggio",
     Menu::Cronovia, kVuota | kNuova | kAperta | kCronovia | kStampa, &comandi::Calcola},
    {Comando::Ricalcola, u"cmdRicalcola", u"Ricalc&ola", nullptr, u"F9",
     u"Calcola la cronovia con le modifiche in corso", Menu::Cronovia, kDueTappe, &comandi::Ricalcola},
    {Comando::Confronta, u"cmdConfronta", u"Confronta", u"C&onfronta…", u"Shift+F9",
     u"Giorni, fine e visite con altre soste o con altri giorni, per sceglierne", Menu::Cronovia,
     kNuova | kAperta | kDueTappe | kCronovia, &comandi::Confronta},
    {Comando::FineGiornata, u"cmdFineGiornata", u"Fine giornata", u"&Metti o togli fine giornata", u"",
     u"Fa finire il giorno all'ultima tappa raggiunta, o toglie la fine della giornata", Menu::Cronovia, kCronovia,
     &comandi::FineGiornataCorrente},
    {Comando::ACasaEntro, u"cmdACasaEntro", u"A casa entro", u"&A casa entro… (e costi)", u"",
     u"Quando bisogna essere a casa, e i prezzi da cui si calcolano i costi del viaggio", Menu::Cronovia,
     kNuova | kAperta | kInserimento | kCronovia, &comandi::ACasaEntro},
    {Comando::Stampa, u"cmdStampa", u"&Stampa", u"&Stampa cronovia…", u"Ctrl+P", u"Stampa la cronovia", Menu::Cronovia,
     kVuota | kNuova | kAperta | kCronovia | kStampa, &comandi::Stampa, true},
    {Comando::ScegliStampante, u"cmdEsegui_0", u"&Stampante…", nullptr, u"", u"Sceglie la stampante", Menu::Nessuno,
     kSceltaStampa, &comandi::ScegliStampante},
    {Comando::Anteprima, u"cmdAnteprima", u"&Anteprima", nullptr, u"", u"Mostra sullo schermo le pagine della cronovia",
     Menu::Nessuno, kPagine, &comandi::Anteprima},
    {Comando::RinunciaStampa, u"cmdEsegui_1", u"&Rinuncia", nullptr, u"", u"Rinuncia alla stampa", Menu::Nessuno,
     kSceltaStampa, &comandi::RinunciaStampa},
    {Comando::AvviaStampa, u"cmdSelStampante_0", u"Avvia &stampa", nullptr, u"", u"Avvio della stampa", Menu::Nessuno,
     kStampante, &comandi::AvviaStampa},
    {Comando::RinunciaStampante, u"cmdSelStampante_1", u"&Indietro", nullptr, u"", u"Torna a che cosa si stampa",
     Menu::Nessuno, kStampante, &comandi::RinunciaStampa},
    {Comando::GuidaCitta, u"cmdGuidaCitta", u"&Guida città", nullptr, u"Ctrl+U",
     u"Inserisce o modifica la guida delle città", Menu::Guida, kAperta, &comandi::GuidaCitta},
    {Comando::SalvaRigaGuida, u"cmdSalvaRiga", u"&Salva riga", nullptr, u"Ctrl+S", u"Salva la descrizione inserita",
     Menu::Guida, kGuida, &comandi::SalvaRigaGuida, true},
    {Comando::CancellaRigaGuida, u"cmdCancellaRiga", u"&Cancella riga", nullptr, u"", u"Cancella la descrizione",
     Menu::Guida, kVoce, &comandi::CancellaRigaGuida},
    {Comando::CercaInGuida, u"cmdFind", u"C&erca", u"C&erca località", u"Ctrl+F", u"Cerca una località dell'itinerario",
     Menu::Guida, kGuida, &comandi::CercaInGuida},
    {Comando::StampaGuida, u"cmdStampaGuidaCitta", u"St&ampa guida", u"St&ampa guida…", u"Ctrl+P",
     u"Stampa la guida delle città", Menu::Guida, kGuida, &comandi::StampaGuida},
    {Comando::FineGuida, u"cmdFineInserimento", u"&Fine inserimento", nullptr, u"", u"Chiude l'inserimento della guida",
     Menu::Guida, kGuida, &comandi::FineGuida},
    {Comando::ImportaSoste, u"cmdImportaSoste", u"Importa soste", u"I&mporta soste…", u"",
     u"Aggiunge alla guida le aree di sosta e i campeggi di un elenco", Menu::Guida, kVuota | kAperta,
     &comandi::ImportaSoste, true},
    {Comando::ScegliStampanteGuida, u"cmdStampaGuida_0", u"&Stampante…", nullptr, u"", u"Sceglie la stampante",
     Menu::Nessuno, kSceltaStampaGuida, &comandi::ScegliStampante},
    {Comando::AnteprimaGuida, u"cmdAnteprimaGuida", u"&Anteprima", nullptr, u"",
     u"Mostra sullo schermo le pagine della guida", Menu::Nessuno, kSceltaStampaGuida, &comandi::Anteprima},
    {Comando::RinunciaStampaGuida, u"cmdStampaGuida_1", u"&Rinuncia", nullptr, u"", u"Rinuncia alla stampa",
     Menu::Nessuno, kSceltaStampaGuida, &comandi::RinunciaStampa},
    {Comando::DatiDelViaggio, u"cmdDatiDelViaggio", u"Dati del viaggio", nullptr, u"F8",
     u"Piega o riapre i dati del viaggio, per dare posto a itinerario e cronovia", Menu::Vista, 0, nullptr},
    {Comando::Giornate, u"cmdMostraGiornate", u"Giornate", nullptr, u"Ctrl+G",
     u"Mostra o nasconde le 24 ore di ogni giorno", Menu::Vista, 0, nullptr},
    {Comando::Mappa, u"cmdMostraMappa", u"Mappa", nullptr, u"Ctrl+M", u"Mostra o nasconde la mappa del viaggio",
     Menu::Vista, 0, nullptr},
    {Comando::Manuale, u"cmdManuale", u"Manuale", u"&Manuale", u"F1", u"Apre il manuale a ciò che hai davanti",
     Menu::Aiuto, kLibera, &comandi::Manuale},
    {Comando::Tasti, u"cmdTasti", u"Tasti", u"&Tasti", u"", u"Elenca i tasti di tutti i comandi", Menu::Aiuto, kLibera,
     &comandi::Tasti},
    {Comando::Informazioni, u"cmdInformazioni", u"Informazioni", u"Informazioni su &Cronovia", u"",
     u"Versione del programma, licenze, e dove sono i tuoi dati", Menu::Aiuto, kLibera, &comandi::Informazioni, true},
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
    const auto propria = stato.scritte.find(comando);
    return propria != stato.scritte.end() ? propria->second : QString::fromUtf16(Descrizione(comando).scritta);
}

QString VoceDiMenu(Comando comando, const StatoComandi& stato) {
    const char16_t* voce = Descrizione(comando).voce;
    return voce == nullptr || stato.scritte.contains(comando) ? Scritta(comando, stato) : QString::fromUtf16(voce);
}

}  // namespace cronovia
