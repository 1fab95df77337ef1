// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "places/coste.h"
#include "places/gazzettino.h"
#include "places/nomi.h"
#include "places/scelta_luoghi.h"
#include "places/sole.h"
#include "support/archivio.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

const QString kLuoghi = QStringLiteral(CRONOVIA_PLACES "/luoghi.dat");

// What the file was sorted by is what the program looks names up by, whatever versions of Unicode both know.
TEST(Gazzettino, FindsEachNameThatItProposes) {
    Gazzettino gazzettino(kLuoghi);
    std::set<int> visti;
    for (QChar a = u'a'; a <= u'z'; a.unicode()++) {
        for (QChar b = u'a'; b <= u'z'; b.unicode()++) {
            for (const Luogo& luogo : gazzettino.CheIniziano(QString(a) + b, 10, {})) {
                const std::vector<Luogo> suoi = gazzettino.Chiamati(luogo.trovato);
                EXPECT_TRUE(std::ranges::count(suoi, luogo.numero, &Luogo::numero) == 1) << luogo.trovato.toStdString();
                visti.insert(luogo.numero);
            }
        }
    }
    EXPECT_GT(visti.size(), 3000U);
}

TEST(Gazzettino, FindsPlacesHoweverTheyAreWritten) {
    struct Caso {
        QStringView scritto, mostrato;
        Posizione dove;
    };
    const Caso casi[] = {{u"MONACO DI BAVIERA", u"Monaco di Baviera", {48.14, 11.58}},
                         {u"munchen", u"Monaco di Baviera", {48.14, 11.58}},
                         {u"COPENAGHEN", u"Copenaghen", {55.68, 12.57}},
                         {u"Torino", u"Torino", {45.07, 7.69}},
                         {u"SANT AGATA DI MILITELLO", u"Sant'Agata di Militello", {38.07, 14.64}},
                         {u"Sant’Agata di Militello", u"Sant'Agata di Militello", {38.07, 14.64}},
                         {u"S. VITO LO CAPO", u"San Vito lo Capo", {38.17, 12.74}},
                         {u"tromso", u"Tromsø", {69.65, 18.96}},
                         {u"L'ISLE SUR LA SORGUE", u"L'Isle-sur-la-Sorgue", {43.92, 5.05}},
                         {u"REGGIO CALABRIA (PORTO)", u"Reggio Calabria", {38.11, 15.66}},
                         {u"NORDKAPP", u"Capo Nord", {71.17, 25.78}},
                         {u"stelvio pass", u"Passo dello Stelvio", {46.53, 10.45}}};
    Gazzettino gazzettino(kLuoghi);
    for (const Caso& caso : casi) {
        const std::vector<Luogo> luoghi = gazzettino.Chiamati(caso.scritto);
        ASSERT_FALSE(luoghi.empty()) << caso.scritto.toUtf8().constData();
        EXPECT_EQ(NomePiegato(luoghi.front().nome), NomePiegato(caso.mostrato)) << luoghi.front().nome.toStdString();
        EXPECT_LT(DistanzaKm(luoghi.front().posizione, caso.dove), 10) << caso.scritto.toUtf8().constData();
    }
    EXPECT_EQ(gazzettino.PiuVicino({45.44, 10.99}, 5).value().nome, u"Verona"_s);
    EXPECT_FALSE(gazzettino.PiuVicino({45, -35}, 50));
    // A city comes before its districts, whether one stands in them or types its name.
    EXPECT_EQ(gazzettino.PiuVicino({43.2966, 5.3703}, 15).value().nome, u"Marsiglia"_s);
    for (const Luogo& luogo : gazzettino.CheIniziano(u"marseille", 3, {u"FR"_s})) {
        EXPECT_FALSE(luogo.nome.back().isDigit()) << luogo.nome.toStdString();
    }
    const std::vector<Luogo> proposti = gazzettino.CheIniziano(u"cope", 5, {});
    EXPECT_EQ(proposti.at(0).trovato, u"Copenaghen"_s);
    EXPECT_EQ(gazzettino.CheIniziano(u"mil", 3, {u"IT"_s}).at(0).nome, u"Milano"_s);
    EXPECT_TRUE(gazzettino.CheIniziano(u"m", 5, {}).empty());
    EXPECT_EQ(gazzettino.CheIniziano(u"san", 7, {}).size(), 7U);
    EXPECT_EQ(gazzettino.CheIniziano(u"gra", 2, {}).at(1).nome, u"Graz"_s);
    EXPECT_EQ(gazzettino.CheIniziano(u"gra", 2, {u"FR"_s}).at(1).nome, u"Grasse"_s) << "of the trip's country first";
    EXPECT_FALSE(gazzettino.PiuVicino({43.8, 9.0}, 15)) << "out at sea";
    EXPECT_TRUE(gazzettino.PiuVicino({43.8, 9.0}, 80));
    // Whose name goes on counts only where nobody is called just so.
    EXPECT_EQ(gazzettino.Chiamati(u"AIX EN").front().modo, ModoNome::Iniziale);
    for (const Luogo& luogo : gazzettino.Chiamati(u"VERONA")) EXPECT_NE(luogo.modo, ModoNome::Iniziale);
    EXPECT_TRUE(gazzettino.Chiamati(u"XQWYZ").empty());
    EXPECT_TRUE(gazzettino.Chiamati(u"").empty());
}

