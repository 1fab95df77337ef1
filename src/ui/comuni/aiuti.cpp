// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/aiuti.h"

#include "ui/comuni/controlli.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

Istruzioni AiutoPeriodo() {
    return {u"cmdHelpPeriodo"_s, u"Periodo del viaggio"_s,
            u"Scrivi la destinazione e la nazione, poi scegli il giorno e l'ora di partenza.\n\n"
            "Giorni: lascia 000 per sapere quanto dura il viaggio; con un altro numero le soste si allungano o si "
            "accorciano finché il viaggio dura quei giorni.\n\n"
            "Soste: decide quali soste contano nel calcolo, quelle dell'itinerario, quelle della guida, la maggiore o "
            "la "
            "minore delle due, oppure nessuna.\n\n"
            "La fine del viaggio compare dopo il calcolo.\n\n"_s +
                SpiegazioneLimite()};
}

QString SpiegazioneLimite() {
    return u"Limite ritorno, nella cronovia: «>» è il momento fino al quale da lì si può proseguire senza altre soste "
           u"e "
           "finire il viaggio in tempo; «<» quello fino al quale, tornando subito indietro, si è ancora a casa in "
           "tempo."_s;
}

Istruzioni AiutoVelocita() {
    return {u"cmdHelpVelocita"_s, u"Percorrenze"_s,
            u"Per ogni tipo di strada indica la velocità media del tuo camper, soste escluse.\n\n"
            "Accanto trovi i chilometri e il tempo di guida dell'itinerario (giorni:ore:minuti, dove un giorno è la "
            "guida possibile tra colazione e notte) e il numero dei traghetti."_s};
}

Istruzioni AiutoTempi() {
    return {u"cmdHelpTempi"_s, u"Tempi tecnici giornalieri"_s,
            u"Orari attività: l'ora in cui si parte dopo colazione, gli orari e le durate di pranzo e cena, l'ora in "
            u"cui "
            "ci si ferma per la notte, l'orario delle visite e il tempo medio di un traghetto.\n\n"
            "Riposi: una breve sosta di tanti minuti ogni tante ore di guida, e giorni interi di riposo ogni tanti "
            "giorni di viaggio. Con 00 non ce ne sono.\n\n"
            "Gli orari che non vanno d'accordo si correggono da soli. Salva abituali, Carica e Reset riguardano i tuoi "
            "valori "
            "abituali, proposti per ogni nuova mèta."_s};
}

Istruzioni AiutoInserimento() {
    return {
        u"cmdHelpInserimento"_s, u"Inserimento itinerario"_s,
        u"Una tappa è la località a cui arrivi. La prima riga è la partenza.\n\n"
        "Distanza: i chilometri dalla tappa precedente. Dalla terza riga, se quelli progressivi superano 100, puoi "
        "scrivere i chilometri dall'inizio del viaggio: se il numero è maggiore del progressivo precedente, si "
        "inserisce la differenza. La casella «Km. progress.» dice se la regola vale per la riga: togli la spunta "
        "per scrivere quelli "
        "della tappa.\n\n"
        "Con distanza 0 serve una sosta, la fine della giornata o un traghetto (TRAGH nel numero di strada).\n\n"
        "Con Maiusc scegli più righe, con Alt e le frecce o con il mouse le sposti, con Canc le togli; con Ctrl+C e "
        "Ctrl+V le copi, anche da e per un foglio di calcolo. I chilometri che così non valgono più diventano «da "
        "indicare».\n\n"
        "Le linee tra le tappe mostrano dove cominciano i giorni dell'ultima cronovia; con «Calcolo dal vivo» "
        "seguono ogni modifica.\n\n"
        "Fai clic su una riga per correggerla. Ctrl+Z annulla, Ctrl+Maiusc+Z ripete. Niente è salvato prima di "
        "«Salva Reset» o di «Fine inser.»."_s};
}

Istruzioni AiutoDuplica() {
    return {
        u"cmdHelpDuplica"_s, u"Copia da altre mète"_s,
        u"Copi un tratto dell'itinerario di un'altra mèta nel tuo, dopo la tappa corrente.\n\n"
        "1. Scegli la mèta con un clic (o con Invio).\n"
        "2. Fai clic sulla prima tappa da copiare e poi su «Assegna tappa iniziale»; fai lo stesso con l'ultima. "
        "Il tratto scelto resta evidenziato.\n"
        "3. Premi «Inserisce percorso». Con l'iniziale dopo la finale il tratto si percorre all'inverso: ogni "
        "tappa prende la strada e i chilometri dell'altro verso.\n\n"
        "Controlla la distanza della prima tappa copiata: è quella che aveva nell'altra mèta, dalla tappa che là la "
        "precedeva. Correggila se tu ci arrivi da un altro posto, e non copiare la tappa in cui ti trovi già.\n\n"
        "Ctrl+Z annulla la copia."_s};
}

Istruzioni AiutoGuida() {
    return {
        u"cmdHelpGuida"_s, u"Guida città"_s,
        u"La guida raccoglie, per località, che cosa vale una visita e dove un camper può sostare. Vale per tutti i "
        "viaggi che passano di lì.\n\n"
        "Per aggiungere: fai clic sulla prima riga di una località, scrivi la descrizione, scegli la tipologia e "
        "premi «Salva riga» (o Invio). Da Ottimo a Vedibile serve anche il tempo della visita.\n"
        "Per correggere o cancellare: fai clic sulla riga dell'annotazione.\n\n"
        "Le modifiche sono salvate subito; finché resti qui Ctrl+Z le annulla e Ctrl+Maiusc+Z le ripete. Esc "
        "rinuncia a ciò che hai scritto, poi esce.\n\n"
        "Nell'itinerario, «Copia soste guida ->itin.» aggiunge questi tempi alle soste delle tappe."_s};
}

std::vector<Istruzioni> TutteLeIstruzioni() {
    return {AiutoPeriodo(), AiutoVelocita(), AiutoTempi(), AiutoInserimento(), AiutoDuplica(), AiutoGuida()};
}

void MostraIstruzioni(const Istruzioni& istruzioni, QWidget& finestra) {
    Box(QMessageBox::Information, istruzioni.titolo, istruzioni.testo, QMessageBox::Ok, &finestra).exec();
}

QPushButton* NuovoAiuto(const Istruzioni& istruzioni) {
    QPushButton* aiuto = NuovoPulsante(istruzioni.pulsante, u"[?]"_s, u"Informazioni operative"_s);
    aiuto->setAccessibleName(u"Informazioni operative: %1"_s.arg(istruzioni.titolo));
    aiuto->setFlat(true);
    LasciaAbilitato(*aiuto);
    LarghezzaPer(*aiuto, 4, 8);
    QObject::connect(aiuto, &QPushButton::clicked, aiuto,
                     [aiuto, istruzioni] { MostraIstruzioni(istruzioni, *aiuto->window()); });
    return aiuto;
}

}  // namespace cronovia
