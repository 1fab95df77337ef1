// The pages of the guide.
#include "print/stampa_guida.h"

#include <array>
#include <map>

#include "itinerary/itinerari.h"
#include "stampa.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

Stampato Stampata(const DatiStampaGuida& dati) {
    Progress progress;
    return StampaGuida(dati, prova::kPiede, progress);
}

DatiStampaGuida Nomi(int numero) {
    DatiStampaGuida dati{{false, false}, u"LUCCA"_s, {}};
    for (int i = 1; i <= numero; ++i) dati.localita.push_back({u"LOC%1"_s.arg(i), {}});
    return dati;
}

/// The texts line by line, from the top.
QStringList Righe(const Pagina& pagina) {
    std::map<int, QStringList> righe;
    for (const TestoPosto& posto : pagina.testi) righe[static_cast<int>(posto.base / kAltezzaRiga)] += posto.testo;
    QStringList testi;
    for (const auto& [base, riga] : righe) testi += riga.join(u'|');
    return testi;
}

/// Where rules cross the page, from the top; thick ones are marked.
QStringList Traversali(const Pagina& pagina) {
    std::map<double, QString> linee;
    for (const Linea& l : pagina.linee) {
        if (l.y1 == l.y2) linee[l.y1] = QString::number(l.y1) + (l.tratto == Tratto::Spesso ? u"!"_s : u""_s);
        EXPECT_TRUE(l.y1 != l.y2 || (l.x1 == 5 && l.x2 == 195)) << l.y1;
    }
    QStringList testi;
    for (const auto& [y, testo] : linee) testi += testo;
    return testi;
}

class StampaGuidaTest : public testing::Test {
  protected:
    void NellaGuida(const QString& localita, const QString& codice, const QString& descrizione, const QString& tempo) {
        Archivio().Insert(Tabella::GuidaCitta, std::array<QString, 5>{localita, codice, descrizione, tempo, u"0"_s});
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
    Sessione sessione_{cartella_.Percorso()};
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

TEST_F(StampaGuidaTest, NamesStandFiveToALine) {
    EXPECT_TRUE(Stampata(Nomi(0)).pagine.empty());
    const Stampato documento = Stampata(Nomi(7));
    ASSERT_EQ(documento.pagine.size(), 1U);
    const Pagina& pagina = documento.pagine[0];
    EXPECT_EQ(Righe(pagina), (QStringList{u"Guida Città: - Località - Inerenti la Meta: LUCCA"_s,
                                          u"Località|Località|Località|Località|Località"_s,
                                          u"LOC1|LOC2|LOC3|LOC4|LOC5"_s, u"LOC6|LOC7"_s, u"31/01/2027|Cronovia"_s}));
    EXPECT_EQ(Traversali(pagina), (QStringList{u"17"_s, u"22!"_s, u"27"_s, u"32!"_s}));
    EXPECT_NEAR(prova::Trova(pagina, u"LOC7"_s).x, 44, 0.01);
    // A page that is full to its last line has no empty one behind it.
    EXPECT_EQ(Stampata(Nomi(255)).pagine.size(), 1U);
    const Stampato due = Stampata(Nomi(256));
    ASSERT_EQ(due.pagine.size(), 2U);
    EXPECT_EQ(Righe(due.pagine[1])[2], u"LOC256"_s);
}

TEST_F(StampaGuidaTest, EntriesStandInTheirColumnsWholeThoughSmall) {
    const QString lunga = u"Museo "_s + QString(90, u'n');
    for (int i = 0; i < 60; ++i)
        NellaGuida(u"NOME DI LOCALITA MOLTO LUNGO"_s, u"03"_s, lunga, u"01:%1"_s.arg(i, 2, 10, QChar(u'0')));
    const Stampato documento = Stampata(Dati(true, true));
    ASSERT_EQ(documento.pagine.size(), 2U);
    const QStringList righe = Righe(documento.pagine[0]);
    EXPECT_EQ(righe[0], u"Guida Città: - Località e Guida - Tutte"_s);
    EXPECT_EQ(righe[1], u"Localita|Tipo|Descrizione|Sosta"_s);
    EXPECT_EQ(righe.size(), 51 + 3);
    const std::array<double, 5> bordi = {5, 45, 65, 185, 195};
    int voci = 0;
    for (const Pagina& pagina : documento.pagine) {
        for (const TestoPosto& posto : pagina.testi) {
            if (posto.base < 23 || posto.testo == "Cronovia"_L1 || posto.testo == "31/01/2027"_L1) continue;
            const auto fine = std::upper_bound(bordi.begin(), bordi.end(), posto.x);
            ASSERT_NE(fine, bordi.end());
            EXPECT_LE(posto.x + posto.larghezza, *fine) << posto.testo.toStdString();
            EXPECT_TRUE(!posto.testo.startsWith("Museo"_L1) || posto.testo == lunga) << posto.testo.toStdString();
            if (!posto.testo.startsWith("01:"_L1)) continue;
            EXPECT_EQ(posto.testo.right(2).toInt(), voci++);
        }
    }
    EXPECT_EQ(voci, 60);
}

}  // namespace
}  // namespace cronovia
