// The entry screen and its lists by mouse and keyboard.
#include <QAction>
#include <QCheckBox>

#include "ui/finestra.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class InserimentoTest : public prova::FinestraTest {
  protected:
    void SetUp() override {
        Apri();
        NuovaMeta(u"lucca"_s);
        Premi(u"cmdItinerario"_s);
    }
    void TreTappe() {
        ScriviTappa(u"alfa"_s, u""_s);
        ScriviTappa(u"beta"_s, u"550"_s);
        ScriviTappa(u"gamma"_s, u"20"_s);
    }
    void ClicSullaRiga(int riga) {
        auto& griglia = Trova<QTableView>(u"mfgTab"_s);
        QTest::mouseClick(griglia.viewport(), Qt::LeftButton, {},
                          griglia.visualRect(griglia.model()->index(riga - 1, 1)).center());
    }
};

TEST_F(InserimentoTest, RefusalsKeepWhatWasTyped) {
    ScriviTappa(u"alfa"_s, u""_s);
    Box(u"Chilometri (o sosta): dato obbligatorio!"_s, QMessageBox::Ok, u"Dato obbligatorio"_s);
    ScriviTappa(u"beta"_s, u""_s);
    EXPECT_EQ(Testo(u"txtTappa"_s), u"BETA"_s);
    Box(u"Impossibile:\nIndica un valore compreso tra 1 e 999"_s, QMessageBox::Ok);
    Box(u"Impossibile:\nIndica il nome della località!"_s, QMessageBox::Ok);
    ScriviTappa(u""_s, u"1000"_s);
    ScriviTappa(u"beta"_s, u"550"_s);
    Box(u"Impossibile:\nIndica un valore compreso tra 1 e 999"_s, QMessageBox::Ok);
    ScriviTappa(u"gamma"_s, u"1600"_s);
    EXPECT_EQ(Testo(u"txtKm"_s), u"1600"_s);
    EXPECT_EQ(Testo(u"txtRiga"_s), u"3"_s);
    ScriviTappa(u"gamma"_s, u"1000"_s);
    EXPECT_EQ(Cella(2, 3), u"450"_s);
    EXPECT_EQ(Cella(2, 5), u"1.000"_s);
    ScriviTappa(u"delta"_s, u"200"_s);
    for (const QString& km : {u"450"_s, u"200"_s}) {  // row 4 follows the 1.000 km of row 3: untouched, it stays
        ClicSullaRiga(km == u"450"_s ? 3 : 4);
        Tasto(Qt::Key_Return);
        EXPECT_EQ(Cella(km == u"450"_s ? 2 : 3, 3), km);
    }
    Scrivi(u"txtTappa"_s, u"<b>fine</b>"_s);
    Scrivi(u"txtKm"_s, u"9"_s);
    Tasto(Qt::Key_Return);  // writes the row and stays
    EXPECT_EQ(Tappe(), u"ALFA BETA GAMMA DELTA <B>FINE</B>"_s);
    EXPECT_EQ(Testo(u"txtRiga"_s), u"6"_s);
    const QModelIndex nome = Trova<QTableView>(u"mfgTab"_s).model()->index(4, 1);
    EXPECT_TRUE(nome.data(Qt::ToolTipRole).toString().contains(u"&lt;B&gt;FINE"_s));
}

TEST_F(InserimentoTest, TheFieldsFollowTheRow) {
    TreTappe();
    EXPECT_EQ(Testo(u"txtRiga"_s), u"4"_s);
    EXPECT_EQ(Scelta(u"cmbTipoStrada"_s), u"Locale"_s);
    auto& progressivi = Trova<QCheckBox>(u"chkKm"_s);
    EXPECT_TRUE(progressivi.isVisible() && progressivi.isChecked());
    QTest::mouseClick(form_->windowHandle(), Qt::LeftButton, {}, progressivi.mapTo(form_.get(), QPoint(8, 8)));
    EXPECT_TRUE(progressivi.isChecked());  // it only shows
    ClicSullaRiga(2);
    EXPECT_FALSE(progressivi.isVisible());
    EXPECT_EQ(Testo(u"txtTappa"_s) + Testo(u"txtKm"_s), u"BETA550"_s);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), u"txtTappa"_s);

    Trova<QTableView>(u"mfgTab"_s).setFocus();
    const std::vector<std::pair<Qt::Key, QString>> tasti = {{Qt::Key_Down, u"3"_s}, {Qt::Key_PageDown, u"4"_s},
                                                            {Qt::Key_Up, u"3"_s},   {Qt::Key_PageUp, u"1"_s},
                                                            {Qt::Key_Up, u"1"_s},   {Qt::Key_Down, u"2"_s}};
    for (const auto& [tasto, riga] : tasti) {
        Tasto(tasto);
        EXPECT_EQ(Testo(u"txtRiga"_s), riga);
    }
    ClicSullaRiga(12);
    EXPECT_EQ(Testo(u"txtRiga"_s), u"4"_s);
}

