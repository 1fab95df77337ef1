// Whole answers against reviewed reference files: the schedules of the examples, the help. After a change they are
// written anew by
//     CRONOVIA_RIGENERA=1 build/dev/tests/cli/cli_test --gtest_filter='*Riferimenti*'
// which fails on purpose, so that it cannot pass unnoticed; review the differences day by day before keeping them.
#include <QDate>
#include <algorithm>

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

void PrintTo(const Riferimento& riferimento, std::ostream* uscita) { *uscita << riferimento.file; }

// The first lines that differ, one below the other.
std::string Differenze(const QString& atteso, const QString& ottenuto) {
    constexpr int kMostrate = 8;
    const QStringList attese = atteso.split(u'\n');
    const QStringList ottenute = ottenuto.split(u'\n');
    QString testo = u"%1 lines expected, %2 found\n"_s.arg(attese.size()).arg(ottenute.size());
    int mostrate = 0;
    for (qsizetype i = 0; i < std::max(attese.size(), ottenute.size()) && mostrate < kMostrate; ++i) {
        const QString attesa = attese.value(i, u"(no line)"_s);
        const QString ottenuta = ottenute.value(i, u"(no line)"_s);
        if (attesa == ottenuta) continue;
        testo += u"line %1\n  - %2\n  + %3\n"_s.arg(QString::number(i + 1), attesa, ottenuta);
        ++mostrate;
    }
    return testo.toStdString();
}

// What every journey has in common, whatever its reference says: kilometres add up, no moment lies before the one
// above it, and nobody drives at night.
void AttesoBuonSenso(const QString& tsv) {
    enum { Km = 3, KmProgressivi = 5, Tempo = 6, Data = 10, Ora = 11 };
    const QStringList righe = tsv.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_GT(righe.size(), 80);
    int km = 0;
    QDateTime prima;
    for (const QString& testo : righe.sliced(1)) {
        const QStringList riga = testo.split(u'\t');
        ASSERT_EQ(riga.size(), 14);
        if (riga[Data].isEmpty()) continue;
        const QTime ora = QTime::fromString(riga[Ora].right(5), u"hh:mm"_s);
        const QDateTime momento(QDate::fromString(riga[Data], u"dd/MM/yyyy"_s), ora);
        ASSERT_TRUE(momento.isValid()) << testo.toStdString();
        EXPECT_TRUE(!prima.isValid() || prima <= momento) << testo.toStdString();
        prima = momento;
        if (riga[Tempo].isEmpty()) continue;
        km += riga[Km].toInt();
        EXPECT_EQ(QString(riga[KmProgressivi]).remove(u'.').toInt(), km) << testo.toStdString();
        EXPECT_TRUE(ora >= QTime(8, 0) && ora <= QTime(22, 10)) << testo.toStdString();
    }
}

class Riferimenti : public testing::TestWithParam<Riferimento> {};

TEST_P(Riferimenti, AreAsReviewed) {
    const Programma programma;
    if (*GetParam().viaggio != '\0') programma.ImportaEsempio(QString::fromLatin1(GetParam().viaggio));
    QString ottenuto;
    for (const QString& comando : QString::fromLatin1(GetParam().comandi).split(u'|')) {
        ottenuto += programma.Uscita(comando.split(u' '));
    }
    const QString percorso = QStringLiteral(CRONOVIA_TEST_DATA) + u'/' + QString::fromLatin1(GetParam().file);
    if (percorso.endsWith(u".tsv"_s)) AttesoBuonSenso(ottenuto);
    if (qEnvironmentVariableIsSet("CRONOVIA_RIGENERA")) {
        prova::ScriviFile(percorso, ottenuto.toUtf8());
        FAIL() << "written anew: " << percorso.toStdString();
    }
    ASSERT_TRUE(QFile::exists(percorso)) << "missing reference " << percorso.toStdString();
    const QString atteso = QString::fromUtf8(prova::LeggiFile(percorso));
    EXPECT_TRUE(atteso == ottenuto) << Differenze(atteso, ottenuto);
}

INSTANTIATE_TEST_SUITE_P(
    Cronovia, Riferimenti,
    testing::Values(
        Riferimento{"cronovia/capo-nord.tsv", "capo-nord", "calcola 1 --formato tsv"},
        Riferimento{"cronovia/capo-nord.txt", "capo-nord", "calcola 1"},
        Riferimento{"cronovia/capo-nord-senza-soste.tsv", "capo-nord", "calcola 1 --soste 5 --formato tsv"},
        Riferimento{"cronovia/sicilia.tsv", "sicilia", "calcola 2 --formato tsv"},
        Riferimento{"cronovia/provenza.tsv", "provenza", "calcola 3 --formato tsv"},
        Riferimento{"cronovia/provenza-6-giorni.tsv", "provenza", "calcola 3 --giorni 6 --formato tsv"},
        Riferimento{"cronovia/provenza-10-giorni.tsv", "provenza", "calcola 3 --giorni 10 --formato tsv"},
        Riferimento{"cronovia/provenza-8-giorni.tsv", "provenza", "calcola 3 --giorni 8 --formato tsv"},  // in vain
        Riferimento{"cli/itinerario.txt", "provenza", "itinerario 3"},
        Riferimento{"cli/aiuto.txt", "",
                    "--help|elenca --help|nuova --help|importa --help|esporta --help|itinerario --help|calcola --help|"
                    "guida --help"}));

}  // namespace
}  // namespace cronovia
