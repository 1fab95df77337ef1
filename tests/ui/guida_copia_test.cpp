// The guide screen and the copy screen by mouse and keyboard.
#include <QAction>
#include <QCheckBox>

#include "exchange/esporta_mete.h"
#include "ui/finestra.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class GuidaCopiaTest : public prova::FinestraTest {
  protected:
    void ClicSulla(const QString& griglia, int riga) {
        auto& vista = Trova<QTableView>(griglia);
        QTest::mouseClick(vista.viewport(), Qt::LeftButton, {},
                          vista.visualRect(vista.model()->index(riga - 1, 1)).center());
    }
    void MetaConTappe(const QString& localita, const QStringList& tappe) {
        NuovaMeta(localita);
        Premi(u"cmdItinerario"_s);
        for (const QString& tappa : tappe) ScriviTappa(tappa, tappa == tappe.first() ? u""_s : u"100"_s);
        BoxFine(QMessageBox::Yes);
        Premi(u"cmdFine"_s);
    }
    /// The rows of the guide list, or of the list to copy from.
    QString Riga(const QString& griglia, int riga) {
        const QAbstractItemModel& modello = *Trova<QTableView>(griglia).model();
        QStringList celle;
        for (int i = 0; i < modello.columnCount(); ++i) celle += modello.index(riga - 1, i).data().toString();
        return celle.join(u'|');
    }
    QString Fuoco() {
        return QApplication::focusWidget() == nullptr ? QString() : QApplication::focusWidget()->objectName();
    }
};

TEST_F(GuidaCopiaTest, AnEntryFromItsScreenToTheScheduleAndToAnotherPerson) {
    Apri();
    MetaConTappe(u"gita"_s, {u"asti"_s, u"sant'anna"_s, u"roma"_s});
    Premi(u"cmdGuidaCitta"_s);
    EXPECT_EQ(Abilitati(), u""_s);
    EXPECT_EQ(Intestazione(3), u"Descrizione segnalazione"_s);
    EXPECT_FALSE(Pulsante(u"cmdCancellaRiga"_s).isEnabled());
    ClicSulla(u"mfgTab"_s, 3);
    EXPECT_EQ(Testo(u"txtGCitta"_s), u"SANT'ANNA"_s);
    EXPECT_EQ(Fuoco(), u"txtGDescr"_s);
    Scrivi(u"txtGDescr"_s, u"Torre \"dell'oca\""_s);
    Box(u"Errore! Manca il tempo stimato!!!"_s, QMessageBox::Ok);
    Premi(u"cmdSalvaRiga"_s);
    EXPECT_EQ(Testo(u"txtGDescr"_s), u"Torre \"dell'oca\""_s);
    ScriviNellElenco(u"cmbGTipo"_s, u"Bello"_s);
    Box(u"Errore! Manca la tipologia!!!"_s, QMessageBox::Ok);
    Premi(u"cmdSalvaRiga"_s);
    ScriviNellElenco(u"cmbGTipo"_s, u"Da vedere"_s);
    Scegli(u"cmbGH"_s, u"01"_s);
    Scegli(u"cmbGM"_s, u"30"_s);
    Premi(u"cmdSalvaRiga"_s);
    EXPECT_EQ(Riga(u"mfgTab"_s, 4), u"4|SANT'ANNA||Torre \"dell'oca\"|01:30|Da vedere"_s);
    EXPECT_EQ(Testo(u"txtGDescr"_s), u""_s);
    Box(u"Errore! Manca la descrizione!!!"_s, QMessageBox::Ok);
    Premi(u"cmdSalvaRiga"_s);
    Premi(u"cmdFineInserimento"_s);
    EXPECT_EQ(Intestazione(3), u"Km."_s);
    EXPECT_EQ(Cella(1, 8), u"00:01:30"_s);

    Premi(u"cmdItinerario"_s);
    Box(u"Vuoi copiare le soste indicate nella Guida nelle tappe dell'itinerario?\n\nI tempi traghetto e riposi non "
        "sono influenzati e la\nmodifica sarà effettiva dopo il salvataggio dell'itinerario.\n\nProcedo?"_s,
        QMessageBox::Yes, u"Copia soste Guida -> Itinerario"_s);
    Premi(u"cmdTrasferisce"_s);
    EXPECT_EQ(Cella(1, 7), u"00:01:30"_s);
    BoxFine(QMessageBox::Yes);
    Premi(u"cmdFine"_s);
    Premi(u"cmdCalcola"_s);
    QStringList righe;
    for (int i = 0; i < Trova<QTableView>(u"mfgTab"_s).model()->rowCount(); ++i) righe += Cella(i, 1).trimmed();
    EXPECT_TRUE(righe.contains(u"> Torre \"dell'oca\""_s)) << righe.join(u'|').toStdString();

    Sessione sessione(cartella_.Percorso());
    Progress progress;
    const QString file = cartella_.Percorso() + u"/gita.iei"_s;
    EsportaMete({sessione.Archivio(), file, {u"000001"_s}, false}, progress);
    // In the file a quotation mark travels as an apostrophe.
    EXPECT_TRUE(prova::LeggiFile(file).contains("Torre 'dell'oca'"));
}

