// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of the guide.
#include "print/stampa_guida.h"

#include <array>

#include "itinerary/itinerari.h"
#include "stampa.h"
#include "support/archivio.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class StampaGuidaTest : public testing::Test {
  protected:
    void NellaGuida(const QString& localita, const QString& codice, const QString& descrizione, const QString& tempo) {
        prova::NellaGuida(Archivio(), localita, codice, descrizione, tempo);
    }
    Archive& Archivio() { return sessione_.Archivio(); }
    DatiStampaGuida Dati(bool tutte, bool dettaglio) {
        return PreparaStampaGuida(Archivio(), u"000001"_s, u"LUCCA"_s, {tutte, dettaglio});
    }
    QString Localita(bool tutte) {
        QStringList nomi;
        for (const LocalitaStampata& l : Dati(tutte, true).localita) {
            QStringList voci;
            for (const VoceGuida& voce : l.voci) voci += voce.descrizione;
            nomi += l.nome + u'=' + voci.join(u'+');
        }
        return nomi.join(u' ');
    }

    prova::CartellaDiProva cartella_;
    Sessione sessione_{cartella_.Path()};
};

TEST_F(StampaGuidaTest, TheLocalitiesOfTheTripOrAll) {
    EXPECT_TRUE(Dati(true, true).localita.empty());
    NellaGuida(u"Sant'Anna"_s, u"01"_s, u"Torre"_s, u"01:00"_s);
    NellaGuida(u"SANT ANNA"_s, u"08"_s, u"Osteria"_s, u"00:00"_s);
    NellaGuida(u"ÀGORDO"_s, u"09"_s, u"Gpl"_s, u"00:00"_s);
    NellaGuida(u"SANT'ANNA"_s, u"02"_s, u"Pieve"_s, u"00:30"_s);
    NellaGuida(u"ALTROVE"_s, u"05"_s, u"Molo"_s, u"00:00"_s);
    std::vector<Tappa> tappe(4);
    for (std::size_t i = 0; const auto& nome : {u"SANT'ANNA"_s, u"BIELLA"_s, u"ALTROVE"_s, u"Sant'Anna"_s})
        tappe[i++].localita = nome;
    Progress progress;
    MemorizzaTappeItinerario(Archivio(), u"000001"_s, tappe, {}, progress);
    EXPECT_EQ(Localita(false), u"Sant'Anna=Torre+Pieve+Osteria ALTROVE=Molo Sant'Anna=Torre+Pieve+Osteria"_s);
    EXPECT_EQ(Localita(true), u"ÀGORDO=Gpl ALTROVE=Molo SANT ANNA=Osteria SANT'ANNA=Pieve+Torre"_s);
}

}  // namespace
}  // namespace cronovia
