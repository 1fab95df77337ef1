// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/verbi.h"

#include <QDir>
#include <algorithm>
#include <utility>

#include "app/file_viaggio.h"
#include "calendar/testo.h"
#include "cli/dati_detti.h"
#include "cli/opzioni_calcolo.h"
#include "print/tabella_testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

std::optional<int> Richiesta::Intero(const QString& nome, int minimo, int massimo) const {
    if (!opzioni.contains(nome)) return std::nullopt;
    bool numero = false;
    const int valore = opzioni.value(nome).toInt(&numero);
    if (!numero || valore < minimo || valore > massimo) {
        throw WrongUsage(u"L'opzione --%1 vuole un numero da %2 a %3, non «%4»."_s.arg(
            nome, QString::number(minimo), QString::number(massimo), opzioni.value(nome)));
    }
    return valore;
}

void RifiutaCaratteriDiControllo(const QString& cosa, const QString& testo) {
    if (HaCaratteriDiControllo(testo)) throw WrongUsage(cosa + u" contiene caratteri di controllo."_s);
}

std::vector<DatoNominato> DatiNominati(const QStringList& argomenti, qsizetype primo) {
    std::vector<DatoNominato> dati;
    for (const QString& argomento : argomenti.sliced(primo)) {
        RifiutaCaratteriDiControllo(u"Un valore"_s, argomento);
        const qsizetype uguale = argomento.indexOf(u'=');
        if (uguale < 1) throw WrongUsage(u"«%1» non è nella forma nome=valore."_s.arg(argomento));
        DatoNominato dato{argomento.first(uguale).trimmed(), argomento.sliced(uguale + 1).trimmed()};
        const bool ripetuto = std::any_of(dati.begin(), dati.end(), [&](const DatoNominato& altro) {
            return altro.nome.compare(dato.nome, Qt::CaseInsensitive) == 0;
        });
        if (ripetuto) throw WrongUsage(u"«%1» è detto due volte."_s.arg(dato.nome));
        dati.push_back(std::move(dato));
    }
    return dati;
}

OpzioniCalcolo LeggiOpzioniCalcolo(const Richiesta& richiesta) {
    OpzioniCalcolo opzioni;
    opzioni.giorni = richiesta.Intero(u"giorni"_s, 0, kMassimoGiorniAdeguamento);
    if (const auto soste = richiesta.Intero(u"soste"_s, 1, 5)) opzioni.soste = static_cast<CalcoloSoste>(*soste);
    return opzioni;
}

QString RigaTabellaScritta(const QString& cartella) {
    return u"Stampa sul file %1: completata!\n"_s.arg(QDir::toNativeSeparators(FileTabella(cartella)));
}

void EseguiStampa(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    richiesta.stampe.cronovia(apri, richiesta, uscita);
}

