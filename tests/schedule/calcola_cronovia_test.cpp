// SPDX-License-Identifier: GPL-3.0-or-later
// What whole journeys do not show: refusals, passes that help nothing, timetables and lengths beyond all reason.
#include "schedule/calcola_cronovia.h"

#include <gtest/gtest.h>

#include "schedule/colonne.h"
#include "schedule/costi.h"
#include "store/archive.h"
#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

struct Titoli : Progress {
    void Title(const QString& title) override { titoli += title; }
    bool StopRequested() override { return fermo; }
    QStringList titoli;
    bool fermo = false;
};

class CalcolaCronoviaTest : public testing::Test {
  protected:
    // Every road at 100 km/h, visits from 9 to 18.
    CalcolaCronoviaTest() {
        meta_.dataInizio = NumeroGiorno(730135);
        meta_.oraInizio = 800_cent;
        meta_.parametri.mediaKm = {100, 100, 100, 100};
    }

    void Aggiungi(int km, Durata sosta = {}, std::optional<TipoStrada> tipo = TipoStrada::Autostrada) {
        tappe_.push_back({u"TAPPA %1"_s.arg(tappe_.size()), {}, km, tipo, sosta, false, {}});
    }

    EsitoCalcolo Calcola() {
        LettoreGuida guida(archive_);
        return CalcolaCronovia(meta_, OrarioCorretto(meta_.parametri), tappe_, guida, progress_);
    }

    prova::CartellaDiProva cartella_;
    Archive archive_ = Archive::Open(cartella_.Path());
    Titoli progress_;
    Meta meta_;
    std::vector<Tappa> tappe_;
};

TEST_F(CalcolaCronoviaTest, TellsWhichPassItIsAndCanBeStopped) {
    for (int i = 0; i < 10; ++i) Aggiungi(i == 0 ? 5000 : 100, {1, 0, 0});
    meta_.giorniAdeguamento = 1;
    EXPECT_EQ(Calcola().tentativi, kMassimoTentativi);
    // 59 hours of driving and 90 of visits are 16 visiting days: (16 + 1) * 1.25 + 0.5 is the first guess.
    EXPECT_EQ(progress_.titoli.value(1), u"Calcolo della cronovia, text n. 1/11 [21/1*I=0,047]"_s);
    progress_.fermo = true;
    EXPECT_FALSE(Calcola().cronovia);
}

TEST_F(CalcolaCronoviaTest, RefusesWhatCannotBeComputed) {
    Aggiungi(100, {}, std::nullopt);
    meta_.parametri.mediaKm[Indice(TipoStrada::Autostrada)] = 0;
    EXPECT_TRUE(Calcola().cronovia) << "an unused road type needs no speed; a blank one is a local road";
    meta_.parametri.mediaKm[Indice(TipoStrada::Locale)] = 0;
    EXPECT_EQ(prova::MessaggioDi([&] { Calcola(); }),
              u"Calcolo impossibile: la velocità media per le strade di tipo «Locale» è 0."_s);
    meta_.parametri = {};
    meta_.parametri.fineVisita = 0_cent;
    EXPECT_TRUE(prova::MessaggioDi([&] { Calcola(); }).contains(u"fine visite"_s));
    meta_.dataInizio.reset();
    EXPECT_TRUE(prova::MessaggioDi([&] { Calcola(); }).contains(u"data d'inizio"_s));
}

TEST_F(CalcolaCronoviaTest, WhatComesNearestHoldsOnceItIsTyped) {
    // Rest days come after each second day: some numbers of days are passed over.
    meta_.parametri.riposoDopoGiorni = 2;
    meta_.parametri.riposoGiorno = 2;
    for (int i = 0; i < 12; ++i) Aggiungi(i == 0 ? 0 : 150 + i * 17, {0, i % 5, 20});
    const std::vector<Tappa> digitate = tappe_;
    int cercati = 0;
    int limitati = 0;
    int esatte = 0;
    for (int caso = 0; caso < 80; ++caso) {
        const int voluti = caso / 2 + 1;
        tappe_ = digitate;
        meta_.giorniAdeguamento = voluti;
        meta_.scadenza.reset();
        if (caso % 2 == 1) meta_.scadenza = Scadenza::Da(OraFissa::Da(20 * 60, *meta_.dataInizio + 16));
        const EsitoCalcolo esito = Calcola();
        const auto inTempo = [](const EsitoCalcolo& e) {
            return !e.cronovia->scadenza || e.cronovia->scadenza->margine >= 0_cent;
        };
        EXPECT_TRUE(inTempo(esito)) << voluti;
        EXPECT_EQ(esito.cronovia->fine->giorni == voluti, esito.messaggio.startsWith(u"Elaborazione conclusa"_s));
        const std::optional<RicercaGiorni>& ricerca = esito.ricerca;
        if (!ricerca) continue;
        ++cercati;
        esatte += ricerca->esatta ? 1 : 0;
        if (ricerca->finoAllaScadenza) {
            ++limitati;
            EXPECT_TRUE(ricerca->testo.contains(u"% non si è a casa entro "_s)) << ricerca->testo.toStdString();
        }
        if (ricerca->sotto && ricerca->sopra) {
            EXPECT_LT(ricerca->sotto->giorni, voluti);
            EXPECT_GT(ricerca->sopra->giorni, voluti);
            EXPECT_EQ(ricerca->sopra->percento, ricerca->sotto->percento + 1);
        }
        EXPECT_EQ(ricerca->esatta.value_or(PropostaGiorni{0, voluti, {}}).giorni, voluti);
        meta_.giorniAdeguamento = 0;
        for (const auto& proposta : {ricerca->esatta, ricerca->sotto, ricerca->sopra}) {
            if (!proposta) continue;
            for (std::size_t i = 0; i < tappe_.size(); ++i) tappe_[i].sosta = proposta->soste[i];
            const EsitoCalcolo digitata = Calcola();
            EXPECT_EQ(digitata.cronovia->fine->giorni, proposta->giorni) << voluti << ' ' << proposta->percento;
            EXPECT_TRUE(inTempo(digitata)) << voluti << ' ' << proposta->percento;
        }
    }
    EXPECT_GT(cercati, 10);
    EXPECT_GT(limitati, 5);
    EXPECT_GT(esatte, 3);
    meta_.giorniAdeguamento = 9;
    meta_.scadenza = Scadenza::Da(OraFissa::Da(9 * 60, *meta_.dataInizio));
    EXPECT_TRUE(Calcola().messaggio.contains(u" Anche senza soste non si è a casa entro "_s));
    EXPECT_TRUE(Calcola().messaggio.contains(u" Non si accorciano: "_s));
}