TEST(Nomi, AreFoldedAndCountriesAreKnown) {
    EXPECT_EQ(NomePiegato(u"Ærø – Świnoujście"), u"aeroswinoujscie"_s);
    EXPECT_EQ(FormePiegate(u"ST. MORITZ (PARCHEGGIO)").mid(1).join(u' '),
              u"saintmoritzparcheggio sanktmoritzparcheggio saintemoritzparcheggio stmoritz"_s);
    EXPECT_EQ(FormePiegate(u"S.").size(), 1);
    EXPECT_EQ(CodiciNazioni(u"FRANCIA/SPAGNA - Gran Bretagna"), (QStringList{u"ES"_s, u"FR"_s, u"GB"_s}));
    EXPECT_EQ(NomeNazione(u"GB"_s), u"Regno Unito"_s);
    EXPECT_EQ(NomeNazione(u"ZZ"_s), u"ZZ"_s);
}

// Cut short, of another kind, not there: no place, no harm.
TEST(Gazzettino, KnowsNothingFromAFileThatIsNone) {
    const prova::CartellaDiProva cartella;
    cartella.Crea();
    const QByteArray buono = prova::LeggiFile(kLuoghi);
    QByteArray scambiato = buono;
    scambiato[16] = '\x11';
    QByteArray bucato = buono;
    for (qsizetype i = buono.size() / 2; i < buono.size(); i += 7) bucato[i] = '\xFF';
    int quale = 0;
    for (const QByteArray& dati : {QByteArray(), buono.first(30), buono.first(buono.size() - 1), scambiato, bucato}) {
        const QString file = cartella.Path() + u"/%1"_s.arg(++quale);
        prova::ScriviFile(file, dati);
        Gazzettino gazzettino(file);
        EXPECT_EQ(gazzettino.Disponibile(), dati == bucato);
        gazzettino.Chiamati(u"VERONA");
        gazzettino.CheIniziano(u"ver", 5, {});
        EXPECT_TRUE(LeggiCoste(file).terre.empty());
    }
    EXPECT_FALSE(Gazzettino(cartella.Path() + u"/manca"_s).Disponibile());
    const QString intere = QStringLiteral(CRONOVIA_PLACES "/coste.dat");
    const QByteArray linee = prova::LeggiFile(intere);
    for (const qsizetype quanti : {linee.size() - 1, linee.size() / 2, qsizetype{14}, qsizetype{12}}) {
        prova::ScriviFile(cartella.Path() + u"/coste"_s, linee.first(quanti));
        EXPECT_TRUE(LeggiCoste(cartella.Path() + u"/coste"_s).terre.empty()) << quanti;
    }
    const Coste coste = LeggiCoste(intere);
    EXPECT_GT(coste.terre.size(), 100U);
    EXPECT_GT(coste.confini.size(), 30U);
}