TEST_F(GuidaCopiaTest, KeysAndThePickListOfTheGuide) {
    Apri();
    MetaConTappe(u"gita"_s, {u"asti"_s, u"bra"_s, u"cuneo"_s});
    Premi(u"cmdGuidaCitta"_s);
    Premi(u"cmdFind"_s);
    auto& lista = Trova<QListWidget>(u"cmbRicercaTappa"_s);
    ASSERT_TRUE(lista.isVisible());
    EXPECT_EQ(lista.item(2)->text(), u"CUNEO"_s + QString(17, u' ') + u"0003"_s);
    EXPECT_FALSE(Trova(u"frmGuida"_s).isEnabled() || Trova<QTableView>(u"mfgTab"_s).isEnabled());
    Tasto(Qt::Key_Escape);
    EXPECT_FALSE(lista.isVisible());
    Premi(u"cmdFind"_s);
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, lista.visualItemRect(lista.item(2)).center());
    EXPECT_EQ(Testo(u"txtGCitta"_s), u"CUNEO"_s);
    EXPECT_TRUE(Trova(u"frmGuida"_s).isEnabled());
    // Enter saves what was typed; Escape gives it up first and leaves then.
    ScriviNellElenco(u"cmbGTipo"_s, u"Gpl"_s);
    Scrivi(u"txtGDescr"_s, u"Via Po"_s);
    Tasto(Qt::Key_Return);
    EXPECT_EQ(Riga(u"mfgTab"_s, 4), u"4|CUNEO||Via Po|00:00|Gpl"_s);
    EXPECT_EQ(Trova<QAction>(u"annulla"_s).text(), u"Annulla inserimento di «Via Po»"_s);
    Tasto(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Riga(u"mfgTab"_s, 4), u"|||||"_s);
    Tasto(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    Trova<QTableView>(u"mfgTab"_s).setFocus();
    for (int i = 0; i < 3; ++i) Tasto(Qt::Key_Up);
    Tasto(Qt::Key_Down);
    EXPECT_EQ(Testo(u"txtGCitta"_s), u"BRA"_s);
    ClicSulla(u"mfgTab"_s, 12);  // below the list
    EXPECT_EQ(Testo(u"txtGDescr"_s), u"Via Po"_s);
    Scrivi(u"txtGDescr"_s, u"altro"_s);
    Tasto(Qt::Key_Escape);
    EXPECT_EQ(Testo(u"txtGDescr"_s), u"Via Po"_s);
    Premi(u"cmdCancellaRiga"_s);
    EXPECT_EQ(Testo(u"txtGDescr"_s), u""_s);
    EXPECT_FALSE(Pulsante(u"cmdCancellaRiga"_s).isEnabled());
    Tasto(Qt::Key_Escape);
    EXPECT_FALSE(Trova(u"frmGuida"_s).isVisible());
    EXPECT_EQ(Tappe(), u"ASTI BRA CUNEO"_s);
}

