// SPDX-License-Identifier: GPL-3.0-or-later
// What holds of hours that others set in every journey: they make nothing earlier, and without them all is as before.
#include <gtest/gtest.h>

#include <random>

#include "schedule/calcola_cronovia.h"
#include "schedule/colonne.h"
#include "store/archive.h"
#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class OreFisseTest : public testing::Test {
  protected:
    // Between the two, both included.
    int Caso(int da, int a) { return std::uniform_int_distribution<int>(da, a)(caso_); }
    bool UnaVoltaSu(int volte) { return Caso(1, volte) == 1; }

    static VincoliTappa Traghetto(std::optional<NumeroGiorno> data, int ora, int navigazione) {
        Vincoli vincoli;
        vincoli.traghetto = TraghettoAOrario::Da(*OraFissa::Da(ora, data), navigazione, 45);
        return vincoli;
    }

    void NuovoViaggio() {
        meta_ = {};
        meta_.dataInizio = NumeroGiorno(730135);
        meta_.oraInizio = Centesimi(Caso(5, 23) * 100);
        meta_.parametri.riposoMinuti = UnaVoltaSu(3) ? 0 : 5 * Caso(1, 4);
        meta_.parametri.riposoOre = Caso(2, 4);
        meta_.parametri.riposoGiorno = 0;  // these are due by the calendar: see below
        meta_.parametri.calcoloSoste = CalcoloSoste::SosteItinerario;
        tappe_.clear();
        const int tappe = Caso(2, 9);
        for (int i = 0; i < tappe; ++i) {
            Tappa tappa;
            tappa.localita = u"TAPPA %1"_s.arg(i);
            tappa.km = i == 0 || UnaVoltaSu(6) ? 0 : Caso(1, 500);
            tappa.tipo = TipoStrada::Autostrada;
            if (UnaVoltaSu(2)) tappa.sosta = {UnaVoltaSu(8) ? Caso(1, 2) : 0, Caso(0, 8), 5 * Caso(0, 11)};
            tappa.fineGiorno = UnaVoltaSu(8);
            if (i > 0 && UnaVoltaSu(5)) {
                tappa.vincoli = Traghetto(Giorno(UnaVoltaSu(2)), Caso(0, 1439), 15 * Caso(1, 200));
            } else if (UnaVoltaSu(12)) {
                tappa.numStrada = u"TRAGH"_s;
            }
            tappe_.push_back(tappa);
        }
    }

    std::optional<NumeroGiorno> Giorno(bool conData) {
        return conData ? std::optional(*meta_.dataInizio + Caso(0, 12)) : std::nullopt;
    }

    // One hour more, at a stage that is returned: to arrive or to visit between, a day for its ferry or a later one.
    std::size_t Aggiungi(const Cronovia& prima) {
        const auto dove = static_cast<std::size_t>(Caso(0, static_cast<int>(tappe_.size()) - 1));
        Vincoli vincoli = tappe_[dove].vincoli.Valore();
        const auto preso = std::find_if(prima.ore.begin(), prima.ore.end(), [&](const EsitoOra& ora) {
            return ora.genere == GenereOra::Partenza && static_cast<std::size_t>(ora.tappa) == dove;
        });
        if (preso != prima.ore.end() && UnaVoltaSu(2)) {
            const OraFissa ora = vincoli.traghetto->Partenza();
            const NumeroGiorno giorno = ora.Data() ? *ora.Data() + Caso(1, 5) : preso->ora.data + Caso(0, 3);
            vincoli = Traghetto(giorno, ora.Minuti(), vincoli.traghetto->MinutiNavigazione()).Valore();
        } else if (UnaVoltaSu(4)) {
            vincoli.visite = OreDiVisita::Da(Caso(9 * 60, 12 * 60), Caso(14 * 60, 17 * 60 + 30));
        } else {
            const auto nonPrima = OraFissa::Da(Caso(0, 1439), Giorno(UnaVoltaSu(2)));
            const auto nonDopo = OraFissa::Da(Caso(0, 1439), Giorno(UnaVoltaSu(2)));
            vincoli.arrivo = OreDiArrivo::Da(nonPrima, UnaVoltaSu(2) ? nonDopo : std::nullopt);
            if (!vincoli.arrivo || UnaVoltaSu(4)) vincoli.arrivo = OreDiArrivo::Da(std::nullopt, nonDopo);
        }
        tappe_[dove].vincoli = vincoli;
        return dove;
    }

    Cronovia Calcola() {
        LettoreGuida guida(archive_);
        Progress progress;
        return *CalcolaCronovia(meta_, OrarioCorretto(meta_.parametri), tappe_, guida, progress).cronovia;
    }

    // By stage: when its leg and its stop have ended, in hundredths of an hour; 0 for those without.
    std::vector<std::array<double, 2>> Momenti(const Cronovia& cronovia) const {
        std::vector<std::array<double, 2>> momenti(tappe_.size());
        for (const RigaCronovia& riga : cronovia.righe) {
            if (!ConMomento(riga.genere) || riga.genere == GenereRiga::Attesa) continue;
            momenti[static_cast<std::size_t>(riga.tappa)][riga.genere == GenereRiga::Sosta] =
                (riga.data - *meta_.dataInizio) * 2400.0 + double{riga.ora.Valore()};
        }
        return momenti;
    }

    prova::CartellaDiProva cartella_;
    Archive archive_ = Archive::Open(cartella_.Path());
    std::mt19937 caso_{20270628};
    Meta meta_;
    std::vector<Tappa> tappe_;
};

