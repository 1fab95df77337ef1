// SPDX-License-Identifier: GPL-3.0-or-later
#include "trips/orario.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

const QString kStandard = u"0900 1230+0230 2000+0145 2230 0900-1800 0600"_s;

// A timetable: breakfast, lunch and its length, dinner and its length, night, visits from and to, ferry; what is left
// out is as in the standard one.
ParametriViaggio Orari(const QString& testo) {
    const QString intero = testo + kStandard.mid(testo.size());
    ParametriViaggio p;
    qsizetype indice = 0;
    for (Centesimi* orario : {&p.oraColazione, &p.oraPranzo, &p.durataPranzo, &p.oraCena, &p.durataCena, &p.oraNotte,
                              &p.inizioVisita, &p.fineVisita, &p.oreTraghetti}) {
        *orario = LeggiOrario(QStringView(intero).mid(5 * indice++, 4));
    }
    return p;
}

struct Caso {
    const char* regola;
    QString prima;
    QString dopo;
};

TEST(Orario, TheStandardTimetableStandsAsItIs) {
    const OrarioCorretto orario(Orari(kStandard));
    EXPECT_EQ(orario.Parametri(), ParametriViaggio());
    EXPECT_EQ(orario.GuidaGiorno(), 925_cent);   // 3:30 + 5:00 + 0:45
    EXPECT_EQ(orario.VisitaGiorno(), 900_cent);  // 9:00 to 18:00
    EXPECT_EQ(orario.Riposo(), 25_cent);
}

TEST(Orario, AnOrderThatCannotBeKeptIsReset) {
    const QList<Caso> casi = {
        {"lunch ends too near to dinner", u"0900 1530+0230 1800+0145 2230"_s, u"0900 1130+0230 1800+0145 2230"_s},
        {"dinner ends in the night", u"0900 1230+0230 2100+0145 2230"_s, u"0900 1230+0230 1800+0145 2230"_s},
        {"breakfast too near to lunch", u"1145 1230+0230 2000+0145 2230"_s, u"0045 1230+0230 2000+0145 2230"_s},
        {"dinner pushes lunch, lunch pushes breakfast", u"1100 1530+0230 2145+0200 2230 1100-1800"_s,
         u"0000 1130+0230 1845+0200 2230 1100-1800"_s},
        {"no reset helps", u"0900 1230+0230 1845+0245 2000"_s, u"0900 1230+0230 1845+0245 2000"_s},
        {"visits outside the day", u"0900 1230+0230 2000+0145 2230 0800-2400"_s,
         u"0900 1230+0230 2000+0145 2230 0900-2230"_s}};
    for (const Caso& caso : casi) {
        EXPECT_EQ(InOrdine(Orari(caso.prima)), Orari(caso.dopo)) << caso.regola;
    }
}

TEST(Orario, LimitsOfTheSingleHours) {
    const QList<Caso> casi = {
        {"a lunch over 3:30", u"0900 1230+0345 2000+0145 2230"_s, u"0900 1230+0200 2000+0145 2230"_s},
        {"a dinner over 2:30", u"0900 1230+0230 1900+0245 2230"_s, u"0900 1230+0230 1900+0130 2230"_s},
        {"breakfast after 12, visits had moved", u"1215 1400+0230 2000+0145 2230"_s,
         u"0900 1400+0230 2000+0145 2230 1215-1800"_s},
        {"lunch before 10", u"0500 0900+0230 2000+0145 2230"_s, u"0500 1000+0230 2000+0145 2230"_s},
        {"lunch after 16", u"0900 1630+0230 2000+0145 2230"_s, u"0900 1600+0230 2000+0145 2230"_s},
        {"dinner before 17", u"0900 1230+0230 1630+0145 2230"_s, u"0900 1230+0230 2000+0145 2230"_s},
        {"dinner after 22", u"0900 1230+0230 2215+0100 2400"_s, u"0900 1230+0230 2000+0100 2400"_s},
        {"night before 19", u"0900 1230+0230 1700+0100 1830"_s, u"0900 1230+0230 1700+0100 1900"_s},
        {"night before the end of dinner", u"0900 1230+0230 2000+0145 1800 0900-1700"_s,
         u"0900 1230+0230 1800+0145 1809 0900-1700"_s},
        {"lunch of 3:30 at 10, dinner at 22", u"0900 1000+0330 2200+0130 2400"_s, u"0900 1000+0330 2200+0130 2400"_s},
        {"lunch at 16, dinner of 2:30", u"0900 1600+0200 2000+0230 2400"_s, u"0900 1600+0200 2000+0230 2400"_s},
        {"breakfast at 12, visits had moved, dinner at 17", u"1200 1300+0230 1700+0145 2230"_s,
         u"1200 1300+0230 1700+0145 2230 1200-1800"_s},
        {"night after 24", u"0900 1230+0230 2000+0145 2500"_s, u"0900 1230+0230 2000+0145 2400"_s},
        {"a ferry without time", u"0900 1230+0230 2000+0145 2230 0900-1800 0000"_s,
         u"0900 1230+0230 2000+0145 2230 0900-1800 0100"_s},
        {"the longest ferry of the lists", u"0900 1230+0230 2000+0145 2230 0900-1800 2445"_s,
         u"0900 1230+0230 2000+0145 2230 0900-1800 2445"_s}};
    for (const Caso& caso : casi) {
        EXPECT_EQ(OrarioCorretto(Orari(caso.prima)).Parametri(), Orari(caso.dopo)) << caso.regola;
    }
}

TEST(Orario, DayLengthsAreThoseBeforeTheLimits) {
    const OrarioCorretto orario(Orari(u"0900 1630+0230 2000+0145 2230 0800-2300"_s));
    EXPECT_EQ(orario.Parametri().oraPranzo, 1600_cent);
    EXPECT_EQ(orario.GuidaGiorno(), 750_cent + 100_cent + 75_cent);
    EXPECT_EQ(orario.VisitaGiorno(), 1350_cent);  // 9:00 to 22:30
    ParametriViaggio altri;
    altri.riposoMinuti = 30;
    const OrarioCorretto con = orario.Con(altri);
    EXPECT_TRUE(StessiOrari(con.Parametri(), orario.Parametri()) && !StessiOrari(con.Parametri(), altri));
    EXPECT_EQ(con.VisitaGiorno(), 1350_cent);
    EXPECT_EQ(con.Parametri().riposoMinuti, 30);
    EXPECT_EQ(con.Riposo(), 50_cent);
}

}  // namespace
}  // namespace cronovia