TEST_F(CalcolaCronoviaTest, CostsAreThoseOfEachDay) {
    Aggiungi(0);
    Aggiungi(200);
    Aggiungi(100, {2, 0, 0}, TipoStrada::Locale);
    Aggiungi(60);
    Vincoli vincoli;
    vincoli.prezzoIngresso = Prezzo::Da(12'50);
    vincoli.prezzoNotte = Prezzo::Da(0);
    tappe_[2].vincoli = vincoli;
    EXPECT_TRUE(CostiDelViaggio(Giornate(*Calcola().cronovia, *meta_.dataInizio))) << "a ticket alone";
    meta_.prezzi = {10'00, 1859, 78, 25'00};
    vincoli.prezzoNotte.reset();
    for (const auto& [notte, notti] : std::vector<std::pair<std::optional<int>, int>>{{{}, 50'00}, {18'00, 36'00}}) {
        if (notte) vincoli.prezzoNotte = Prezzo::Da(*notte);
        tappe_[2].vincoli = vincoli;
        const std::vector<Giornata> giorni = Giornate(*Calcola().cronovia, *meta_.dataInizio);
        ASSERT_EQ(giorni.size(), 3U);
        EXPECT_EQ(giorni.front().costi->carburante, 55'77) << "300 km, 30 litres";
        EXPECT_EQ(giorni.front().costi->pedaggi, 15'60) << "200 km of motorway";
        EXPECT_EQ(giorni.back().costi->notti, 0) << "behind the last day there is none";
        const Costi totale = *CostiDelViaggio(giorni);
        EXPECT_EQ(totale.notti, notti);
        EXPECT_EQ(totale.ingressi, 12'50);
        EXPECT_EQ(totale.Totale(), 55'77 + 15'60 + 11'15 + 4'68 + notti + 12'50);
    }
    meta_.prezzi = {};
    for (Tappa& tappa : tappe_) tappa.vincoli = {};
    EXPECT_FALSE(CostiDelViaggio(Giornate(*Calcola().cronovia, *meta_.dataInizio)));
}

TEST_F(CalcolaCronoviaTest, EndsWhateverIsAsked) {
    Aggiungi(0);
    Aggiungi(140, {0, 4, 0});  // a stop behind the last piece, stretched in every pass
    meta_.giorniAdeguamento = 997;
    EXPECT_LE(Calcola().cronovia->righe.back().data - *meta_.dataInizio, 1000);
    meta_.giorniAdeguamento = 0;
    tappe_.back().sosta = {150, 0, 0};
    Aggiungi(100);
    EXPECT_EQ(Calcola().cronovia->fine->giorni, 151);

    // A timetable that leaves no time to drive has no return either.
    meta_.parametri.oraColazione = 1200_cent;
    meta_.parametri.oraPranzo = 1300_cent;
    meta_.parametri.durataPranzo = 350_cent;
    meta_.parametri.durataCena = 250_cent;
    meta_.parametri.oraNotte = 1900_cent;
    Aggiungi(2000);
    EXPECT_TRUE(Calcola().cronovia);
}

TEST_F(CalcolaCronoviaTest, NobodySeesSixtyMinutes) {
    Aggiungi(50, {0, 0, 45});
    Aggiungi(149);
    for (int minuti = 1; minuti < 600; ++minuti) {
        tappe_[0].sosta = {0, minuti / 60, minuti % 60};
        tappe_[1].km = minuti;
        const EsitoCalcolo esito = Calcola();
        for (const RigaGriglia& riga : TestiDellaCronovia(*esito.cronovia)) {
            for (const QString& testo : riga) ASSERT_FALSE(testo.contains(u":60"_s)) << testo.toStdString();
        }
    }
}

}  // namespace
}  // namespace cronovia
