// Reading exchange files of every kind of health.
#include "exchange/lettore_iei.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include "exchange/elenco_mete.h"
#include "exchange/scambio.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Guida;
using prova::Mete;
using prova::Tappe;

struct Letto {
    QStringList righe;  // section number and values with a text
    ScartiLettura scarti;
};

Letto Leggi(QByteArray file) {
    QBuffer buffer(&file);
    EXPECT_TRUE(buffer.open(QIODevice::ReadOnly));
    Progress progress;
    LettoreIei lettore(buffer, {}, progress);
    Letto letto;
    RigaIei riga;
    while (lettore.Leggi(riga)) {
        QStringList valori{QString::number(static_cast<int>(riga.tabella))};
        for (const QString& valore : riga.valori) {
            if (!valore.isEmpty()) valori += valore;
        }
        letto.righe += valori.join(u'|');
    }
    letto.scarti = lettore.Scarti();
    return letto;
}

qint64 Totale(const ScartiLettura& s) {
    return s.righePrimaDelleSezioni + s.righeNonCapite + s.righeTroppoLunghe + s.righeIncomplete + s.caratteriTolti +
           s.valoriInPiu;
}

struct Caso {
    const char* nome;
    QByteArray file;
    QStringList righe;
    qint64 ScartiLettura::*contatore = nullptr;  // the only one that counts
    qint64 quanti = 0;
};

void PrintTo(const Caso& caso, std::ostream* uscita) { *uscita << caso.nome; }

class LettoreIeiCasi : public ::testing::TestWithParam<Caso> {};

TEST_P(LettoreIeiCasi, RecordsAndCounts) {
    const Caso& caso = GetParam();
    const Letto letto = Leggi(caso.file);
    EXPECT_EQ(letto.righe, caso.righe);
    EXPECT_EQ(Totale(letto.scarti), caso.quanti);
    const auto contatore = caso.contatore;
    EXPECT_EQ(contatore == nullptr ? 0 : letto.scarti.*contatore, caso.quanti);
}

const QByteArray kRoma = Mete("000001|Roma|Italia\n");
const QStringList kLetta{u"1|000001|Roma|Italia"_s};

