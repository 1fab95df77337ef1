// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/json.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <array>

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

QString Scritto(const QString& testo) {
    QString tutto;
    QTextStream uscita(&tutto);
    {
        ScrittoreJson json(uscita);
        json.ApreOggetto();
        json.Nome(u"t");
        json.Testo(testo);
        json.ChiudeOggetto();
    }
    uscita.flush();
    return tutto;
}

TEST(ScrittoreJson, EveryTextIsWrittenSoThatAnotherProgramReadsItAgain) {
    struct Caso {
        QString testo;
        QString scritto;
    };
    for (const Caso& caso : std::array<Caso, 10>{{
             {u""_s, u""_s},
             {u"Sant'Anna / Fès"_s, u"Sant'Anna / Fès"_s},
             {u"\"A\\B\""_s, u"\\\"A\\\\B\\\""_s},
             {u"\b\f\n\r\t"_s, u"\\b\\f\\n\\r\\t"_s},
             {u"a\u0001\u001fb\u007f"_s, u"a\\u0001\\u001fb\\u007f"_s},
             {QString(1, QChar(0)) + u"0"_s, u"\\u00000"_s},
             {u"\U0001F690 in viaggio"_s, u"\U0001F690 in viaggio"_s},
             {u"x"_s + QChar(0xD83D), u"x\\ud83d"_s},
             {QChar(0xDE90) + u"x"_s, u"\\ude90x"_s},
             {QString(QChar(0xD83D)) + u"\U0001F690"_s + QChar(0xDFFF), u"\\ud83d\U0001F690\\udfff"_s},
         }}) {
        const QString scritto = Scritto(caso.testo);
        EXPECT_EQ(scritto, u"{\n    \"t\": \""_s + caso.scritto + u"\"\n}\n"_s);
        EXPECT_EQ(QJsonDocument::fromJson(scritto.toUtf8())[u"t"_s].toString(), caso.testo);
    }
}

}  // namespace
}  // namespace cronovia