TEST_F(GuidaCopiaTest, ThePrintoutLeadsBackToTheGuide) {
    Apri();
    MetaConTappe(u"gita"_s, {u"asti"_s});
    Premi(u"cmdGuidaCitta"_s);
    Premi(u"cmdStampaGuidaCitta"_s);
    EXPECT_TRUE(Trova(u"frmGuidaStampa"_s).isVisible());
    EXPECT_FALSE(Trova(u"frmGuida"_s).isEnabled());
    Premi(u"cmdStampaGuida_0"_s);
    EXPECT_TRUE(Trova(u"frmSelStampa"_s).isVisible());
    Box(u"Niente da stampare: la guida non ha annotazioni per le località di questa mèta."_s, QMessageBox::Ok);
    Premi(u"cmdSelStampante_0"_s);
    EXPECT_TRUE(Trova(u"frmSelStampa"_s).isVisible());
    Premi(u"cmdSelStampante_1"_s);
    EXPECT_FALSE(Trova(u"frmSelStampa"_s).isVisible());
    Tasto(Qt::Key_Escape);
    EXPECT_FALSE(Trova(u"frmGuidaStampa"_s).isVisible());
    EXPECT_TRUE(Trova(u"frmGuida"_s).isEnabled() && Trova(u"frmGuida"_s).isVisible());
}

TEST_F(GuidaCopiaTest, AStretchIsCopiedTheOtherWay) {
    Apri();
    MetaConTappe(u"fonte"_s, {u"p"_s, u"q"_s, u"r"_s, u"s"_s});
    MetaConTappe(u"meta"_s, {u"a"_s, u"b"_s});
    Premi(u"cmdItinerario"_s);
    Premi(u"cmdDuplica"_s);
    EXPECT_EQ(Riga(u"mfgCopia"_s, 1), u"1|FONTE|ITALIA"_s);
    EXPECT_FALSE(Pulsante(u"cmdMapPoint"_s).isEnabled() || Pulsante(u"cmdInserisce"_s).isEnabled());
    EXPECT_TRUE(Pulsante(u"cmdFine"_s).isEnabled());
    ClicSulla(u"mfgCopia"_s, 1);
    EXPECT_EQ(Riga(u"mfgCopia"_s, 2), u"2|Q||100|L|"_s);
    EXPECT_FALSE(Trova(u"frmInputBox"_s).isEnabled());
    const auto evidenziate = [&] {
        QStringList righe;
        for (const QModelIndex& i : Trova<QTableView>(u"mfgCopia"_s).selectionModel()->selectedRows())
            righe += QString::number(i.row() + 1);
        righe.sort();
        return righe.join(u' ');
    };
    ClicSulla(u"mfgCopia"_s, 3);
    Premi(u"cmdAssegna_0"_s);
    EXPECT_EQ(Testo(u"txtInsLoc_0"_s) + Testo(u"txtInsKm_0"_s) + Testo(u"txtInsNum_0"_s), u"R1003"_s);
    EXPECT_FALSE(Pulsante(u"cmdInsEsegui_0"_s).isEnabled());
    ClicSulla(u"mfgCopia"_s, 2);
    EXPECT_EQ(evidenziate(), u"2 3"_s);
    Premi(u"cmdAssegna_1"_s);
    ClicSulla(u"mfgCopia"_s, 4);
    EXPECT_EQ(evidenziate(), u"2 3 4"_s);
    Box(u"Confermi inserimento tappe percorso?"_s, QMessageBox::No, u"Inserimento tappe percorso"_s);
    Premi(u"cmdInsEsegui_0"_s);
    EXPECT_TRUE(Trova(u"mfgCopia"_s).isVisible());
    Box(u"Confermi inserimento tappe percorso?"_s, QMessageBox::Yes, u"Inserimento tappe percorso"_s);
    Premi(u"cmdInsEsegui_0"_s);
    EXPECT_EQ(Tappe(), u"A R Q B"_s);
    EXPECT_TRUE(Trova(u"frmInputBox"_s).isEnabled() && Trova(u"frmInputBox"_s).isVisible());
    EXPECT_FALSE(Trova(u"frmLista"_s).isVisible() || Trova(u"frmPercorso"_s).isVisible());
    EXPECT_EQ(Testo(u"txtTappa"_s), u"R"_s);

    Premi(u"cmdDuplica"_s);
    Tasto(Qt::Key_Return);  // the trip that the keyboard is on
    Premi(u"cmdInsEsegui_1"_s);
    EXPECT_FALSE(Trova(u"frmLista"_s).isVisible());
    Premi(u"cmdDuplica"_s);
    Tasto(Qt::Key_Escape);
    EXPECT_FALSE(Trova(u"frmLista"_s).isVisible());
    BoxFine(QMessageBox::No);
    Premi(u"cmdFine"_s);
}

}  // namespace
}  // namespace cronovia