INSTANTIATE_TEST_SUITE_P(
    File, LettoreIeiCasi,
    ::testing::Values(
        Caso{"nothing", "", {}}, Caso{"whole", kRoma, kLetta},
        Caso{"lines ended by LF alone", QByteArray(kRoma).replace("\r\n", "\n"), kLetta},
        Caso{"no end of line at the end", kRoma.chopped(2), kLetta},
        Caso{"no separator at the end", kRoma.chopped(3), kLetta},
        Caso{"empty lines", "\r\n\n" + QByteArray(kRoma).replace("\n", "\n\r\n"), kLetta},
        Caso{"fields in another order, unknown, named twice, of another case",
             prova::Sezione('\xFF',
                            "Nazione|Bandiera|Localita|localita|Localita|CodiceMeta\nItalia|x|Roma|y|z|000001\n"),
             kLetta},
        Caso{"Windows letters",
             Mete("000001|\x80 M\xFCnchen \x93"
                  "A\x94|D\n"),
             {u"1|000001|€ München “A”|D"_s}},
        Caso{"separator of a later section in a value",
             Mete("") + Guida("") +
                 "000001\xFFN\xFD"
                 "dek\xFF"
                 "CZ\xFF\r\n" +
                 Mete("000002|Roma|I\n"),
             {u"3|000001|N\u00FDdek|CZ"_s, u"1|000002|Roma|I"_s}},
        Caso{"mixed separators before the guide's field names",
             Mete("000001|Roma|I\n000002|N\xFD"
                  "dek|CZ\n000003|Pisa|I\n") +
                 Tappe("000003|0001|Lucca\n"),
             {u"1|000001|Roma|I"_s, u"1|000003|Pisa|I"_s, u"2|000003|0001|Lucca"_s},
             &ScartiLettura::righeNonCapite,
             1},
        Caso{"lines before the first section", "Ciao,\r\necco le mie mete\r\n" + kRoma, kLetta,
             &ScartiLettura::righePrimaDelleSezioni, 2},
        Caso{"records without field names",
             prova::Sezione('\xFE', "000001|0001|Roma\n000001|0002|Pisa\n"),
             {},
             &ScartiLettura::righeNonCapite,
             2},
        Caso{"cut within a record", kRoma + Tappe("000001|0001|Roma\n000001|00"),
             kLetta + QStringList{u"2|000001|0001|Roma"_s, u"2|000001|00"_s}, &ScartiLettura::righeIncomplete, 1},
        Caso{"quotes", Mete("000001|\"Roma\"|Italia\n"), kLetta, &ScartiLettura::caratteriTolti, 2},
        Caso{"NUL", Mete(QByteArray("000001|Ro\0ma|Italia\n", 20)), kLetta, &ScartiLettura::caratteriTolti, 1},
        Caso{"mark of the end of a DOS file", kRoma + "\x1A", kLetta, &ScartiLettura::caratteriTolti, 1},
        Caso{"more values than field names", Mete("000001|Roma|Italia||x|y\n"), kLetta, &ScartiLettura::valoriInPiu, 2},
        Caso{"more than a hundred values", Mete("000001|Roma|Italia" + QByteArray(99, '|') + "x\n"), kLetta,
             &ScartiLettura::valoriInPiu, 2},
        Caso{"a line as long as the limit", Mete("000001|Roma|Italia" + QByteArray(65'536 - 19, ' ') + "\n"), kLetta},
        Caso{"a line longer by one", Mete("000001|Roma|Italia\n000002|" + QByteArray(65'536 - 7, 'x') + "\n"), kLetta,
             &ScartiLettura::righeTroppoLunghe, 1},
        Caso{"a line of 10 MB amid others",
             kRoma + QByteArray(10'000'000, '\xFF') + "\r\n" + Tappe("000001|0001|Roma\n"),
             kLetta + QStringList{u"2|000001|0001|Roma"_s}, &ScartiLettura::righeTroppoLunghe, 1},
        Caso{"no end of line in 10 MB", QByteArray(10'000'000, '\0'), {}, &ScartiLettura::righeTroppoLunghe, 1}));

// Gives one line of 100 MB.
class RigaSenzaFine : public QIODevice {
  protected:
    qint64 readData(char* dati, qint64 quanti) override {
        if (letti_ > 100'000'000) return 0;
        std::fill_n(dati, quanti, '\xFF');
        letti_ += quanti;
        return quanti;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

  private:
    qint64 letti_ = 0;
};

long MemoriaDiPuntaKB() {
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    return uso.ru_maxrss;
}

TEST(LettoreIei, HoldsNoMoreThanALine) {
    RigaSenzaFine riga;
    riga.open(QIODevice::ReadOnly);
    Progress progress;
    const long prima = MemoriaDiPuntaKB();
    LettoreIei lettore(riga, {}, progress);
    RigaIei record;
    EXPECT_FALSE(lettore.Leggi(record));
    EXPECT_EQ(lettore.Scarti().righeTroppoLunghe, 1);
    EXPECT_LT(MemoriaDiPuntaKB() - prima, 10'000);
}

TEST(LeggiElencoMete, NamesTheTripsThatCanBeImported) {
    const prova::CartellaDiProva cartella;
    cartella.Crea();
    const QString file = cartella.Percorso() + u"/amici.iei"_s;
    prova::ScriviFile(file, Mete("000007|Roma|Italia\n|Senza codice|I\n000008||I\n000007|Di nuovo|I\nX1|Nizza|F\n") +
                                Tappe("000007|0001|Lucca\n"));
    Progress progress;
    EXPECT_THAT(LeggiElencoMete(file, progress),
                ::testing::ElementsAre(MetaNelFile{u"000007"_s, u"Roma"_s, u"Italia"_s},
                                       MetaNelFile{u"X1"_s, u"Nizza"_s, u"F"_s}));
}

}  // namespace
}  // namespace cronovia
