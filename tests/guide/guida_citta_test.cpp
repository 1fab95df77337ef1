// SPDX-License-Identifier: GPL-3.0-or-later
#include "guide/guida_citta.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "support/archivio.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class GuidaTest : public prova::ConArchivio {
  protected:
    void Aggiungi(const QString& localita, const QString& codice, const QString& descrizione, const QString& tempo) {
        prova::NellaGuida(archive_, localita, codice, descrizione, tempo);
    }
};

TEST_F(GuidaTest, AnArchiveWithoutTypesHasTheNineStandardOnes) {
    QStringList tipi;
    for (const TipoGuida& tipo : CaricaTipiGuida(archive_)) {
        tipi += tipo.codice + u' ' + tipo.descrizione + (tipo.tempoObbligatorio ? u"!"_s : u""_s);
    }
    EXPECT_EQ(tipi.join(u", "_s),
              u"01 Ottimo!, 02 Da vedere!, 03 Interessante!, 04 Vedibile!, 05 Punto Sosta, 06 PS e CS, 07 Campeggio, "
              "08 Ristorante, 09 Gpl"_s);
    EXPECT_EQ(archive_.Count(Table::TipoGuida), 0);  // who reads does not write
    CompletaTipiGuida(archive_);
    CompletaTipiGuida(archive_);
    EXPECT_EQ(archive_.Count(Table::TipoGuida), 9);
    archive_.Delete(Table::TipoGuida, 1);
    EXPECT_EQ(CaricaTipiGuida(archive_).size(), 8U);  // types of one's own stay alone
}

TEST_F(GuidaTest, EntriesComeByTypeAndDescription) {
    Aggiungi(u"Sant'Anna"_s, u"08"_s, u"Da Piero"_s, u"00:00"_s);
    Aggiungi(u"SANT'ANNA"_s, u"01"_s, u"Torre"_s, u"01:30"_s);
    Aggiungi(u"SANT ANNA"_s, u"01"_s, u"Èremo "_s, u"00:20"_s);
    Aggiungi(u"SANTANNA"_s, u"01"_s, u"Altro paese"_s, u"09:00"_s);
    LettoreGuida guida(archive_);
    QStringList voci;
    for (const VoceGuida& voce : *guida.Voci(u"SANT?ANNA"_s)) voci += voce.tipo + u": "_s + voce.descrizione;
    EXPECT_EQ(voci, (QStringList{u"Ottimo: Èremo"_s, u"Ottimo: Torre"_s, u"Ristorante: Da Piero"_s}));
    EXPECT_EQ(guida.Voci(u"SANT?ANNA"_s)->at(1).tempo, (Durata{0, 1, 30}));
}

TEST_F(GuidaTest, EachVisitTimeIsHandedOutOnce) {
    Aggiungi(u"ROMA"_s, u"01"_s, u"Colosseo"_s, u"02:20"_s);
    Aggiungi(u"ROMA"_s, u"02"_s, u"Pantheon"_s, u"00:50"_s);
    Aggiungi(u"RIMA"_s, u"02"_s, u"Chiesa"_s, u"01:00"_s);
    LettoreGuida guida(archive_);
    EXPECT_EQ(guida.PrendiTempoVisite(u"Roma"_s), Centesimi(233 + 83));
    EXPECT_EQ(guida.PrendiTempoVisite(u"ROMA"_s), 0_cent);
    EXPECT_EQ(guida.PrendiTempoVisite(u"R?MA"_s), 100_cent);  // what is left of both
    EXPECT_EQ(guida.Voci(u"ROMA"_s)->size(), 2U);             // the entries themselves stay
    guida.Ricomincia();
    EXPECT_EQ(guida.PrendiTempoVisite(u"ROMA"_s), Centesimi(233 + 83));
}

}  // namespace
}  // namespace cronovia
