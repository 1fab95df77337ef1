// Files from elsewhere, by the program: a journey there and back, the earlier release's data.
#include "exchange/scambio.h"

#include "exchange/vecchi_record.h"
#include "programma.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Programma;

QStringList Tutto(const Programma& programma) {
    Archive archive = Archive::Open(programma.Cartella().Percorso());
    QStringList tutto = prova::Tutto(archive);
    tutto.sort();
    return tutto;
}

TEST(Scambio, AllExamplesComeBackFieldByField) {
    const Programma da;
    for (const QString& nome : {u"capo-nord"_s, u"provenza"_s, u"sicilia"_s}) da.ImportaEsempio(nome);
    const QString file = da.Cartella().Percorso() + u"/tutte.iei"_s;
    ASSERT_NE(da.Uscita({u"esporta"_s, file}), QString());
    const Programma a;
    ASSERT_NE(a.Uscita({u"importa"_s, file}), QString());
    const QStringList tutto = Tutto(da);
    EXPECT_GT(tutto.size(), 500);
    EXPECT_EQ(Tutto(a), tutto);
    for (const Tabella tabella : {Tabella::TipoGuida, Tabella::Parametri}) {
        Archive prima = Archive::Open(da.Cartella().Percorso());
        Archive dopo = Archive::Open(a.Cartella().Percorso());
        const int campi = static_cast<int>(Definizione(tabella).campi.size());
        EXPECT_EQ(prova::Righe(dopo, tabella, campi), prova::Righe(prima, tabella, campi));
    }
    ASSERT_NE(a.Uscita({u"importa"_s, file}), QString());
    EXPECT_EQ(Tutto(a), tutto);
}

TEST(Scambio, ConverteTakesTheOldDataOnce) {
    const Programma programma;
    programma.Cartella().Crea();
    const QString niente = u"Non c'è niente da convertire: manca il file VandMete.dat.\n"_s;
    EXPECT_EQ(programma.Esegui({u"converte"_s}).errori, niente);
    QByteArray record = QByteArray("FORL\xCC").leftJustified(30) + QByteArray("ITALIA").leftJustified(67) + "0007";
    prova::ScriviFile(programma.Cartella().Percorso() + u"/VandMete.dat"_s, record.leftJustified(128));
    const QString uscita = programma.Uscita({u"converte"_s});
    EXPECT_TRUE(uscita.startsWith(u"Conversione eseguita...\n\nUna copia dei vecchi file è nella cartella "_s));
    EXPECT_TRUE(uscita.endsWith(u"\n\nFile da controllare:\nvand0007.dat: non c'è\n"_s)) << uscita.toStdString();
    EXPECT_TRUE(programma.Uscita({u"elenca"_s, u"--formato"_s, u"tsv"_s}).contains(u"000007\tFORLÌ\tITALIA\t"_s));
    EXPECT_EQ(programma.Esegui({u"converte"_s}).errori, niente);
}

// Beginnings that are wildcards, and an apostrophe near the beginning: none is found by what stands before them.
TEST(Scambio, ManyNamesThatNoIndexOfTheTableFindsTakeSeconds) {
    const Programma programma;
    programma.Cartella().Crea();
    QByteArray mete;
    QByteArray voci;
    for (int i = 1; i <= 20'000; ++i) {
        const QByteArray numero = QByteArray::number(i).rightJustified(6, '0');
        const char* inizio = i % 3 == 0 ? "*" : i % 3 == 1 ? "?" : "L'";
        mete += numero + "|" + inizio + numero + "|I\n";
        voci += "ROMA|01|L'" + numero + "\n";
    }
    const QString file = programma.Cartella().Percorso() + u"/tante.iei"_s;
    prova::ScriviFile(file, prova::Mete(mete) + prova::Tappe("000001|0001|ROMA\n") + prova::Guida(voci));
    EXPECT_TRUE(programma.Uscita({u"importa"_s, file}).contains(u"20.000 mète/itinerari;"_s));
}

}  // namespace
}  // namespace cronovia
