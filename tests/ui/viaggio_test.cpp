// A journey planned from nothing, as a person does it.
#include <QLabel>

#include "itinerary/itinerari.h"
#include "trips/mete.h"
#include "ui/finestra.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using ViaggioTest = prova::FinestraTest;

TEST_F(ViaggioTest, PlannedComputedChangedAndFoundAgain) {
    Apri();
    Premi(u"cmdNuovo"_s);
    EXPECT_EQ(Abilitati(), u"Esce Nuovo Salva"_s);
    Box(u"Campo Località: obbligatorio!"_s, QMessageBox::Ok);
    Premi(u"cmdSalva"_s);
    Scrivi(u"txtLocalita"_s, u"calabria"_s);
    Scrivi(u"txtNazione"_s, u"italia"_s);
    Scegli(u"cmbInizio_3"_s, u"08"_s);
    ScriviNellElenco(u"cmbMediaKm_0"_s, u"100"_s);
    Box(u"Confermi inserimento meta?"_s, QMessageBox::Yes, u"Inserimento meta"_s);
    Premi(u"cmdSalva"_s);
    EXPECT_EQ(Testo(u"txtCodice"_s), u"000001"_s);

    Premi(u"cmdItinerario"_s);
    ScriviTappa(u"lucca"_s, u""_s);
    for (const auto& [tappa, km] :
         {std::pair{u"roma"_s, u"350"_s}, {u"napoli"_s, u"575"_s}, {u"cosenza"_s, u"875"_s}}) {
        Scegli(u"cmbTipoStrada"_s, u"Autostrada"_s);
        Scegli(u"cmbSosta_0"_s, u"01"_s);
        ScriviTappa(tappa, km);
    }
    EXPECT_EQ(Cella(3, 3) + u'/' + Cella(3, 5) + u'/' + Cella(3, 6), u"300/875/03:00"_s);
    EXPECT_EQ(Testo(u"txtKmTot_0"_s), u"875"_s);
    BoxFine(QMessageBox::Yes);
    Premi(u"cmdFine"_s);

    Premi(u"cmdCalcola"_s);
    EXPECT_EQ(Pulsante(u"cmdCalcola"_s).text(), u"&Sblocca"_s);
    EXPECT_EQ(Abilitati(), u"Calcola Stampa"_s);
    EXPECT_EQ(Intestazione(7), u"Sosta"_s);
    EXPECT_FALSE(Elenco(u"cmbGiorni"_s).isEnabled());
    const int giorni = Testo(u"txtFine_6"_s).toInt();
    EXPECT_EQ(giorni, 3);
    Premi(u"cmdCalcola"_s);
    EXPECT_EQ(Pulsante(u"cmdCalcola"_s).text(), u"&Calcola"_s);
    EXPECT_EQ(Intestazione(7), u"Itinerario"_s);
    EXPECT_EQ(Tappe(), u"LUCCA ROMA NAPOLI COSENZA"_s);

    ScriviNellElenco(u"cmbGiorni"_s, QString::number(giorni + 2));
    Box(u"Elaborazione conclusa in 2 tentativi!"_s, QMessageBox::Ok, u"Calcolo cronovia"_s);
    Premi(u"cmdCalcola"_s);
    EXPECT_EQ(Testo(u"txtFine_6"_s).toInt(), giorni + 2);
    Premi(u"cmdCalcola"_s);

    Premi(u"cmdItinerario"_s);
    auto& griglia = Trova<QTableView>(u"mfgTab"_s);
    QTest::mouseClick(griglia.viewport(), Qt::LeftButton, {},
                      griglia.visualRect(griglia.model()->index(2, 1)).center());
    ScriviTappa(u"salerno"_s, u"260"_s);
    ScriviNellElenco(u"cmbGiorni"_s, u"0"_s);
    Premi(u"cmdRicalcola"_s);
    EXPECT_EQ(Intestazione(7), u"Sosta"_s);
    Premi(u"cmdCalcola"_s);
    EXPECT_TRUE(Trova<QWidget>(u"frmInputBox"_s).isVisible());
    EXPECT_EQ(Tappe(), u"LUCCA ROMA SALERNO COSENZA"_s);
    BoxFine(QMessageBox::Yes);
    Premi(u"cmdFine"_s);
    Box(u"Vuoi chiudere la procedura?"_s, QMessageBox::Yes, u"Fine Lavoro"_s);
    Premi(u"cmdEsce"_s);
    EXPECT_FALSE(form_->isVisible());

    Apri();
    EXPECT_EQ(Testo(u"txtLocalita"_s), u"CALABRIA"_s);
    EXPECT_EQ(Scelta(u"cmbInizio_3"_s) + Scelta(u"cmbInizio_4"_s), u"0845"_s);
    EXPECT_EQ(Tappe(), u"LUCCA ROMA SALERNO COSENZA"_s);
    EXPECT_EQ(Cella(2, 5), u"610"_s);
    EXPECT_EQ(Pulsante(u"cmdCalcola"_s).text(), u"&Calcola"_s);
}

