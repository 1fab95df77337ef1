// Printing from the window.
#include <QAction>
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
            for (const QAction* azione : modale->findChildren<QAction*>()) {
                if (azione->isVisible() && !azione->text().isEmpty()) visto_ += u'|' + azione->text();
            }
            if (scelta == nullptr || file.isEmpty()) return qobject_cast<QDialog*>(modale)->reject();
            scelta->selectFile(file);
            scelta->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(file);
            QMetaObject::invokeMethod(scelta, "accept");
        });
    }
    // A button that is pressed by its key goes down first.
    void Scorciatoia(Qt::Key tasto) {
        Tasto(tasto, Qt::AltModifier);
        QTest::qWait(200);
    }
    [[nodiscard]] QString Tabella() const { return cartella_.Percorso() + u"/Vandtabl.txt"_s; }

    QObject attesa_;
    QString visto_;
};

TEST_F(StampaTest, ComputesAsksAndPrintsIntoAFile) {
    Apri();
    Pulsante(u"cmdStampa"_s).setFocus();
    Tasto(Qt::Key_Return);
    EXPECT_TRUE(Trova(u"frmStampa"_s).isVisible());
    EXPECT_EQ(Intestazione(7), u"Sosta"_s) << "the schedule is on screen";
    EXPECT_EQ(Pulsante(u"cmdCalcola"_s).text(), u"&Sblocca"_s);
    Dialogo();
    Premi(u"cmdAnteprima"_s);
    EXPECT_EQ(
        visto_,
        u"QPrintPreviewDialog|Next page|Previous page|First page|Last page|Fit width|Fit page|Zoom in|Zoom out|Show single page|Show facing pages|Show overview of all pages"_s)
        << "nothing there prints";
    Trova(u"cmdEsegui_0"_s).setFocus();
    Tasto(Qt::Key_Return);
    EXPECT_TRUE(Trova(u"frmSelStampa"_s).isVisible());
    auto& stampanti = Trova<QListWidget>(u"lstStampanti"_s);
    EXPECT_EQ(stampanti.item(stampanti.count() - 1)->text(), u"File PDF"_s);
    stampanti.setCurrentRow(stampanti.count() - 1);

    Dialogo();
    Box(u"Nessun file scelto: niente è stato stampato."_s, QMessageBox::Ok);
    Premi(u"cmdSelStampante_0"_s);
    EXPECT_TRUE(visto_.startsWith("QFileDialog"_L1));
    EXPECT_TRUE(Trova(u"frmSelStampa"_s).isVisible()) << "without a file nothing has begun";
    EXPECT_FALSE(QFile::exists(Tabella()));

    const QString file = cartella_.Percorso() + u"/prova"_s;
    Dialogo(file);
    Box(u"Stampa Cronovia  completata..."_s, QMessageBox::Ok);
    Box(u"Stampa sul file %1: completata!"_s.arg(Tabella()), QMessageBox::Ok);
    Scorciatoia(Qt::Key_S);
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
    Dialogo(Tabella());
    Box(u"Il file %1 è la tabella della cronovia: per le pagine scegli un altro nome."_s.arg(Tabella()),
        QMessageBox::Ok);
    Box(u"I moduli per il diario di bordo non si possono stampare: nella cartella %1 manca il programma Fogliax.exe."_s
            .arg(QCoreApplication::applicationDirPath()),
        QMessageBox::Ok);
    Box(u"Stampa sul file %1: completata!"_s.arg(Tabella()), QMessageBox::Ok);
    Premi(u"cmdSelStampante_0"_s);

    Premi(u"cmdStampa"_s);
    Trova<QCheckBox>(u"chkModuli"_s).setChecked(false);
    Premi(u"cmdEsegui_0"_s);
    stampanti.addItem(u"File PDF"_s);  // as if it had been there when the list was shown
    stampanti.setCurrentRow(stampanti.count() - 1);
    Box(u"La stampante «File PDF» non c'è più: niente è stato stampato."_s, QMessageBox::Ok);
    Box(u"Stampa sul file %1: completata!"_s.arg(Tabella()), QMessageBox::Ok);
    Premi(u"cmdSelStampante_0"_s);
    EXPECT_EQ(prova::LeggiFile(file), archivio);
    EXPECT_TRUE(prova::LeggiFile(Tabella()).startsWith("PROVENZA\r\n"));
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
    Scorciatoia(Qt::Key_R);
    EXPECT_FALSE(Trova(u"frmSelStampa"_s).isVisible());
    EXPECT_TRUE(Trova(u"frmStampa"_s).isVisible());
    Scorciatoia(Qt::Key_R);
    EXPECT_FALSE(Trova(u"frmStampa"_s).isVisible());
    EXPECT_EQ(Abilitati(), u"Calcola Stampa"_s);
    Scorciatoia(Qt::Key_S);
    EXPECT_EQ(Intestazione(7), u"Itinerario"_s) << "the key unlocks again";
    Premi(u"cmdStampa"_s);
    Premi(u"cmdCalcola"_s);
    EXPECT_FALSE(Trova(u"frmStampa"_s).isVisible()) << "no schedule, nothing to print";
    EXPECT_EQ(Intestazione(7), u"Itinerario"_s);
    EXPECT_FALSE(QFile::exists(Tabella()));
}

}  // namespace
}  // namespace cronovia
