// Version, and lines that cannot be understood.
#include "programma.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Programma;
using prova::Risposta;

TEST(Uso, HelpAndVersionNeedNoFolder) {
    const Risposta versione = Programma::EseguiNudo({u"--version"_s});
    EXPECT_EQ(versione.uscita, u"cronovia " CRONOVIA_VERSION "\n"_s);
    EXPECT_EQ(versione.codice, 0);
    EXPECT_EQ(versione.errori, QString());
    const auto uscita = [](const QStringList& argomenti) { return Programma::EseguiNudo(argomenti).uscita; };
    EXPECT_EQ(uscita({u"-v"_s}), versione.uscita);
    EXPECT_TRUE(uscita({u"--help"_s}).startsWith(u"Cronovia, "_s));
    EXPECT_EQ(uscita({u"-h"_s}), uscita({u"--help"_s}));
    const Programma programma;
    EXPECT_EQ(programma.Esegui({u"--formato"_s, u"json"_s, u"elenca"_s}).uscita, u"[\n]\n"_s);
    EXPECT_EQ(uscita({u"--help"_s, u"calcola"_s}), uscita({u"calcola"_s, u"--help"_s}));
}

TEST(Uso, TheWindowNeedsADisplay) {
    const Programma programma;
    for (const QStringList& argomenti : {QStringList{}, QStringList{u"viaggi di amici.IEI"_s}}) {
        const Risposta risposta = programma.Esegui(argomenti);
        EXPECT_EQ(risposta.codice, 1);
        EXPECT_EQ(risposta.errori,
                  u"La finestra non si può aprire: non c'è uno schermo. I comandi da terminale funzionano anche senza "
                  "finestra: cronovia --help\n"_s);
    }
    EXPECT_EQ(programma.Esegui({u"a.iei"_s, u"b.iei"_s}).codice, 2);
}

TEST(Uso, WrongLinesAreRefusedBeforeAnythingIsMade) {
    struct Caso {
        QStringList argomenti;
        QString messaggio;
    };
    const QString senzaValore = u"A un'opzione manca il suo valore, o ne ha uno che non vuole."_s;
    const QString senzaData = u"L'inizio «%1» non è una data con ora: scrivila come \"05/06/2027 08:30\"."_s;
    const auto inizio = [&](const QString& valore) {
        return Caso{{u"nuova"_s, u"ROMA"_s, u"ITALIA"_s, u"--inizio"_s, valore}, senzaData.arg(valore)};
    };
    const QString fuori = u"L'opzione --%1 vuole un numero da %2, non «%3»."_s;
    const auto calcola = [&](const QString& opzione, const QString& limiti, const QString& valore) {
        return Caso{{u"calcola"_s, u"1"_s, u"--"_s + opzione, valore}, fuori.arg(opzione, limiti, valore)};
    };
    const std::vector<Caso> casi = {
        {{u"parti"_s}, u"Il verbo «parti» non esiste."_s},
        {{u"--boh"_s}, u"Opzione sconosciuta: «boh»."_s},
        {{u"elenca"_s, u"--giorni"_s, u"3"_s}, u"Opzione sconosciuta: «giorni»."_s},
        {{u"nuova"_s, u"ROMA"_s}, u"Al verbo «nuova» mancano degli argomenti: LOCALITA NAZIONE."_s},
        {{u"guida"_s, u"%1"_s, u"%2"_s}, u"Il verbo «guida» non vuole l'argomento «%2»."_s},
        {{u"guida"_s, u"--aggiungi"_s, u"ROMA"_s, u"Gpl"_s},
         u"Con --aggiungi si scrive: guida --aggiungi LOCALITA TIPO DESCRIZIONE [hh:mm]."_s},
        {{u"guida"_s, u"--aggiungi"_s, u"ROMA"_s, u"Gpl"_s, u"Via Po"_s, u"1:75"_s},
         u"Il tempo «1:75» non è nella forma hh:mm, come 01:30."_s},
        {{u"guida"_s, u"--togli"_s, u"--meta"_s, u"1"_s, u"ROMA"_s, u"Gpl"_s, u"Via Po"_s},
         u"Con --togli si scrive: guida --togli LOCALITA TIPO DESCRIZIONE."_s},
        calcola(u"giorni"_s, u"0 a 997"_s, u"abc"_s),
        calcola(u"giorni"_s, u"0 a 997"_s, u"998"_s),
        calcola(u"giorni"_s, u"0 a 997"_s, u"-1"_s),
        calcola(u"giorni"_s, u"0 a 997"_s, u"99999999999"_s),
        calcola(u"soste"_s, u"1 a 5"_s, u"0"_s),
        calcola(u"soste"_s, u"1 a 5"_s, u"6"_s),
        {{u"stampa"_s, u"1"_s}, u"Al verbo «stampa» manca l'opzione --pdf FILE."_s},
        inizio(u"05/06/2027"_s),
        inizio(u"31/02/2027 10:00"_s),
        inizio(u"05/06/2027 24:00"_s),
        {{u"calcola"_s, u"1"_s, u"--giorni"_s}, senzaValore},
        {{u"esporta"_s, u"x.iei"_s, u"--sovrascrivi=no"_s}, senzaValore},
        {{u"elenca"_s, u"--formato"_s, u"xml"_s}, u"Il formato «xml» non esiste: testo, tsv o json."_s},
    };
    const Programma programma;
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.argomenti.join(u' ').toStdString());
        const Risposta risposta = programma.Esegui(caso.argomenti);
        EXPECT_EQ(risposta.codice, 2);
        EXPECT_EQ(risposta.uscita, QString());
        EXPECT_EQ(risposta.errori, caso.messaggio + u" L'aiuto: cronovia --help\n"_s);
        ASSERT_FALSE(QDir(programma.Cartella().Percorso()).exists());
    }
}

}  // namespace
}  // namespace cronovia
