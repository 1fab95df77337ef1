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
    const Risposta risposta = programma.Esegui({});
    EXPECT_EQ(risposta.codice, 1);
    EXPECT_EQ(risposta.errori,
              u"La finestra non si può aprire: non c'è uno schermo. I verbi si usano anche senza: cronovia --help\n"_s);
}

TEST(Uso, WrongLinesAreRefusedBeforeAnythingIsMade) {
    struct Caso {
        QStringList argomenti;
        QString messaggio;
    };
    const QString senzaValore = u"A un'opzione manca il suo valore, o ne ha uno che non vuole."_s;
    const auto giorni = [](const QString& valore) {
        return Caso{{u"calcola"_s, u"1"_s, u"--giorni"_s, valore},
                    u"L'opzione --giorni vuole un numero da 0 a 997, non «%1»."_s.arg(valore)};
    };
    const auto soste = [](const QString& valore) {
        return Caso{{u"calcola"_s, u"1"_s, u"--soste"_s, valore},
                    u"L'opzione --soste vuole un numero da 1 a 5, non «%1»."_s.arg(valore)};
    };
    const auto inizio = [](const QString& valore) {
        return Caso{{u"nuova"_s, u"ROMA"_s, u"ITALIA"_s, u"--inizio"_s, valore},
                    u"L'inizio «%1» non è una data con ora: scrivila come \"05/06/2027 08:30\"."_s.arg(valore)};
    };
    const std::vector<Caso> casi = {
        {{u"parti"_s}, u"Il verbo «parti» non esiste."_s},
        {{u"Elenca"_s}, u"Il verbo «Elenca» non esiste."_s},
        {{u"--boh"_s}, u"Opzione sconosciuta: «boh»."_s},
        {{u"elenca"_s, u"--giorni"_s, u"3"_s}, u"Opzione sconosciuta: «giorni»."_s},
        {{u"esporta"_s, u"x.iei"_s, u"--formato"_s, u"json"_s}, u"Opzione sconosciuta: «formato»."_s},
        {{u"calcola"_s}, u"Al verbo «calcola» mancano degli argomenti: CODICE."_s},
        {{u"nuova"_s, u"ROMA"_s}, u"Al verbo «nuova» mancano degli argomenti: LOCALITA NAZIONE."_s},
        {{u"importa"_s}, u"Al verbo «importa» mancano degli argomenti: FILE.iei [CODICE…]."_s},
        {{u"elenca"_s, u"città"_s}, u"Il verbo «elenca» non vuole l'argomento «città»."_s},
        {{u"itinerario"_s, u"1"_s, u"2"_s}, u"Il verbo «itinerario» non vuole l'argomento «2»."_s},
        {{u"guida"_s, u"%1"_s, u"%2"_s}, u"Il verbo «guida» non vuole l'argomento «%2»."_s},
        giorni(u"abc"_s),
        giorni(u"998"_s),
        giorni(u"-1"_s),
        giorni(u"3.5"_s),
        giorni(QString()),
        giorni(u"99999999999"_s),
        soste(u"0"_s),
        soste(u"6"_s),
        inizio(u"domani"_s),
        inizio(u"05/06/2027"_s),
        inizio(u"31/02/2027 10:00"_s),
        inizio(u"05/06/2027 24:00"_s),
        inizio(u"05/06/27 10:00"_s),
        {{u"calcola"_s, u"1"_s, u"--giorni"_s}, senzaValore},
        {{u"esporta"_s, u"x.iei"_s, u"--sovrascrivi=no"_s}, senzaValore},
        {{u"elenca"_s, u"--formato"_s, u"xml"_s}, u"Il formato «xml» non esiste: testo, tsv o json."_s},
        {{u"elenca"_s, u"--formato"_s, u"JSON"_s}, u"Il formato «JSON» non esiste: testo, tsv o json."_s},
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