TEST_F(OreFisseTest, NothingIsEarlierForAnHourMore) {
    // Pieces of whole kilometres, which the hour cuts elsewhere; meals that are taken within minutes of their hour.
    constexpr double kArrotondamenti = 25;
    for (int viaggio = 0; viaggio < 400; ++viaggio) {
        NuovoViaggio();
        const std::vector<Tappa> senza = tappe_;
        const Cronovia prima = Calcola();
        const std::size_t dove = Aggiungi(prima);
        const VincoliTappa& nuovi = tappe_[dove].vincoli;
        const bool soloNonDopo = nuovi->arrivo && !nuovi->arrivo->NonPrima();  // tells of lateness, changes nothing
        const auto momenti = Momenti(prima);
        const auto dopo = Momenti(Calcola());
        for (std::size_t i = 0; i < tappe_.size(); ++i) {
            for (const std::size_t che : {0U, 1U}) {
                if (soloNonDopo || i < dove || (i == dove && che == 0 && !nuovi.ConTraghetto())) {
                    ASSERT_EQ(dopo[i][che], momenti[i][che]) << viaggio << ": stage " << i << " comes before";
                } else {
                    ASSERT_GE(dopo[i][che], momenti[i][che] - kArrotondamenti) << viaggio << ": stage " << i;
                }
            }
        }
        tappe_ = senza;
        ASSERT_EQ(TestiDellaCronovia(Calcola()), TestiDellaCronovia(prima)) << viaggio;
    }
}

// Where an hour more does make something earlier, and why that stays: to wait at the start is to leave later, and who
// leaves later is now and then there earlier, without any hour that others set: a meal within minutes of its hour takes
// the place of a short rest, whole days of rest fall due by the date on which a long stop ended, a ferry lands when a
// meal has been had on board. Such journeys stay as they are, and who waits goes on like who left at that hour.
TEST_F(OreFisseTest, WaitingAtTheStartIsLeavingLater) {
    const auto tappa = [](int km, Durata sosta = {}) {
        Tappa una;
        una.localita = u"TAPPA"_s;
        una.km = km;
        una.tipo = TipoStrada::Autostrada;
        una.sosta = sosta;
        return una;
    };
    NuovoViaggio();
    meta_.parametri = {};
    meta_.parametri.riposoMinuti = 20;
    meta_.parametri.riposoDopoGiorni = 1;
    meta_.parametri.calcoloSoste = CalcoloSoste::SosteItinerario;
    Tappa mare = tappa(0);
    mare.vincoli = Traghetto(meta_.dataInizio, 10 * 60, 120);
    const std::vector<std::tuple<int, int, std::vector<Tappa>>> casi = {
        {9 * 60 + 5, 9 * 60 + 12, {tappa(0), tappa(300)}},
        {16 * 60 + 50, 17 * 60 + 10, {tappa(0), tappa(1, {1, 1, 0}), tappa(450)}},
        {9 * 60 + 25, 9 * 60 + 55, {tappa(0), mare, tappa(75)}}};
    for (const auto& [parte, attende, tappe] : casi) {
        const auto arrivo = [&](int partenza) {
            meta_.oraInizio = InCentesimi({0, 0, partenza}, kGiornoOrologio);
            return *UltimoMomento(Calcola().righe);
        };
        tappe_ = tappe;
        const Istante dopo = arrivo(attende);
        EXPECT_TRUE(dopo < arrivo(parte)) << parte;
        Vincoli vincoli;
        vincoli.arrivo = OreDiArrivo::Da(OraFissa::Da(attende), std::nullopt);
        tappe_.front().vincoli = vincoli;
        EXPECT_TRUE(dopo == arrivo(parte)) << parte;
    }
}

}  // namespace
}  // namespace cronovia
