#include "schedule/rientro.h"

#include <gtest/gtest.h>

#include "support/prova.h"
#include "viaggio_di_prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Viaggio;

QStringList Limiti(const Viaggio& viaggio) {
    Passata passata = viaggio.Simula();
    Progress progress;
    SegnaRientro(passata.righe, passata.data, passata.ora, OrarioCorretto(viaggio.parametri), progress);
    QStringList limiti;
    for (const RigaGriglia& testi : prova::Testi(viaggio, passata.righe)) limiti += testi[Colonna::LimiteRitorno];
    return limiti;
}

TEST(Rientro, GoesBackThroughMealsAndNights) {
    // A at 10, a stop until 15, B at 18, dinner on the way at 19, C at 21. From 21 back: an hour to 20, another one and
    // the dinner to 18, three to 15, two to 13. From there, two hours and the lunch lead home from A at 10; from B,
    // three more would have had to begin at 7, long before B is reached.
    EXPECT_EQ(Limiti(Viaggio().Tappa("P", 0).Tappa("A", 200, {0, 5, 0}).Tappa("B", 300).Tappa("C", 200)),
              QStringList(
                  {QString(), u"<01/01-10:00"_s, QString(), u">01/01-18:00"_s, u">01/01-20:00"_s, u">01/01-21:00"_s}));
    // 1,500 km: 12:00, 19:00, 22:00 and 11:00 of the next day. Back from 11:00: 300 km to 8:00; 200 km to 6:00, which
    // is 20:00 of the day before, at the end of a dinner begun at 19:00; and so on to 13:00 and noon.
    EXPECT_EQ(Limiti(Viaggio().Tappa("A", 1500)),
              QStringList({u">01/01-13:00"_s, u">01/01-20:00"_s, u">02/01-08:00"_s, u">02/01-11:00"_s}));
}

TEST(Rientro, TheLastDrivingRowHasNoMarkBeforeAStop) {
    EXPECT_EQ(Limiti(Viaggio().Tappa("A", 100).Tappa("B", 100, {0, 1, 0})),
              QStringList({u">01/01-10:00"_s, u"<01/01-08:00"_s, u">01/01-11:00"_s}));
}

TEST(Rientro, EndsWithATimetableThatLeavesNoTimeToDrive) {
    Viaggio viaggio;
    viaggio.parametri.oraColazione = 1200_cent;
    viaggio.parametri.oraPranzo = 1300_cent;
    viaggio.parametri.durataPranzo = 350_cent;
    viaggio.parametri.durataCena = 250_cent;
    viaggio.parametri.oraNotte = 1900_cent;
    EXPECT_FALSE(Limiti(viaggio.Tappa("A", 2000)).isEmpty());
}

}  // namespace
}  // namespace cronovia
