// SPDX-License-Identifier: GPL-3.0-or-later
// What a recovery file gives back.
#include "app/recupero.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

TEST(RecuperoTest, GivesBackAllThatAStageAndATripCarry) {
    const prova::CartellaDiProva cartella;
    cartella.Crea();
    Vincoli vincoli;
    vincoli.traghetto = TraghettoAOrario::Da(*OraFissa::Da(22 * 60, NumeroGiorno(740000)), 510, 60);
    vincoli.nota = *Appunto<vincoli::Nota>::Da(u"Ponte 7"_s);
    LavoroSospeso lavoro{};
    lavoro.righe = {Tappa{u"LIVORNO"_s, {}, 0, {}, {}, false, {}, true},
                    Tappa{u"OLBIA"_s, u"TRAGH"_s, 0, {}, {}, false, {}}};
    lavoro.righe[1].vincoli = vincoli;
    lavoro.campi.dataInizio = lavoro.caricati.dataInizio = lavoro.letta.meta.dataInizio = NumeroGiorno(740000);
    lavoro.campi.scadenza = Scadenza::Leggi(u"28062027", u"20:00");
    lavoro.campi.prezzi = {950, 1859, 78, {}};
    Recupero recupero(cartella.Path());
    {
        Recupero altra(cartella.Path());  // a window that lives, though it may not answer: its work is its own
        altra.Segui(lavoro, QDateTime::currentDateTime());
        EXPECT_EQ(recupero.Rimasti(), QStringList());
        QFile::remove(cartella.Path() + u"/Cronovia.recupero"_s);
        altra.Segui(lavoro, QDateTime::currentDateTime());
        recupero.Segui(lavoro, QDateTime::currentDateTime());
        recupero.Segui({}, {});
    }
    ASSERT_EQ(recupero.Rimasti().size(), 1);
    EXPECT_TRUE(recupero.Leggi(recupero.Rimasti().front()).lavoro == lavoro);
}

}  // namespace
}  // namespace cronovia
