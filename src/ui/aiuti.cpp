#include "ui/aiuti.h"

namespace cronovia {

using namespace Qt::StringLiterals;

QString AiutoPeriodo() {
    return u"Scrivi la destinazione e la nazione, poi scegli il giorno e l'ora di partenza.\n\n"
           "Giorni: lascia 000 per sapere quanto dura il viaggio; con un altro numero le soste si allungano o si "
           "accorciano finché il viaggio dura quei giorni.\n\n"
           "Soste: decide quali soste contano nel calcolo, quelle dell'itinerario, quelle della guida, la maggiore o "
           "la "
           "minore delle due, oppure nessuna.\n\n"
           "La fine del viaggio compare dopo il calcolo."_s;
}

QString AiutoVelocita() {
    return u"Per ogni tipo di strada indica la velocità media del tuo camper, soste escluse.\n\n"
           "Accanto trovi i chilometri e il tempo di guida dell'itinerario (giorni:ore:minuti, dove un giorno è la "
           "guida possibile tra colazione e notte) e il numero dei traghetti."_s;
}

QString AiutoTempi() {
    return u"Orari attività: l'ora in cui si parte dopo colazione, gli orari e le durate di pranzo e cena, l'ora in "
           u"cui "
           "ci si ferma per la notte, l'orario delle visite e il tempo medio di un traghetto.\n\n"
           "Riposi: una breve sosta di tanti minuti ogni tante ore di guida, e giorni interi di riposo ogni tanti "
           "giorni di viaggio. Con 00 non ce ne sono.\n\n"
           "Gli orari che non vanno d'accordo si correggono da soli. Salva, Carica e Reset riguardano i tuoi valori "
           "abituali, proposti per ogni nuova mèta."_s;
}

QString AiutoInserimento() {
    return u"Una tappa è la località a cui arrivi. La prima riga è la partenza.\n\n"
           "Distanza: i chilometri dalla tappa precedente. Dalla terza riga, se quelli progressivi superano 100, puoi "
           "scrivere i chilometri dall'inizio del viaggio: se il numero è maggiore del progressivo precedente, si "
           "inserisce la differenza. La casella «Km. progress.» dice se la regola vale per la riga.\n\n"
           "Con distanza 0 serve una sosta, la fine della giornata o un traghetto (TRAGH nel numero di strada).\n\n"
           "Fai clic su una riga per correggerla. Ctrl+Z annulla, Ctrl+Maiusc+Z ripete. Niente è salvato prima di "
           "«Salva Reset» o di «Fine inser.»."_s;
}

}  // namespace cronovia
