// Every control says what it is, and takes what may be typed.
#include <QAbstractButton>
#include <set>

#include "ui/finestra.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class ControlliTest : public prova::FinestraTest {
  protected:
    void SetUp() override { Apri(); }
};

TEST_F(ControlliTest, EveryControlIsNamedForThoseWhoDoNotSeeIt) {
    for (const QWidget* controllo : form_->findChildren<QWidget*>()) {
        const auto* pulsante = qobject_cast<const QAbstractButton*>(controllo);
        const bool muto = pulsante != nullptr
                              ? pulsante->text().isEmpty()
                              : controllo->focusPolicy() != Qt::NoFocus || controllo->inherits("QLineEdit");
        if (!muto || controllo->objectName().startsWith(u"qt_"_s)) continue;
        if (controllo->inherits("QTableCornerButton")) continue;                                       // never shown
        if (controllo->inherits("QAbstractItemView") && controllo->window() != form_.get()) continue;  // of a combo box
        if (qobject_cast<const QComboBox*>(controllo->parentWidget()) != nullptr) continue;
        EXPECT_NE(controllo->accessibleName(), u""_s)
            << controllo->metaObject()->className() << ' ' << controllo->objectName().toStdString();
    }
}

TEST_F(ControlliTest, TabReachesEveryEnabledControl) {
    NuovaMeta(u"lucca"_s);
    Premi(u"cmdItinerario"_s);
    std::set<const QWidget*> visitati;
    for (int i = 0; i < 200; ++i) {
        Tasto(Qt::Key_Tab);
        if (!visitati.insert(QApplication::focusWidget()).second && i > 100) break;
    }
    for (const QWidget* controllo : form_->findChildren<QWidget*>()) {
        const bool tab = (controllo->focusPolicy() & Qt::TabFocus) != 0;
        if (!tab || !controllo->isVisible() || !controllo->isEnabled() || controllo->window() != form_.get()) continue;
        if (controllo->focusProxy() != nullptr ||
            qobject_cast<const QComboBox*>(controllo->parentWidget()) != nullptr) {
            continue;
        }
        const auto* elenco = qobject_cast<const QComboBox*>(controllo);
        const bool visto = visitati.contains(controllo) ||
                           (elenco != nullptr && elenco->isEditable() && visitati.contains(elenco->lineEdit()));
        EXPECT_TRUE(visto) << controllo->metaObject()->className() << ' ' << controllo->objectName().toStdString();
    }
}

TEST_F(ControlliTest, WhatCanBeTyped) {
    Premi(u"cmdNuovo"_s);
    Scrivi(u"txtLocalita"_s, u"città di forlì"_s);
    EXPECT_EQ(Testo(u"txtLocalita"_s), u"CITTÀ DI FORLÌ"_s);
    Scrivi(u"txtNazione"_s, u"italia"_s);
    EXPECT_EQ(Testo(u"txtNazione"_s), u"ITALIA"_s);
    const std::vector<std::pair<QString, QString>> giorni = {{u"1500"_s, u"997"_s}, {u"998"_s, u"997"_s},
                                                             {u"997"_s, u"997"_s},  {u"-1,2x3"_s, u"123"_s},
                                                             {u"12"_s, u"12"_s},    {u"a9"_s, u"9"_s}};
    for (const auto& [battuti, restano] : giorni) {
        ScriviNellElenco(u"cmbGiorni"_s, battuti);
        EXPECT_EQ(Scelta(u"cmbGiorni"_s), restano) << battuti.toStdString();
    }
    ScriviNellElenco(u"cmbMediaKm_0"_s, u"8x5"_s);
    EXPECT_EQ(Scelta(u"cmbMediaKm_0"_s), u"85"_s);
    NuovaMeta(u"lucca"_s);
    EXPECT_EQ(Scelta(u"cmbMediaKm_0"_s), u"75"_s);
    Premi(u"cmdItinerario"_s);
    Scrivi(u"txtTappa"_s, u"forlì"_s);
    EXPECT_EQ(Testo(u"txtTappa"_s), u"FORLÌ"_s);
    Scrivi(u"txtNumStrada"_s, u"tragh. e45"_s);
    EXPECT_EQ(Testo(u"txtNumStrada"_s), u"TRAGH. E45"_s);
    Scrivi(u"txtKm"_s, u"-1.2,a5 "_s);
    EXPECT_EQ(Testo(u"txtKm"_s), u"125"_s);
}

TEST_F(ControlliTest, TheDayStaysWithinItsMonth) {
    Premi(u"cmdNuovo"_s);
    const auto giorni = [this] {
        return Scelta(u"cmbInizio_0"_s) + u'/' + QString::number(Elenco(u"cmbInizio_0"_s).count());
    };
    Scegli(u"cmbInizio_1"_s, u"05"_s);
    Scegli(u"cmbInizio_0"_s, u"31"_s);
    EXPECT_EQ(Testo(u"txtInizioGSett"_s), u"Lun"_s);
    Scegli(u"cmbInizio_1"_s, u"04"_s);
    EXPECT_EQ(giorni(), u"30/30"_s);
    EXPECT_EQ(Testo(u"txtInizioGSett"_s), u"Ven"_s);
    Scegli(u"cmbInizio_1"_s, u"02"_s);
    EXPECT_EQ(giorni(), u"28/28"_s);
    Scegli(u"cmbInizio_2"_s, u"2028"_s);
    EXPECT_EQ(giorni(), u"28/29"_s);
}

TEST_F(ControlliTest, HoursThatDisagreeAreCorrectedWhenTheirListIsLeft) {
    Premi(u"cmdNuovo"_s);
    const auto scegli = [&](const QString& nome, const QString& ora) {
        Trova<QComboBox>(nome).setFocus();
        Scegli(nome, ora);
        EXPECT_EQ(Scelta(nome), ora);  // the way to another hour may lead over this one
        Trova<QLineEdit>(u"txtLocalita"_s).setFocus();
    };
    scegli(u"cmbOra_2"_s, u"21"_s);  // dinner would end after the night begins
    EXPECT_EQ(Scelta(u"cmbOra_2"_s), u"18"_s);
    EXPECT_EQ(Scelta(u"cmbOra_3"_s) + Scelta(u"cmbMin_3"_s), u"2230"_s);
    scegli(u"cmbOra_1"_s, u"15"_s);
    EXPECT_EQ(Scelta(u"cmbOra_1"_s) + Scelta(u"cmbMin_1"_s), u"1130"_s);
}

}  // namespace
}  // namespace cronovia