namespace {

std::vector<Opzione> ConQuelleDelCalcolo(std::vector<Opzione> altre) {
    altre.insert(altre.begin(),
                 {{u"giorni"_s, u"N"_s, u"Adegua le soste perché il viaggio duri N giorni (0 = quanti ne servono)."_s},
                  {u"soste"_s, u"1..5"_s,
                   u"Soste da contare: 1 itinerario, 2 guida, 3 la maggiore, 4 la minore, 5 nessuna."_s}});
    return altre;
}

std::vector<Opzione> ConIFormati(std::vector<Opzione> altre) {
    for (const FormatoViaggio& formato : FormatiViaggio()) {
        altre.push_back({formato.opzione.toString(), {}, formato.descrizione.toString()});
    }
    return altre;
}

std::vector<Verbo> VerbiDellArchivio() {
    return {
        {u"elenca"_s, {}, u"Elenca tutte le mète."_s, {}, 0, 0, true, &EseguiElenca},
        {u"nuova"_s,
         u"LOCALITA NAZIONE"_s,
         u"Crea una mèta con i parametri di viaggio personali e ne scrive il codice."_s,
         {{u"inizio"_s, u"\"gg/mm/aaaa hh:mm\""_s, u"Data e ora di partenza; altrimenti adesso."_s}},
         2,
         2,
         false,
         &EseguiNuova},
        {u"parametri"_s,
         u"CODICE [nome=valore…]"_s,
         u"Mostra partenza, velocità, orari, riposi, giorni e rientro di una mèta, o li cambia."_s,
         {},
         1,
         -1,
         true,
         &EseguiParametri,
         false,
         DatiDetti()},
        {u"elimina"_s,
         u"CODICE"_s,
         u"Cancella una mèta con il suo itinerario, dopo averlo chiesto; prima ne resta una copia."_s,
         {{u"sì"_s, {}, u"Cancella senza chiedere."_s}, {u"si"_s, {}, u"Come --sì."_s}},
         1,
         1,
         false,
         &EseguiElimina},
        {u"importa"_s,
         u"FILE.iei [CODICE…]"_s,
         u"Importa dal file di scambio tutte le mète, o solo quelle con i codici indicati."_s,
         {},
         1,
         -1,
         false,
         &EseguiImporta},
        {u"esporta"_s, u"FILE [CODICE…]"_s,
         u"Esporta sul file di scambio tutte le mète, o solo quelle con i codici indicati; o una mèta in altri "
         "formati."_s,
         ConIFormati(
             {{u"giornate"_s, {}, u"Con --ics: mette nel calendario anche i giorni interi."_s},
              {u"sovrascrivi"_s, {}, u"Ricopre il file se esiste già."_s},
              {u"gpx"_s, {}, u"Per un navigatore: il percorso della mèta CODICE, con le voci della guida."_s},
              {u"kml"_s, {}, u"Lo stesso come file KML, per carte e atlanti."_s},
              {u"itn"_s, {}, u"Le sole tappe come file ITN."_s},
              {u"per-giorno"_s, {}, u"Con --gpx, --kml o --itn: FILE è una cartella, con un file per ogni giorno."_s}}),
         1, -1, false, &EseguiEsporta},
        {u"converte"_s,
         {},
         u"Converte i vecchi file della cartella dei dati (VandMete.dat e gli altri); ne resta una copia."_s,
         {},
         0,
         0,
         false,
         &EseguiConverte},
    };
}

std::vector<Verbo> VerbiDelleCopie() {
    return {
        {u"verifica"_s,
         {},
         u"Guarda se l'archivio è in ordine, o lo ripara."_s,
         {{u"ripara"_s, {}, u"Dice che cosa si salva di un archivio danneggiato, senza cambiarlo."_s},
          {u"conferma"_s, {}, u"Con --ripara: mette l'archivio riparato al posto di quello danneggiato, che resta."_s}},
         0,
         0,
         true,
         &EseguiVerifica},
        {u"copie"_s,
         {},
         u"Elenca le copie dell'archivio che Cronovia tiene nella cartella Copie."_s,
         {},
         0,
         0,
         true,
         &EseguiCopie},
        {u"ripristina"_s,
         u"COPIA"_s,
         u"Rimette al suo posto una copia, per numero o nome come li elenca «copie», o un file; l'archivio di adesso "
         "diventa una copia."_s,
         {{u"prova"_s, {}, u"Dice soltanto che cosa cambierebbe."_s}},
         1,
         1,
         false,
         &EseguiRipristina},
        {u"completamento"_s,
         u"bash|zsh|fish"_s,
         u"Scrive per quella shell il completamento dei verbi e delle loro opzioni."_s,
         {},
         1,
         1,
         false,
         &EseguiCompletamento},
    };
}

std::vector<Verbo> VerbiDelViaggio() {
    return {
        {u"itinerario"_s,
         u"CODICE"_s,
         u"Mostra le tappe di una mèta con i tempi della guida."_s,
         {},
         1,
         1,
         true,
         &EseguiItinerario},
        {u"tappe"_s,
         u"CODICE [FILE|-] [nome=valore…]"_s,
         u"Legge le tappe di una mèta da un file (TSV, CSV o JSON; - per lo standard input), come le scrive "
         "«itinerario», al posto di quelle che ha; o ne cambia una."_s,
         {{u"aggiungi"_s,
           {},
           u"Aggiunge una tappa, in fondo o dove dice --prima: tappa=ASTI km=56 ts=A sosta=01:30 …"_s},
          {u"cambia"_s, u"N"_s, u"Cambia i dati indicati della tappa N."_s},
          {u"togli"_s, u"N"_s, u"Toglie la tappa N, o quelle da N a M: N-M."_s},
          {u"sposta"_s, u"N"_s, u"Sposta la tappa N (o N-M) in fondo, o dove dice --prima."_s},
          {u"prima"_s, u"N"_s, u"Con --aggiungi e --sposta: prima della tappa N."_s}},
         1,
         -1,
         true,
         &EseguiTappe,
         false,
         DatiDettiDiUnaTappa()},
        {u"percorso"_s,
         u"CODICE FILE"_s,
         u"Riporta in un itinerario vuoto il percorso di un navigatore o di un altro programma (GPX, KML, KMZ, ITN, GeoJSON, testo)."_s,
         {{u"dopo"_s, u"N"_s, u"Lo mette dopo la tappa N di un itinerario che ne ha (0: all'inizio)."_s}},
         2,
         2,
         false,
         &EseguiPercorso},
    };
}

std::vector<Verbo> VerbiDellaCronovia() {
    return {
        {u"calcola"_s, u"CODICE"_s,
         u"Calcola la cronovia: giorno per giorno, l'ora di ogni tratto, pasto, notte, riposo, traghetto e visita."_s,
         ConQuelleDelCalcolo({{u"tabella"_s, {}, u"Scrive anche la tabella Vandtabl.txt nella cartella dei dati."_s}}),
         1, 1, true, &EseguiCalcola},
        {u"giornate"_s, u"CODICE"_s,
         u"Mostra i giorni del viaggio: chilometri, ore di guida e di visite, dove si dorme e che cosa è rinviato."_s,
         ConQuelleDelCalcolo({{u"pdf"_s, u"FILE"_s, u"Le stampa su un file PDF, ognuna con le sue 24 ore."_s},
                              {u"mappa"_s, {}, u"Con --pdf: stampa anche la mappa del viaggio e di ogni giorno."_s},
                              {u"sovrascrivi"_s, {}, u"Con --pdf: ricopre il file se esiste già."_s}}),
         1, 1, true, &EseguiGiornate},
        {u"luoghi"_s,
         u"CODICE [LAT LON]"_s,
         u"Mostra dove sono le località di una mèta e come si sa; o conferma la posizione di una."_s,
         {{u"conferma"_s, u"LOCALITÀ"_s,
           u"Fissa la posizione di quella località: 44.4056 8.9463, 44°24'20\"N 8°56'47\"E e simili."_s},
          {u"dimentica"_s, u"LOCALITÀ"_s, u"Toglie la posizione confermata di quella località."_s}},
         1,
         3,
         true,
         &EseguiLuoghi,
         true},
        {u"confronta"_s,
         u"CODICE"_s,
         u"Confronta le soste da contare e i giorni voluti: giorni, fine, guida, visite e ritardo di ogni scelta."_s,
         {},
         1,
         1,
         true,
         &EseguiConfronta},
        {u"stampa"_s, u"CODICE"_s,
         u"Stampa la cronovia su un file PDF, e la tabella Vandtabl.txt nella cartella dei dati."_s,
         ConQuelleDelCalcolo({{u"pdf"_s, u"FILE"_s, u"Il file PDF da scrivere."_s, true},
                              {u"mappa"_s, {}, u"Stampa anche la mappa del viaggio."_s},
                              {u"sovrascrivi"_s, {}, u"Ricopre il file se esiste già."_s}}),
         1, 1, false, &EseguiStampa},
        {u"guida"_s,
         u"[LOCALITA …]"_s,
         u"Mostra la guida delle città, tutta o di una località (anche con i caratteri jolly * e ?), o la cambia."_s,
         {{u"meta"_s, u"CODICE"_s, u"Mostra solo le località dell'itinerario di quella mèta."_s},
          {u"pdf"_s, u"FILE"_s, u"La stampa su un file PDF: tutte le località, o con --meta quelle del viaggio."_s},
          {u"dettaglio"_s, {}, u"Con --pdf: stampa anche le annotazioni, non solo i nomi."_s},
          {u"sovrascrivi"_s, {}, u"Con --pdf: ricopre il file se esiste già."_s},
          {u"aggiungi"_s, {}, u"Aggiunge un'annotazione: LOCALITA TIPO DESCRIZIONE, e hh:mm per le visite."_s},
          {u"cambia"_s,
           {},
           u"Cambia un'annotazione: LOCALITA TIPO DESCRIZIONE e ciò che cambia, come tipo=… descrizione=… tempo=hh:mm."_s},
          {u"togli"_s, {}, u"Toglie un'annotazione: LOCALITA TIPO DESCRIZIONE."_s},
          {u"importa"_s, u"FILE"_s,
           u"Aggiunge le aree di sosta e i campeggi di un elenco: GPX, KML, KMZ, GeoJSON, CSV."_s},
          {u"colonne"_s, u"nome=…,latitudine=…,longitudine=…"_s,
           u"Con --importa: quali colonne di una tabella dicono che cosa, per nome o numero; anche tipo, descrizione, note."_s},
          {u"prova"_s, {}, u"Con --importa: elenca che cosa aggiungerebbe, senza farlo."_s}},
         0,
         6,
         true,
         &EseguiGuida},
    };
}

}  // namespace

const std::vector<Verbo>& Verbi() {
    static const std::vector<Verbo> verbi = [] {
        std::vector<Verbo> tutti = VerbiDellArchivio();
        for (const auto gruppo : {&VerbiDelViaggio, &VerbiDellaCronovia, &VerbiDelleCopie}) {
            for (Verbo& verbo : gruppo()) tutti.push_back(std::move(verbo));
        }
        return tutti;
    }();
    return verbi;
}

}  // namespace cronovia
