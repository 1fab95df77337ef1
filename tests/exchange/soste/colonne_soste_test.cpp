// SPDX-License-Identifier: GPL-3.0-or-later
// How the columns of a table of places are found.
#include "exchange/soste/colonne_soste.h"

#include <gtest/gtest.h>

#include "interaction/failure.h"
#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

QString Testo(const PostoColonne& posto) {
    QStringList numeri;
    for (const int uno : posto) numeri += QString::number(uno);
    return numeri.join(u' ');
}

TEST(ColonneSoste, AreFoundByTheirNamesOrByWhatStandsThere) {
    const std::pair<QString, QString> dette[] = {
        {u"LAT;Lon;Titolo"_s, u"2 0 1 -1 -1 -1"_s},
        {u"x;y;Descrizione;nota"_s, u"2 1 0 -1 -1 3"_s},
        {u"nome;nome;categoria;descrizione"_s, u"0 -1 -1 2 3 -1"_s},
    };
    for (const auto& [prima, atteso] : dette) EXPECT_EQ(Testo(ColonneDette(prima.split(u';'))), atteso);
    const std::pair<QString, QString> indovinate[] = {
        {u"7;Al mulino;45,07;7,68"_s, u"1 2 3 -1 -1 -1"_s},       // a number before the name is none
        {u"3;2;Al mulino;-9,13;38,72"_s, u"2 4 3 -1 -1 -1"_s},    // longitude first, and not of Europe the other way
        {u"45° 4' N;7° 41' E;Al mulino"_s, u"2 0 1 -1 -1 -1"_s},  // in degrees
        {u"Al mulino;acqua"_s, u"0 -1 -1 -1 -1 -1"_s},           {u";12,5"_s, u"-1 -1 -1 -1 -1 -1"_s},
    };
    for (const auto& [riga, atteso] : indovinate) EXPECT_EQ(Testo(ColonneIndovinate(riga.split(u';'))), atteso);
}

TEST(ColonneSoste, AreReadAsTheyAreTold) {
    const QStringList prima = {u"Dove"_s, u"N"_s, u"E"_s};
    EXPECT_EQ(Testo(LeggiColonne(u" name = dove , lat=2,LON=e"_s, prima)), u"0 1 2 -1 -1 -1"_s);
    for (const QString& storta : {u"nome=Dove,lat=2"_s, u"nome=Dove,lat=0,lon=3"_s, u"nome=Dove,lat=2,lon=4"_s,
                                  u"nome"_s, u""_s, u"quota=1"_s}) {
        EXPECT_THROW(LeggiColonne(storta, prima), Failure) << storta.toStdString();
    }
}

}  // namespace
}  // namespace cronovia