TEST(Posizione, IsReadInAnyUsualForm) {
    struct Caso {
        QStringView testo;
        std::optional<Posizione> letta;
    };
    const Posizione genova{44.405556, 8.946389};
    const Posizione porto{41.15, -8.61};
    const Caso casi[] = {{u"44.405556, 8.946389", genova},
                         {u"44,405556 8,946389", genova},
                         {u"44,405556; 8,946389", genova},
                         {u"44°24'20\"N 8°56'47\"E", genova},
                         {u"N 44° 24′ 20″, E 8° 56′ 47″", genova},
                         {u"44 24 20 N 8 56 47 E", genova},
                         {u"N44°24.33336 E008°56.78334", genova},
                         {u"41,15 N 8,61 O", porto},
                         {u"41° 9' N 8° 36.6' w", porto},
                         {u"41.15 -8.61", porto},
                         {u"-41.15 8.61", Posizione{-41.15, 8.61}},
                         {u"\u221241,15, +8,61", Posizione{-41.15, 8.61}},
                         {u"41:09:00 s 8:36:36 e", Posizione{-41.15, 8.61}},
                         {u"90 180", Posizione{90, -180}},
                         {u"44.1.2 8", {}},
                         {u"44 8 9 10 11 12 13 14", {}},
                         {u"44.4055555555555 8.9", {}},
                         {u"", {}},
                         {u"44.4", {}},
                         {u"91 8", {}},
                         {u"44 181", {}},
                         {u"44°60' N 8° E", {}},
                         {u"44.5 30 N 8 30 E", {}},
                         {u"-44 N 8 E", {}},
                         {u"GENOVA, 8", {}},
                         {u"4٤ 8", {}},
                         {u"nan nan", {}},
                         {u"1e1 8", {}}};
    for (const Caso& caso : casi) {
        const std::optional<Posizione> letta = LeggiPosizione(caso.testo);
        ASSERT_EQ(letta.has_value(), caso.letta.has_value()) << caso.testo.toUtf8().constData();
        EXPECT_LT(letta ? DistanzaKm(*letta, *caso.letta) : 0, 0.01) << caso.testo.toUtf8().constData();
    }
    EXPECT_EQ(Testo(porto), u"41,1500° N 8,6100° O"_s);
    EXPECT_EQ(Testo(Posizione{-33.925, 18.425}), u"33,9250° S 18,4250° E"_s);
    // Along the shortest way, across the line of the date too.
    const Posizione figi{-17.7, 178.0};
    const Posizione samoa{-13.8, -171.8};
    EXPECT_NEAR(DistanzaKm(figi, samoa), 1174.3, 0.1);
    for (const double parte : {0.0, 0.25, 1.0}) {
        const Posizione fra = Fra(figi, samoa, parte);
        EXPECT_NEAR(DistanzaKm(figi, fra), parte * DistanzaKm(figi, samoa), 0.01);
        EXPECT_NEAR(DistanzaKm(fra, samoa), (1 - parte) * DistanzaKm(figi, samoa), 0.01);
    }
    EXPECT_EQ(Fra(porto, porto, 0.5), porto);
}

