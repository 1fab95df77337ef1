// Every control is there under its name, says what it is, and takes what may be typed.
#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <set>

#include "ui/finestra.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class ControlliTest : public prova::FinestraTest {
  protected:
    void SetUp() override { Apri(); }
};

TEST_F(ControlliTest, Captions) {
    const std::vector<std::pair<QString, QString>> pulsanti = {
        {u"cmdCalcola"_s, u"&Calcola"_s},
        {u"cmdItinerario"_s, u"&Itinerario"_s},
        {u"cmdCancItin"_s, u"C&anc.Itin."_s},
        {u"cmdEsce"_s, u"&Esce"_s},
        {u"cmdInserisce"_s, u"&Inserisce tappa"_s},
        {u"cmdAggiunge"_s, u"&Aggiunge riga vuota"_s},
        {u"cmdCancella"_s, u"&Cancella riga/tappa"_s},
        {u"cmdAzzeraSoste"_s, u"A&zzera soste itiner."_s},
        {u"cmdCerca"_s, u"C&erca località"_s},
        {u"cmdMemorizza"_s, u"&Salva Reset"_s},
        {u"cmdFine"_s, u"&Fine inser."_s},
        {u"cmdMapPoint"_s, u"&Altri &Pacch."_s},
        {u"cmdDefault_0"_s, u"Sa&lva"_s},
        {u"cmdDefault_1"_s, u"Car&ica"_s},
        {u"cmdDefault_2"_s, u"&Reset"_s},
        {u"chkEndDay"_s, u"Fine giornata"_s},
        {u"chkKm"_s, u"Km. progress."_s},
        {u"cmdHelpPeriodo"_s, u"[?]"_s},
        {u"cmdHelpVelocita"_s, u"[?]"_s},
        {u"cmdHelpTempi"_s, u"[?]"_s},
        {u"cmdHelpInserimento"_s, u"[?]"_s},
    };
    for (const auto& [nome, scritta] : pulsanti) EXPECT_EQ(Trova<QAbstractButton>(nome).text(), scritta);
    const std::vector<std::pair<QString, QString>> riquadri = {
        {u"frmMetePeriodo"_s, u"Periodo del viaggio:"_s},
        {u"frmMeteVelocita"_s, u"Percorrenze:"_s},
        {u"frmMeteTempi"_s, u"Tempi tecnici giornalieri/Riposi/Visite:"_s},
        {u"frmInputBox"_s, u"Inserimento itinerario:"_s}};
    for (const auto& [nome, titolo] : riquadri) EXPECT_EQ(Trova<QGroupBox>(nome).title(), titolo);
    EXPECT_EQ(Trova<QLabel>(u"lblElaborazione"_s).text(),
              u"Sposta il mouse sui pulsanti/campi attivi per istruzioni."_s);
}

TEST_F(ControlliTest, TooltipsOfTheEntryFields) {
    const QString sosta = u"Indicare l'eventuale sosta (gg:hh:mm, obbligatorio con km. 0)"_s;
    const std::vector<std::pair<QString, QString>> attesi = {
        {u"txtRiga"_s, u"Numero cronologico della tappa (automatico)"_s},
        {u"txtTappa"_s, u"Indicare la località di arrivo"_s},
        {u"txtNumStrada"_s,
         u"Indicare il Numero della strada per giungere alla località descritta; se contiene "
         "\"TRAGH\" indica uso di Traghetto"_s},
        {u"txtKm"_s,
         u"Distanza in Km. (obbligatoria in alternativa ad una sosta); vedere informazioni aggiuntive su "
         "[?]"_s},
        {u"cmbTipoStrada"_s, u"Tipo di strada"_s},
        {u"cmbSosta_0"_s, sosta},
        {u"cmbSosta_1"_s, sosta},
        {u"cmbSosta_2"_s, sosta},
        {u"chkEndDay"_s, u"Forza la sosta fino alla fine della giornata"_s},
        {u"chkKm"_s,
         u"Se attivo, inserendo un valore superiore al progressivo del giorno precedente, viene inserita "
         "la differenza"_s},
        {u"cmdEsce"_s, u"Esce dal form"_s}};
    for (const auto& [nome, testo] : attesi) EXPECT_EQ(Trova<QWidget>(nome).toolTip(), testo);
}

TEST_F(ControlliTest, EveryControlIsThereAndNamedForThoseWhoDoNotSeeIt) {
    const std::vector<std::pair<QString, int>> serie = {
        {u"cmbInizio"_s, 5}, {u"txtFine"_s, 7}, {u"cmbMediaKm"_s, 4}, {u"lblTipoStrada"_s, 4}, {u"txtKmTot"_s, 5},
        {u"txtTempo"_s, 5},  {u"cmbOra"_s, 9},  {u"cmbMin"_s, 9},     {u"cmdDefault"_s, 3},    {u"cmbSosta"_s, 3}};
    for (const auto& [nome, quanti] : serie) {
        for (int i = 0; i < quanti; ++i) EXPECT_NO_THROW(Trova<QWidget>(u"%1_%2"_s.arg(nome).arg(i)));
    }
    for (const auto* nome :
         {"txtCodice",   "txtLocalita",     "txtNazione",        "txtInizioGSett", "cmbGiorni",    "cmbSoste",
          "txtTragh",    "cmbRipM",         "cmbRipH",           "cmbRipG",        "cmbRipGG",     "frmMeteInizio",
          "frmMeteFine", "frmBottoni",      "frmInsItOperativa", "txtBase",        "txtPerc",      "mfgTab",
          "cmbRicerca",  "cmbRicercaTappa", "cmdNuovo",          "cmdRicerca",     "cmdSalva",     "cmdCancMeta",
          "cmdStampa",   "cmdGuidaCitta",   "cmdImport",         "cmdExport",      "cmdRicalcola", "cmdRitorno",
          "cmdDuplica",  "cmdTrasferisce",  "txtTappa",          "txtNumStrada",   "txtKm",        "cmbTipoStrada"}) {
        EXPECT_NO_THROW(Trova<QWidget>(QString::fromLatin1(nome)));
    }
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
    const std::vector<std::pair<QString, QString>> giorni = {
        {u"1500"_s, u"997"_s}, {u"998"_s, u"997"_s}, {u"997"_s, u"997"_s}, {u"-1,2x3"_s, u"123"_s}};
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

TEST_F(ControlliTest, HoursThatDisagreeAreCorrected) {
    Premi(u"cmdNuovo"_s);
    Scegli(u"cmbOra_2"_s, u"21"_s);  // dinner would end after the night begins
    EXPECT_EQ(Scelta(u"cmbOra_2"_s), u"18"_s);
    EXPECT_EQ(Scelta(u"cmbOra_3"_s) + Scelta(u"cmbMin_3"_s), u"2230"_s);
    Scegli(u"cmbOra_1"_s, u"15"_s);
    EXPECT_EQ(Scelta(u"cmbOra_1"_s) + Scelta(u"cmbMin_1"_s), u"1130"_s);
}

}  // namespace
}  // namespace cronovia