TEST_F(InserimentoTest, StopsAndEndsOfDays) {
    ScriviTappa(u"alfa"_s, u""_s);
    Scegli(u"cmbSosta_0"_s, u"01"_s);
    Scegli(u"cmbSosta_2"_s, u"45"_s);
    ScriviTappa(u"beta"_s, u""_s);
    EXPECT_EQ(Cella(1, 7), u"01:00:45"_s);
    QTest::mouseClick(&Trova<QCheckBox>(u"chkEndDay"_s), Qt::LeftButton, {}, {8, 8});
    ScriviTappa(u"gamma"_s, u""_s);
    EXPECT_EQ(Cella(2, 7), u"*"_s);
    EXPECT_EQ(Cella(2, 4), u""_s);
    ClicSullaRiga(3);
    EXPECT_TRUE(Trova<QCheckBox>(u"chkEndDay"_s).isChecked());
    Box(u"Vuoi azzerare le soste indicate nell'itinerario?\n\nI tempi traghetto e riposi non sono influenzati e la\n"
        "cancellazione sarà effettiva dopo il salvataggio dell'itinerario.\n\nProcedo?"_s,
        QMessageBox::Yes, u"Azzera soste itinerario"_s);
    Premi(u"cmdAzzeraSoste"_s);
    EXPECT_EQ(Cella(1, 7) + Cella(2, 7), u""_s);
    EXPECT_FALSE(Trova<QCheckBox>(u"chkEndDay"_s).isChecked());
}

TEST_F(InserimentoTest, CtrlZUndoesWhatIsTypedFirstAndThenTheStages) {
    TreTappe();
    ClicSullaRiga(2);
    Premi(u"cmdAggiunge"_s);
    EXPECT_EQ(Cella(1, 1), u""_s);
    EXPECT_EQ(Trova<QAction>(u"annulla"_s).text(), u"Annulla apertura di una riga"_s);
    Scrivi(u"txtTappa"_s, u"x"_s);
    Tasto(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Testo(u"txtTappa"_s), u""_s);
    EXPECT_EQ(Cella(1, 1), u""_s);
    Tasto(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Cella(1, 1), u"BETA"_s);
    Tasto(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Tappe(), u"ALFA BETA"_s);
    Tasto(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Tappe(), u"ALFA BETA GAMMA"_s);
}

TEST_F(InserimentoTest, APlaceIsLookedUpInTheItinerary) {
    TreTappe();
    Premi(u"cmdCerca"_s);
    auto& lista = Trova<QListWidget>(u"cmbRicercaTappa"_s);
    ASSERT_TRUE(lista.isVisible());
    EXPECT_EQ(lista.item(1)->text(), u"BETA"_s + QString(27, u' ') + u"0002"_s);
    EXPECT_FALSE(Pulsante(u"cmdInserisce"_s).isEnabled());
    EXPECT_FALSE(Trova<QTableView>(u"mfgTab"_s).isEnabled());
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, lista.visualItemRect(lista.item(1)).center());
    EXPECT_FALSE(lista.isVisible());
    EXPECT_EQ(Testo(u"txtTappa"_s), u"BETA"_s);
}

TEST_F(InserimentoTest, ClosingTheWindowAsksForUnsavedStages) {
    TreTappe();
    BoxFine(QMessageBox::Cancel);
    EXPECT_FALSE(form_->close());
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(Tappe(), u"ALFA BETA GAMMA"_s);
    BoxFine(QMessageBox::Yes);
    EXPECT_TRUE(form_->close());
    Apri();
    EXPECT_EQ(Tappe(), u"ALFA BETA GAMMA"_s);
    EXPECT_TRUE(form_->close());
}

}  // namespace
}  // namespace cronovia
