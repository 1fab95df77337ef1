#include "schedule/calcola_cronovia.h"

#include <gtest/gtest.h>

#include "store/archive.h"
#include "support/prova.h"
#include "viaggio_di_prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

struct Titoli : Progress {
    void Title(const QString& title) override { titoli += title; }
    QStringList titoli;
};

class CalcolaCronoviaTest : public testing::Test {
  protected:
    CalcolaCronoviaTest() {
        meta_.dataInizio = NumeroGiorno(730135);
        meta_.oraInizio = 800_cent;
        meta_.parametri = prova::ParametriSemplici();
    }

    void Aggiungi(int km, Durata sosta = {}, std::optional<TipoStrada> tipo = TipoStrada::Autostrada) {
        tappe_.push_back({u"TAPPA %1"_s.arg(tappe_.size()), {}, km, tipo, sosta, false, {}});
    }

    EsitoCalcolo Calcola() {
        LettoreGuida guida(archive_);
        return CalcolaCronovia(meta_, tappe_, guida, progress_);
    }

    // Ten stages of an hour's drive, each with a stop of nine hours, a whole visiting day.
    void ViaggioDiVisite() {
        for (int i = 0; i < 10; ++i) Aggiungi(100, {1, 0, 0});
    }

    prova::CartellaDiProva cartella_;
    Archive archive_ = Archive::Open(cartella_.Percorso());
    Titoli progress_;
    Meta meta_;
    std::vector<Tappa> tappe_;
};

TEST_F(CalcolaCronoviaTest, FitsTheStopsToTheDaysWanted) {
    ViaggioDiVisite();
    for (const int giorni : {4, 8, 15}) {
        meta_.giorniAdeguamento = giorni;
        const EsitoCalcolo esito = Calcola();
        EXPECT_EQ(esito.cronovia->fine->giorni, giorni);
        EXPECT_EQ(esito.messaggio, u"Elaborazione conclusa in %1 tentativi!"_s.arg(esito.tentativi));
    }
}

TEST_F(CalcolaCronoviaTest, GivesUpAfterElevenPasses) {
    ViaggioDiVisite();
    meta_.giorniAdeguamento = 1;
    tappe_[0].km = 5000;
    const EsitoCalcolo esito = Calcola();
    EXPECT_EQ(esito.tentativi, 11);
    EXPECT_EQ(esito.messaggio, u"Elaborazione impossibile! (tentativi effettuati n. 11)"_s);
    EXPECT_TRUE(esito.cronovia) << "the last pass stays";
    // 59 hours of driving and 90 of visits are 16 visiting days: (16 + 1) * 1.25 + 0.5 is the first guess.
    EXPECT_EQ(progress_.titoli.value(1), u"Calcolo della cronovia, text n. 1/11 [21/1*I=0,047]"_s);
}

TEST_F(CalcolaCronoviaTest, WithoutKilometresDoesNotScale) {
    Aggiungi(0, {2, 0, 0});
    meta_.giorniAdeguamento = 5;
    const EsitoCalcolo esito = Calcola();
    EXPECT_EQ(esito.messaggio, u"Elaborazione impossibile! (tentativi effettuati n. 1)"_s);
    EXPECT_EQ(TestiDellaRiga(*esito.cronovia, 0)[Colonna::Sosta], u"02:00:00"_s);
    for (const QString& testo : TestiFine(*esito.cronovia)) EXPECT_EQ(testo, QString());
}

TEST_F(CalcolaCronoviaTest, RefusesWhatCannotBeComputed) {
    Aggiungi(100, {}, std::nullopt);
    meta_.parametri.mediaKm[Indice(TipoStrada::Autostrada)] = 0;
    EXPECT_TRUE(Calcola().cronovia) << "an unused road type needs no speed; a blank one is a local road";
    meta_.parametri.mediaKm[Indice(TipoStrada::Locale)] = 0;
    EXPECT_EQ(prova::MessaggioDi([&] { Calcola(); }),
              u"Calcolo impossibile: la velocità media per le strade di tipo «Locale» è 0."_s);
    meta_.parametri = prova::ParametriSemplici();
    meta_.parametri.fineVisita = 0_cent;
    EXPECT_TRUE(prova::MessaggioDi([&] { Calcola(); }).contains(u"fine visite"_s));
    meta_.dataInizio.reset();
    EXPECT_TRUE(prova::MessaggioDi([&] { Calcola(); }).contains(u"data d'inizio"_s));
}

TEST_F(CalcolaCronoviaTest, EndsAlthoughAStopBehindTheLastPieceIsStretchedAgainAndAgain) {
    Aggiungi(0);
    Aggiungi(140, {0, 4, 0});
    meta_.giorniAdeguamento = 997;
    EXPECT_LE(Calcola().cronovia->righe.back().data - *meta_.dataInizio, 1000);
}

TEST_F(CalcolaCronoviaTest, StopsOfAHundredDaysCountInFull) {
    Aggiungi(100, {150, 0, 0});
    Aggiungi(100);
    EXPECT_EQ(Calcola().cronovia->fine->giorni, 151);
}

}  // namespace
}  // namespace cronovia
