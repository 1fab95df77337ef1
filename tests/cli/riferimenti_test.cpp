// Whole answers against reviewed reference files: the schedules of the examples, the help. After a change they are
// written anew by
//     CRONOVIA_RIGENERA=1 build/dev/tests/cli/cli_test --gtest_filter='*Riferimenti*'
// which fails on purpose, so that it cannot pass unnoticed; review the differences day by day before keeping them.
#include "programma.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Programma;

struct Riferimento {
    const char* file;     // in tests/data
    const char* viaggio;  // the example that is imported first
    const char* comandi;  // command lines, separated by "|"
};

TEST(Riferimenti, AreAsReviewed) {
    for (const Riferimento& riferimento : {
             Riferimento{"cronovia/capo-nord.tsv", "capo-nord", "calcola 1 --formato tsv"},
             Riferimento{"cronovia/capo-nord.txt", "capo-nord", "calcola 1"},
             Riferimento{"cronovia/capo-nord-senza-soste.tsv", "capo-nord", "calcola 1 --soste 5 --formato tsv"},
             Riferimento{"cronovia/sicilia.tsv", "sicilia", "calcola 2 --formato tsv"},
             Riferimento{"cronovia/provenza.tsv", "provenza", "calcola 3 --formato tsv"},
             Riferimento{"cronovia/provenza-6-giorni.tsv", "provenza", "calcola 3 --giorni 6 --formato tsv"},
             Riferimento{"cronovia/provenza-10-giorni.tsv", "provenza", "calcola 3 --giorni 10 --formato tsv"},
             Riferimento{"cronovia/provenza-8-giorni.tsv", "provenza",
                         "calcola 3 --giorni 8 --formato tsv"},  // in vain
             Riferimento{"cli/itinerario.txt", "provenza", "itinerario 3"},
             Riferimento{
                 "cli/aiuto.txt", "provenza",
                 "--help|elenca --help|nuova --help|importa --help|esporta --help|converte --help|itinerario --help|"
                 "percorso --help|calcola --help|stampa --help|guida --help"},
         }) {
        const Programma programma;
        programma.ImportaEsempio(QString::fromLatin1(riferimento.viaggio));
        QString ottenuto;
        for (const QString& comando : QString::fromLatin1(riferimento.comandi).split(u'|')) {
            ottenuto += programma.Uscita(comando.split(u' '));
        }
        const QString percorso = QStringLiteral(CRONOVIA_TEST_DATA) + u'/' + QString::fromLatin1(riferimento.file);
        if (qEnvironmentVariableIsSet("CRONOVIA_RIGENERA")) {
            prova::ScriviFile(percorso, ottenuto.toUtf8());
            ADD_FAILURE() << "written anew: " << riferimento.file;
        }
        EXPECT_EQ(prova::LeggiFile(percorso).toStdString(), ottenuto.toStdString()) << riferimento.file;
    }
}

}  // namespace
}  // namespace cronovia
