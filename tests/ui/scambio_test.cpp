// The exchange screen through its controls, files dropped on the window, an import taken back by the keyboard.
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "ui/finestra.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class ScambioTest : public prova::FinestraTest {
  protected:
    static QString Esempio(const QString& nome) { return QStringLiteral(CRONOVIA_EXAMPLES "/") + nome + u".iei"_s; }
    QTableView& Griglia(int indice) { return Trova<QTableView>(u"mfgImExp_%1"_s.arg(indice)); }
    /// Destinations with their numbers in a grid.
    QString Mete(int indice) {
        const QAbstractItemModel& modello = *Griglia(indice).model();
        QStringList mete;
        for (int riga = 0; riga < modello.rowCount(); ++riga) {
            mete += modello.index(riga, 0).data().toString() + modello.index(riga, 1).data().toString();
        }
        return mete.join(u' ');
    }
    void Clicca(int indice, int riga) {
        QTableView& griglia = Griglia(indice);
        QTest::mouseClick(griglia.viewport(), Qt::LeftButton, {},
                          griglia.visualRect(griglia.model()->index(riga, 1)).center());
    }
    QString Scritta(const QString& nome) {
        const QPushButton& pulsante = Pulsante(nome);
        return pulsante.text() + (pulsante.isEnabled() ? u""_s : u" (no)"_s);
    }
    QString Scritte() {
        return QStringList{Scritta(u"cmdTutto_0"_s), Scritta(u"cmdTutto_1"_s), Scritta(u"cmdImExp_0"_s)}.join(u'|');
    }
    /// Drops a file on a control, as it comes from the desktop; the control's own answer when it is refused.
    bool Trascina(QWidget& su, const QString& file) {
        QMimeData dati;
        dati.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent entra({5, 5}, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&su, &entra);
        QDropEvent lascia({5, 5}, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
        lascia.setAccepted(false);
        QApplication::sendEvent(&su, &lascia);
        QTest::qWait(10);
        return lascia.isAccepted();
    }
};

TEST_F(ScambioTest, TripsMoveByClickByEnterAndAllAtOnce) {
    for (const QString& nome : {u"provenza"_s, u"sicilia"_s, u"capo-nord"_s}) ImportaEsempio(nome);
    Apri();
    Premi(u"cmdExport"_s);
    EXPECT_EQ(Trova<QLabel>(u"lblExLista"_s).text(), u"Mète in memoria (da selezionare)"_s);
    EXPECT_EQ(Trova<QLabel>(u"lblExSelez"_s).text(), u"Lista delle mète selezionate per l'EXPORT"_s);
    EXPECT_EQ(Mete(0), u"1CAPO NORD 2GIRO DELLA SICILIA 3PROVENZA"_s);
    EXPECT_EQ(Scritte(), u"[3] Tutti --->|<--- Tutti [0] (no)|Esporta (no)"_s);
    EXPECT_EQ(Abilitati(), u""_s);
    Clicca(0, 1);
    EXPECT_EQ(Mete(0) + u"|"_s + Mete(1), u"1CAPO NORD 2PROVENZA|1GIRO DELLA SICILIA"_s);
    Griglia(0).setFocus();
    Griglia(0).setCurrentIndex(Griglia(0).model()->index(1, 1));
    Tasto(Qt::Key_Return);
    EXPECT_EQ(Mete(1), u"1GIRO DELLA SICILIA 2PROVENZA"_s);
    EXPECT_EQ(Scritte(), u"[1] Tutti --->|<--- Tutti [2]|Esporta"_s);
    Premi(u"cmdTutto_1"_s);
    Premi(u"cmdTutto_0"_s);
    EXPECT_EQ(Mete(1), u"1CAPO NORD 2GIRO DELLA SICILIA 3PROVENZA"_s);
    Tasto(Qt::Key_Escape);
    EXPECT_FALSE(Trova<QWidget>(u"frmExport"_s).isVisible());
    EXPECT_TRUE(Trova<QWidget>(u"mfgTab"_s).isVisible());
    EXPECT_EQ(Testo(u"txtLocalita"_s), u""_s);
    EXPECT_EQ(Abilitati().count(u' '), 11);
}

TEST_F(ScambioTest, AFileDroppedOnAFieldIsImportedAndTakenBackWithCtrlZ) {
    Apri();
    EXPECT_FALSE(Trascina(*form_, u"/tmp/foto.jpg"_s));
    EXPECT_TRUE(Trascina(Trova<QLineEdit>(u"txtLocalita"_s), Esempio(u"provenza"_s)));
    EXPECT_EQ(Testo(u"txtLocalita"_s), u""_s);
    EXPECT_EQ(Trova<QLabel>(u"lblExSelez"_s).text(), u"Lista delle mete nel file selezionato"_s);
    EXPECT_EQ(Mete(0) + u"|"_s + Mete(1), u"|1PROVENZA"_s);
    EXPECT_EQ(Scritte(), u"[0] Tutti ---> (no)|<--- Tutti [1]|Importa (no)"_s);
    Premi(u"cmdTutto_1"_s);
    Box(u"Confermi import delle mète selezionate nei propri archivi?"_s, QMessageBox::Yes,
        u"Import delle mète selezionate nei propri archivi"_s);
    Box(u"Sono stati inseriti:\n\n1 mète/itinerari;\n28 tratti stradali;\n56 guide/informazioni località.\n"_s,
        QMessageBox::Ok);
    Premi(u"cmdImExp_0"_s);
    Box(u"L'importazione di provenza.iei è stata annullata."_s, QMessageBox::Ok);
    Trova<QLineEdit>(u"txtLocalita"_s).setFocus();
    Tasto(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Abilitati(), u"Esce Import Nuovo"_s);
    Sessione sessione(cartella_.Percorso());
    EXPECT_EQ(sessione.Archivio().Count(Tabella::GuidaCitta), 0);
}

TEST_F(ScambioTest, OldDataIsTakenByItsButton) {
    cartella_.Crea();
    prova::ScriviFile(cartella_.Percorso() + u"/VandMete.dat"_s,
                      QByteArray("PROVENZA").leftJustified(97).append("0007").leftJustified(128));
    Apri();
    Box(u"Vuoi convertire i vecchi file nel corrente database?\n\n"
        "I dati già presenti nel database saranno integrati e non cancellati.\n\nProcedo?"_s,
        QMessageBox::Yes, u"Conversione file"_s);
    Box(u"Conversione eseguita...\n\nUna copia dei vecchi file è nella cartella %1/Vecchi file 2027-06-05 10.52.00\n\n"
        "File da controllare:\nvand0007.dat: non c'è"_s.arg(cartella_.Percorso()),
        QMessageBox::Ok);
    Premi(u"cmdConverte"_s);
    EXPECT_EQ(Testo(u"txtLocalita"_s), u"PROVENZA"_s);
    EXPECT_FALSE(Pulsante(u"cmdConverte"_s).isVisible());
}

}  // namespace
}  // namespace cronovia
