// SPDX-License-Identifier: GPL-3.0-or-later
// Whether what is drawn can be told from its ground: texts by a contrast of 4.5, signs by one of 3, light and dark.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMap>
#include <QRegularExpression>

#include "exchange/pagina/aspetto_pagina.h"
#include "mappa/pittura_mappa.h"
#include "schedule/strisce.h"
#include "ui/aiuto/preferenze.h"
#include "ui/comuni/colori.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

constexpr double kTesto = 4.5;
constexpr double kSegno = 3;

class ContrastoTest : public testing::Test {
  protected:
    ~ContrastoTest() override {
        QApplication::setPalette(QPalette());
        RecordProperty("coppie", coppie_);
        RecordProperty("minimo", QByteArray::number(minimo_, 'f', 2).constData());
    }

    void Misura(const QString& che, const QColor& colore, const QColor& sfondo, double minimo) {
        const QColor visto = Misto(sfondo, colore, static_cast<int>(colore.alphaF() * 100));
        const double contrasto = Contrasto(visto, sfondo);
        EXPECT_GE(contrasto, minimo) << che.toStdString() << ": " << visto.name().toStdString() << " on "
                                     << sfondo.name().toStdString();
        minimo_ = std::min(minimo_, contrasto / minimo);
        ++coppie_;
    }

    void Ruoli(const QString& tema, const QPalette& palette) {
        struct Coppia {
            QPalette::ColorRole testo;
            QPalette::ColorRole sfondo;
            bool ancheSpento;
        };
        for (const Coppia& coppia :
             std::initializer_list<Coppia>{{QPalette::WindowText, QPalette::Window, true},
                                           {QPalette::Text, QPalette::Base, true},
                                           {QPalette::Text, QPalette::AlternateBase, true},
                                           {QPalette::ButtonText, QPalette::Button, true},
                                           {QPalette::ButtonText, QPalette::Window, true},
                                           {QPalette::HighlightedText, QPalette::Highlight, true},
                                           {QPalette::ToolTipText, QPalette::ToolTipBase, false},
                                           {QPalette::Link, QPalette::Base, false},
                                           {QPalette::Link, QPalette::Window, false},
                                           {QPalette::PlaceholderText, QPalette::Base, false}}) {
            for (const auto gruppo : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
                if (gruppo == QPalette::Disabled && !coppia.ancheSpento) continue;
                const QString che =
                    u"%1: role %2 on %3, group %4"_s.arg(tema).arg(coppia.testo).arg(coppia.sfondo).arg(gruppo);
                Misura(che, palette.color(gruppo, coppia.testo), palette.color(gruppo, coppia.sfondo), kTesto);
            }
        }
        for (const auto sfondo : {QPalette::Base, QPalette::AlternateBase, QPalette::Window, QPalette::Highlight}) {
            const auto testo = sfondo == QPalette::Highlight ? QPalette::HighlightedText : QPalette::Text;
            Misura(tema + u": late"_s, ColoreRitardo(palette, sfondo, testo), palette.color(sfondo), kTesto);
        }
    }

    void Mappa(const QString& tema, const ColoriMappa& colori) {
        for (const QColor& sfondo : {colori.mare, colori.terra}) {
            Misura(tema + u": names on the map"_s, colori.testo, sfondo, kTesto);
            for (const QColor& segno : {colori.vie[0], colori.vie[1], colori.corrente}) {
                Misura(tema + u": the way on the map"_s, segno, sfondo, kSegno);
            }
        }
    }

  private:
    int coppie_ = 0;
    double minimo_ = 21;
};

TEST_F(ContrastoTest, OfTheWindowInItsColours) {
    for (const auto& [tema, colori] :
         {std::pair{u"light"_s, Colori::Chiari}, {u"dark"_s, Colori::Scuri}, {u"system"_s, Colori::ComeIlSistema}}) {
        Preferenze preferenze;
        preferenze.colori = colori;
        ApplicaColori(preferenze);
        const QPalette palette = ConDisabilitatiLeggibili(QApplication::palette());
        Ruoli(tema, palette);
        Mappa(tema, ColoriDellaFinestra(palette));
    }
}

// Each is told from the paper by its ground or by its outline.
TEST_F(ContrastoTest, OfTheBarsOnPaper) {
    for (int genere = 0; genere < kGeneriPezzo; ++genere) {
        const AspettoPezzo& aspetto = Aspetto(static_cast<GenerePezzo>(genere));
        Misura(u"bar"_s, QColor::fromRgb(aspetto.segno), Qt::white, kSegno);
    }
}

TEST_F(ContrastoTest, OfThePageForTheTelephone) {
    const QString stile = StilePagina();
    const qsizetype scuri = stile.indexOf(u"prefers-color-scheme:dark"_s);
    ASSERT_GT(scuri, 0);
    static const QRegularExpression colore(u"--(\\w+):(#[0-9a-f]+)"_s);
    for (const QString& tema : {stile.left(scuri), stile.mid(scuri)}) {
        QMap<QString, QColor> colori;
        for (auto trovati = colore.globalMatch(tema); trovati.hasNext();) {
            const auto trovato = trovati.next();
            colori[trovato.captured(1)] = QColor(trovato.captured(2));
        }
        for (const QString& sfondo : {u"carta"_s, u"fondo"_s, u"oggi"_s}) {
            for (const QString& testo : {u"testo"_s, u"tenue"_s, u"segno"_s, u"avviso"_s}) {
                ASSERT_TRUE(colori.contains(testo) && colori.contains(sfondo));
                Misura(testo + u" on "_s + sfondo, colori[testo], colori[sfondo], kTesto);
            }
        }
        static const QRegularExpression via(u"\\.(?:via|pari)\\{[^}]*stroke:(#[0-9a-f]+)"_s);
        for (const QString& sfondo : {u"mare"_s, u"terra"_s}) {
            Misura(u"names on the map"_s, colori[u"testo"_s], colori[sfondo], kTesto);
            for (auto trovate = via.globalMatch(stile); trovate.hasNext();) {
                Misura(u"the way on the map"_s, QColor(trovate.next().captured(1)), colori[sfondo], kSegno);
            }
        }
    }
}

}  // namespace
}  // namespace cronovia