// London, Rome, Boulder and Tromsø as almanacs and the NOAA calculator publish them, give or take a minute.
TEST(Sole, RisesAndSetsAsPublished) {
    struct Caso {
        Gma giorno;
        Posizione dove;
        int minutiDaUtc;
        std::optional<int> alba, tramonto;
    };
    const Caso casi[] = {{{21, 6, 2024}, {51.5074, -0.1278}, 60, 4 * 60 + 43, 21 * 60 + 22},
                         {{21, 12, 2024}, {51.5074, -0.1278}, 0, 8 * 60 + 4, 15 * 60 + 53},
                         {{21, 6, 2024}, {41.9028, 12.4964}, 120, 5 * 60 + 35, 20 * 60 + 48},
                         {{21, 12, 2024}, {41.9028, 12.4964}, 60, 7 * 60 + 34, 16 * 60 + 42},
                         {{20, 3, 2024}, {51.5074, -0.1278}, 0, 6 * 60 + 3, 18 * 60 + 13},
                         {{21, 6, 2010}, {40, -105}, -360, 5 * 60 + 32, 20 * 60 + 32},
                         {{21, 6, 2024}, {69.6492, 18.9553}, 120, {}, {}},
                         {{21, 12, 2024}, {69.6492, 18.9553}, 60, {}, {}}};
    for (const Caso& caso : casi) {
        const Sole sole = SoleDi(NumeroDelGiorno(caso.giorno), caso.dove, caso.minutiDaUtc);
        ASSERT_EQ(sole.alba.has_value(), caso.alba.has_value());
        EXPECT_NEAR(sole.alba.value_or(0), caso.alba.value_or(0), 1) << caso.giorno.mese << ' ' << caso.dove.latitudine;
        EXPECT_NEAR(sole.tramonto.value_or(0), caso.tramonto.value_or(0), 1)
            << caso.giorno.mese << ' ' << caso.dove.latitudine;
    }
    const std::pair<Gma, int> ore[] = {{{27, 3, 2027}, 60},  {{28, 3, 2027}, 120}, {{30, 10, 2027}, 120},
                                       {{31, 10, 2027}, 60}, {{1, 1, 2000}, 60},   {{31, 3, 2030}, 120}};
    for (const auto& [giorno, minuti] : ore) EXPECT_EQ(MinutiDaUtcInItalia(NumeroDelGiorno(giorno)), minuti);
}

class SceltaTest : public prova::ConArchivio {
  protected:
    std::vector<PosizioneTappa> Scegli(const std::vector<Passaggio>& passaggi) {
        return ScegliLuoghi(passaggi, PosizioniConfermate(archive_), gazzettino_, {});
    }

    Gazzettino gazzettino_{kLuoghi};
};

