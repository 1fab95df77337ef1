// The route of another program, chosen in the window's file dialog.
#include <QAction>
#include <QFileDialog>

#include "ui/finestra.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class PercorsoTest : public prova::FinestraTest {
  protected:
    /// The dialog that comes next shows text files and is left with this file, or called off without one.
    void Scegli(const QString& file) {
        QObject::connect(&mano_, &QTimer::timeout, &mano_, [this, file] {
            auto* dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialogo == nullptr) return;
            mano_.stop();
            mano_.disconnect();
            EXPECT_EQ(dialogo->nameFilters().value(0).section(u" (*.txt"_s, 0, 0),
                      u"File Excel salvato in modalità testo (*.TXT)"_s);
            auto* nome = dialogo->findChild<QLineEdit*>(u"fileNameEdit"_s);
            nome->setText(file);
            QTest::keyClick(nome, file.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        });
        mano_.start(10);
    }

  private:
    QTimer mano_;
};

TEST_F(PercorsoTest, GoesIntoTheGridOnYesAndAwayOnCtrlZ) {
    Apri();
    NuovaMeta(u"praga"_s);
    Premi(u"cmdItinerario"_s);
    Scegli({});
    Premi(u"cmdMapPoint"_s);
    Scegli(u"" CRONOVIA_EXAMPLES "/percorsi/livorno-ajaccio.txt"_s);
    Box(u"Tappe riconosciute: 9, da LIVORNO a AJACCIO.\nChilometri: 273; traghetti: 1.\n\nVuoi riportarle nell'itinerario?"_s,
        QMessageBox::Yes, u"Import del percorso"_s);
    Premi(u"cmdMapPoint"_s);
    EXPECT_EQ(Tappe(),
              u"LIVORNO PORTO DI LIVORNO INGRESSO IN FRANCIA BASTIA CASAMOZZA DIREZIONE CORTE CORTE "
              "COL DE VIZZAVONA AJACCIO"_s);
    EXPECT_EQ(Cella(1, 7), u"00:02:00"_s);
    EXPECT_EQ(Testo(u"txtRiga"_s), u"10"_s);
    EXPECT_FALSE(Pulsante(u"cmdMapPoint"_s).isEnabled());
    EXPECT_TRUE(Pulsante(u"cmdInserisce"_s).isEnabled());
    EXPECT_EQ(Trova<QAction>(u"annulla"_s).text(), u"Annulla import del percorso"_s);
    Tasto(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Tappe(), u""_s);
    EXPECT_TRUE(Pulsante(u"cmdMapPoint"_s).isEnabled());
}

}  // namespace
}  // namespace cronovia
