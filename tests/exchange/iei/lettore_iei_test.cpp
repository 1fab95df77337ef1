// SPDX-License-Identifier: GPL-3.0-or-later
// Reading exchange files of every kind of health.
#include "exchange/iei/lettore_iei.h"

#include <QIODevice>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "exchange/iei/elenco_mete.h"
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

struct Avanzamento : Progress {
    void Advance(double count, double /*total*/) override { letti = count; }
    double letti = 0;
};

Letto Leggi(QByteArray file) {
    QBuffer buffer(&file);
    EXPECT_TRUE(buffer.open(QIODevice::ReadOnly));
    Avanzamento progress;
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
    EXPECT_EQ(progress.letti, static_cast<double>(file.size()));
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

const QByteArray kRoma = Mete("000001|Roma|Italia\n");
const QStringList kLetta{u"1|000001|Roma|Italia"_s};

TEST(LettoreIei, RecordsAndCounts) {
    const std::vector<Caso> casi = {
        {"nothing", "", {}},
        {"lines ended by LF alone", QByteArray(kRoma).replace("\r\n", "\n"), kLetta},
        {"no separator at the end", kRoma.chopped(3), kLetta},
        {"empty lines", "\r\n\n" + QByteArray(kRoma).replace("\n", "\n\r\n"), kLetta},
        {"fields in another order, unknown, named twice, of another case",
         prova::Sezione('\xFF', "Nazione|Bandiera|Localita|localita|Localita|CodiceMeta\nItalia|x|Roma|y|z|000001\n"),
         kLetta},
        {"separator of a later section in a value",
         Mete("") + Guida("") + Mete("000001|N\xFD|\x80\n").mid(Mete("").size()),
         {u"3|000001|Ný|€"_s}},
        {"sections that interleave, each with its field names once",
         kRoma + Guida("Roma|01|Foro\n") + Mete("000002|Pisa|I\n").mid(Mete("").size()) + Tappe("000002|0001|Lucca\n") +
             Guida("Pisa|01|Torre\n").mid(Guida("").size()),
         kLetta +
             QStringList{u"3|Roma|01|Foro"_s, u"1|000002|Pisa|I"_s, u"2|000002|0001|Lucca"_s, u"3|Pisa|01|Torre"_s}},
        {"records without field names",
         prova::Sezione('\xFE', "000001|0001|Roma\n000001|0002|Pisa\n"),
         {},
         &ScartiLettura::righeNonCapite,
         2},
        {"cut within a record", kRoma + Tappe("000001|00"), kLetta + QStringList{u"2|000001|00"_s},
         &ScartiLettura::righeIncomplete, 1},
        {"NUL", Mete(QByteArray("000001|Ro\0ma|Italia\n", 20)), kLetta, &ScartiLettura::caratteriTolti, 1},
        {"a line of NULs alone", kRoma + QByteArray("\0\0\r\n", 4), kLetta, &ScartiLettura::caratteriTolti, 2},
        {"a line as long as the limit", kRoma + "000002\xFF" + QByteArray(65'536 - 7, 'x') + "\n",
         kLetta + QStringList{u"1|000002|"_s + QString(65'536 - 7, u'x')}, &ScartiLettura::righeIncomplete, 1},
        {"a line longer than the limit by one", kRoma + "000002\xFF" + QByteArray(65'536 - 7 + 1, 'x') + "\n", kLetta,
         &ScartiLettura::righeTroppoLunghe, 1},
        {"a line of 10 MB amid others", kRoma + QByteArray(10'000'000, '\xFF') + "\r\n" + Tappe("000001|0001|Roma\n"),
         kLetta + QStringList{u"2|000001|0001|Roma"_s}, &ScartiLettura::righeTroppoLunghe, 1}};
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.nome);
        const Letto letto = Leggi(caso.file);
        EXPECT_EQ(letto.righe, caso.righe);
        EXPECT_EQ(Totale(letto.scarti), caso.quanti);
        EXPECT_EQ(caso.contatore == nullptr ? 0 : letto.scarti.*caso.contatore, caso.quanti);
    }
}

TEST(LeggiElencoMete, NamesTheTripsThatCanBeImportedAndMarksThoseHere) {
    const prova::CartellaDiProva cartella;
    Archive archive = Archive::Open(cartella.Path());
    prova::Inserisci(archive, Table::MeteVandro, {u"000001"_s, u"nizza "_s});
    const QString file = cartella.Path() + u"/amici.iei"_s;
    prova::ScriviFile(file, Mete("000007|Roma|Italia\n|Senza codice|I\n000008||I\n000007|Di nuovo|I\nX1|Nizza|F\n") +
                                Tappe("000007|0001|Lucca\n"));
    Progress progress;
    EXPECT_THAT(LeggiElencoMete(archive, file, progress).value(),
                ::testing::ElementsAre(MetaInElenco{u"000007"_s, u"Roma"_s, u"Italia"_s, {}, false},
                                       MetaInElenco{u"X1"_s, u"Nizza"_s, u"F"_s, {}, true}));
    prova::Fermata fermata;
    EXPECT_FALSE(LeggiElencoMete(archive, file, fermata).has_value());
}

}  // namespace
}  // namespace cronovia