TEST_F(SceltaTest, GoesByTheKilometresAndByWhatWasConfirmed) {
    const Posizione bergen{60.39, 5.32};
    const auto vicino = [&](const PosizioneTappa& p, const Posizione& q) {
        return p.posizione && DistanzaKm(*p.posizione, q) < 15;
    };
    // Svolvær, Henningsvær, Borg, Reine: the Borg of the Lofoten is no town; one of the many others would not fit.
    const std::vector<Passaggio> lofoten = {
        {u"SVOLVÆR"_s, 0}, {u"BORG"_s, 70, 1.3}, {u"PASSO IGNOTO"_s, 40, 1.3}, {u"REINE"_s, 40, 1.3}, {u"NIENTE"_s, 5}};
    std::vector<PosizioneTappa> scelti = Scegli(lofoten);
    EXPECT_TRUE(vicino(scelti[3], {67.93, 13.09}));
    EXPECT_NE(scelti[1].fonte, FontePosizione::Confermata);
    EXPECT_EQ(scelti[2].fonte, FontePosizione::Interpolata);
    EXPECT_EQ(scelti[4].fonte, FontePosizione::Sconosciuta);
    EXPECT_FALSE(scelti[4].posizione);
    ConfermaPosizione(archive_, u"Borg"_s, bergen);
    ConfermaPosizione(archive_, u"NIENTE"_s, {1, 2});
    ConfermaPosizione(archive_, u"NIENTE"_s, {67.88, 12.98});
    scelti = Scegli(lofoten);
    EXPECT_EQ(scelti[1].fonte, FontePosizione::Confermata);
    EXPECT_EQ(scelti[1].posizione, bergen);
    EXPECT_EQ(scelti[4].posizione, (Posizione{67.88, 12.98}));
    EXPECT_TRUE(vicino(scelti[3], {67.93, 13.09}));
    EXPECT_EQ(archive_.Count(Table::Posizioni), 2);
    EXPECT_TRUE(DimenticaPosizione(archive_, u"borg"_s));
    EXPECT_FALSE(DimenticaPosizione(archive_, u"borg"_s));
    EXPECT_TRUE(Scegli({}).empty());
    // What is not known lies along the way as its kilometres say; legs without any share what the others leave.
    const auto parte = [](const std::vector<PosizioneTappa>& via, std::size_t i) {
        return DistanzaKm(*via.front().posizione, *via[i].posizione) /
               DistanzaKm(*via.front().posizione, *via.back().posizione);
    };
    EXPECT_NEAR(parte(Scegli({{u"TORINO"_s, 0}, {u"XQWYZ"_s, 30, 1.2}, {u"VERONA"_s, 270, 1.2}}), 1), 0.1, 0.01);
    const auto ignoti = Scegli({{u"TORINO"_s, 0}, {u"XQWYZ"_s, {}}, {u"XQWYY"_s, {}}, {u"VERONA"_s, 120, 1.2}});
    EXPECT_NEAR(parte(ignoti, 1) * 2, parte(ignoti, 2), 0.001);
    EXPECT_NEAR(parte(ignoti, 2), 1 - 100 / DistanzaKm({45.07, 7.69}, {45.44, 10.99}), 0.02);
    // A stored row that tells no position is passed over; a name counts as far as an itinerary holds it.
    prova::Inserisci(archive_, Table::Posizioni, {u"GUASTA"_s, u"boh"_s, u"1"_s});
    ConfermaPosizione(archive_, u" un nome che non finisce mai e poi mai "_s, bergen);
    const PosizioniConfermate confermate(archive_);
    EXPECT_FALSE(confermate.Di(u"GUASTA"_s));
    EXPECT_EQ(confermate.Di(u"UN NOME CHE NON FINISCE MAI E ANCORA"_s), bergen);
    // What lies before a ferry stays on its side of the sea.
    const std::vector<PosizioneTappa> sponda = Scegli({{u"REINE"_s, 0}, {u"IL MOLO"_s, 10, 1.3}, {u"BODØ"_s, {}}});
    EXPECT_TRUE(vicino(sponda[1], {67.93, 13.09}));
}

// The same two names with other kilometres are other places.
TEST_F(SceltaTest, TellsNamesakesApart) {
    const auto paese = [&](const QString& da, int km, const QString& a) {
        return Scegli({{da, 0}, {a, km, 1.2}}).back().nazione;
    };
    EXPECT_LT(DistanzaKm(*Scegli({{u"BERLINO"_s, 0}, {u"FRANKFURT"_s, 100, 1.2}}).back().posizione, {52.34, 14.55}),
              15);
    EXPECT_LT(DistanzaKm(*Scegli({{u"COLONIA"_s, 0}, {u"FRANKFURT"_s, 190, 1.2}}).back().posizione, {50.11, 8.68}), 15);
    // Before its kilometres are typed: Beroun in Bohemia, which is Verona too, lies nearer.
    EXPECT_EQ(Scegli({{u"VERONA"_s, 0}, {u"NORIMBERGA"_s, {}}}).front().nazione, u"IT"_s);
    EXPECT_EQ(paese(u"NIZZA"_s, 20, u"MONACO"_s), u"MC"_s);
    EXPECT_EQ(paese(u"NORIMBERGA"_s, 170, u"MONACO"_s), u"DE"_s);
}

}  // namespace
}  // namespace cronovia
