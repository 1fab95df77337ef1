// Printing from the window.
#include <QFileDialog>
#include <QPrintPreviewDialog>

#include "finestra.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class StampaTest : public prova::FinestraTest {
  protected:
    StampaTest() { ImportaEsempio(u"provenza"_s); }

    // Answers the next dialog that is no box: a file dialog with this name, or with none; any other one by closing it.
    void Dialogo(const QString& file = {}) {
        QTimer::singleShot(50, &attesa_, [this, file] {
            QWidget* modale = QApplication::activeModalWidget();
            if (modale == nullptr || qobject_cast<QMessageBox*>(modale) != nullptr) return Dialogo(file);
            auto* scelta = qobject_cast<QFileDialog*>(modale);
            visto_ = QString::fromLatin1(modale->metaObject()->className());
            if (scelta == nullptr || file.isEmpty()) return qobject_cast<QDialog*>(modale)->reject();
            scelta->selectFile(file);
            scelta->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(file);
            QMetaObject::invokeMethod(scelta, "accept");
        });
    }
    [[nodiscard]] QString Tabella() const { return cartella_.Percorso() + u"/Vandtabl.txt"_s; }

    QObject attesa_;
    QString visto_;
};

TEST_F(StampaTest, ComputesAsksAndPrintsIntoAFile) {
    Apri();
    Premi(u"cmdStampa"_s);
    EXPECT_TRUE(Trova(u"frmStampa"_s).isVisible());
    EXPECT_EQ(Intestazione(7), u"Sosta"_s) << "the schedule is on screen";
    EXPECT_EQ(Pulsante(u"cmdCalcola"_s).text(), u"&Sblocca"_s);
    Dialogo();
    Premi(u"cmdAnteprima"_s);
    EXPECT_EQ(visto_, u"QPrintPreviewDialog"_s);
    Premi(u"cmdEsegui_0"_s);
    auto& stampanti = Trova<QListWidget>(u"lstStampanti"_s);
    EXPECT_EQ(stampanti.item(stampanti.count() - 1)->text(), u"File PDF"_s);
    stampanti.setCurrentRow(stampanti.count() - 1);

    Dialogo();
    Premi(u"cmdSelStampante_0"_s);
    EXPECT_EQ(visto_, u"QFileDialog"_s);
    EXPECT_TRUE(Trova(u"frmSelStampa"_s).isVisible()) << "without a file nothing has begun";
    EXPECT_FALSE(QFile::exists(Tabella()));

    const QString file = cartella_.Percorso() + u"/prova"_s;
    Dialogo(file);
    Box(u"Stampa Cronovia  completata..."_s, QMessageBox::Ok);
    Box(u"Stampa sul file %1: completata!"_s.arg(Tabella()), QMessageBox::Ok);
    Premi(u"cmdSelStampante_0"_s);
    EXPECT_TRUE(prova::LeggiFile(file + u".pdf"_s).startsWith("%PDF-1.4"));
    EXPECT_TRUE(prova::LeggiFile(Tabella()).startsWith("PROVENZA\r\n\r\nNum.\t"));
    EXPECT_FALSE(Trova(u"frmStampa"_s).isVisible());
    EXPECT_FALSE(Trova(u"frmSelStampa"_s).isVisible());
    EXPECT_EQ(Abilitati(), u"Calcola Stampa"_s);
}

TEST_F(StampaTest, FaultsAreToldAndTheScheduleStays) {
    Apri();
    Premi(u"cmdStampa"_s);
    Premi(u"cmdEsegui_0"_s);
    const QString file = cartella_.Archivio();
    auto& stampanti = Trova<QListWidget>(u"lstStampanti"_s);
    stampanti.setCurrentRow(stampanti.count() - 1);
    Trova<QCheckBox>(u"chkModuli"_s).setChecked(true);
    const QByteArray archivio = prova::LeggiFile(file);
    const QString altrove = cartella_.Percorso() + u"/manca/prova.pdf"_s;
    Dialogo(altrove);
    Box(u"Il file %1 non si può scrivere: controlla la cartella e i permessi."_s.arg(altrove), QMessageBox::Ok);
    Box(u"I moduli per il diario di bordo non si possono stampare: nella cartella %1 manca il programma Fogliax.exe."_s
            .arg(QCoreApplication::applicationDirPath()),
        QMessageBox::Ok);
    Box(u"Stampa sul file %1: completata!"_s.arg(Tabella()), QMessageBox::Ok);
    Premi(u"cmdSelStampante_0"_s);

    Premi(u"cmdStampa"_s);
    Trova<QCheckBox>(u"chkModuli"_s).setChecked(false);
    Premi(u"cmdEsegui_0"_s);
    stampanti.addItem(u"Laser"_s);  // as if it had been there when the list was shown
    stampanti.setCurrentRow(stampanti.count() - 1);
    Box(u"La stampante «Laser» non c'è più: niente è stato stampato."_s, QMessageBox::Ok);
    Box(u"Stampa sul file %1: completata!"_s.arg(Tabella()), QMessageBox::Ok);
    Premi(u"cmdSelStampante_0"_s);
    EXPECT_EQ(prova::LeggiFile(file), archivio);
    EXPECT_EQ(Abilitati(), u"Calcola Stampa"_s);
    EXPECT_EQ(Pulsante(u"cmdCalcola"_s).text(), u"&Sblocca"_s);
}

TEST_F(StampaTest, RinunciaLeadsBackStepByStep) {
    Apri();
    Premi(u"cmdStampa"_s);
    Premi(u"cmdEsegui_0"_s);
    Tasto(Qt::Key_Escape);
    EXPECT_TRUE(Trova(u"frmStampa"_s).isVisible());
    EXPECT_FALSE(Trova(u"frmSelStampa"_s).isVisible());
    Tasto(Qt::Key_Return);
    EXPECT_TRUE(Trova(u"frmSelStampa"_s).isVisible());
    Premi(u"cmdSelStampante_1"_s);
    Premi(u"cmdEsegui_1"_s);
    EXPECT_FALSE(Trova(u"frmStampa"_s).isVisible());
    EXPECT_EQ(Abilitati(), u"Calcola Stampa"_s);
    Premi(u"cmdStampa"_s);
    Premi(u"cmdCalcola"_s);
    EXPECT_FALSE(Trova(u"frmStampa"_s).isVisible()) << "no schedule, nothing to print";
    EXPECT_EQ(Intestazione(7), u"Itinerario"_s);
    EXPECT_FALSE(QFile::exists(Tabella()));
}

}  // namespace
}  // namespace cronovia