TEST_F(ViaggioTest, ALongFitIsStoppedHalfWay) {
    constexpr int kTappe = 9000;
    {
        Sessione sessione(cartella_.Percorso());
        const QString codice = sessione.NuovaMeta(u"LUNGO"_s, u"ITALIA"_s, QDateTime({2027, 6, 5}, {8, 0}));
        const std::vector<Tappa> tappe(kTappe, {u"X"_s, u"A1"_s, 10, TipoStrada::Autostrada, {0, 0, 15}, false, {}});
        Progress progress;
        MemorizzaTappeItinerario(sessione.Archivio(), codice, tappe, {}, progress);
    }
    Apri();
    ScriviNellElenco(u"cmbGiorni"_s, u"997"_s);
    // The window lives while it computes: Exit reads Stop, nothing else can be pressed.
    QStringList visti;
    QTimer persona;
    QObject::connect(&persona, &QTimer::timeout, &persona, [&] {
        const QString titolo = Trova<QLabel>(u"lblElaborazione"_s).text();
        if (!titolo.startsWith(u"Calcolo della cronovia"_s) || visti.size() > 1) return;
        visti += Abilitati() + u' ' + Pulsante(u"cmdEsce"_s).text();
        const bool primo = visti.size() == 1;
        Box(u"Vuoi interrompere l'elaborazione?"_s, primo ? QMessageBox::No : QMessageBox::Yes, u"Fine Lavoro"_s);
        if (primo) {
            EXPECT_FALSE(form_->close());
        } else {
            Premi(u"cmdEsce"_s);
        }
    });
    persona.start(10);
    Premi(u"cmdCalcola"_s);
    ASSERT_EQ(visti.size(), 2) << "the calculation ended too early to be stopped";
    EXPECT_EQ(visti[1], u"Esce &Stop"_s);
    EXPECT_EQ(Pulsante(u"cmdEsce"_s).text(), u"&Esce"_s);
    EXPECT_EQ(Pulsante(u"cmdCalcola"_s).text(), u"&Calcola"_s);
    EXPECT_EQ(Intestazione(7), u"Itinerario"_s);
    EXPECT_EQ(Cella(kTappe - 1, 0), u"9000"_s);
    EXPECT_EQ(Abilitati().count(u' '), 11);
}

TEST_F(ViaggioTest, TripsAreFoundInTheirList) {
    Apri();
    NuovaMeta(u"zara"_s);
    NuovaMeta(u"bari"_s);
    Premi(u"cmdRicerca"_s);
    auto& lista = Trova<QListWidget>(u"cmbRicerca"_s);
    ASSERT_TRUE(lista.isVisible());
    EXPECT_EQ(lista.item(0)->text() + lista.item(1)->text(), u"BARIZARA"_s);
    EXPECT_EQ(Abilitati(), u"Esce Nuovo"_s);
    QTest::keyClick(&lista, Qt::Key_Escape);
    EXPECT_FALSE(lista.isVisible());
    Premi(u"cmdRicerca"_s);
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, lista.visualItemRect(lista.item(1)).center());
    EXPECT_EQ(Testo(u"txtLocalita"_s), u"ZARA"_s);
}

}  // namespace
}  // namespace cronovia
