// The window as a person has it: controls found by name, mouse and keyboard, boxes answered by a script.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <cstdlib>
#include <deque>
#include <memory>

#include "app/sessione.h"
#include "exchange/importa_mete.h"
#include "support/prova.h"
#include "ui/form_mete.h"

namespace cronovia::prova {

using namespace Qt::StringLiterals;

class FinestraTest : public testing::Test {
  protected:
    FinestraTest() {
        QObject::connect(&occhio_, &QTimer::timeout, &occhio_, [this] { GuardaBox(); });
        occhio_.start(5);
    }
    void TearDown() override {
        EXPECT_TRUE(box_.empty()) << "never came: "
                                  << (box_.empty() ? std::string() : box_.front().testo.toStdString());
    }

    /// Opens the window, on Saturday 5 June 2027 at that time.
    void Apri(QTime ora = {10, 52}) {
        form_.reset();
        form_ = std::make_unique<FormMete>(cartella_.Percorso(), [ora] { return QDateTime({2027, 6, 5}, ora); });
        form_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    }
    void ImportaEsempio(const QString& nome) {
        Sessione sessione(cartella_.Percorso());
        Progress progress;
        ImportaMete({sessione.Archivio(), QStringLiteral(CRONOVIA_EXAMPLES "/") + nome + u".iei"_s, {}}, progress);
    }

    /// The next box will be this one and be answered with this button.
    void Box(const QString& testo, QMessageBox::StandardButton bottone, const QString& titolo = u"Cronovia"_s) {
        box_.push_back({testo, titolo, bottone});
    }

    template <typename Controllo = QWidget>
    Controllo& Trova(const QString& nome) {
        auto* controllo = form_->findChild<Controllo*>(nome);
        if (controllo == nullptr) throw std::runtime_error("no " + nome.toStdString());
        return *controllo;
    }
    QPushButton& Pulsante(const QString& nome) { return Trova<QPushButton>(nome); }
    QComboBox& Elenco(const QString& nome) { return Trova<QComboBox>(nome); }
    QString Testo(const QString& nome) { return Trova<QLineEdit>(nome).text(); }
    QString Scelta(const QString& nome) { return Elenco(nome).currentText(); }

    void Premi(const QString& nome) {
        QPushButton& pulsante = Pulsante(nome);
        ASSERT_TRUE(pulsante.isEnabled() && pulsante.isVisible()) << nome.toStdString();
        QTest::mouseClick(&pulsante, Qt::LeftButton);
        Attiva();
    }
    /// Presses a key where the focus is.
    void Tasto(Qt::Key tasto, Qt::KeyboardModifiers con = Qt::NoModifier) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), tasto, con);
        Attiva();
    }
    /// Types a text over the one that is there.
    void Scrivi(const QString& nome, const QString& testo) {
        auto& casella = Trova<QLineEdit>(nome);
        ASSERT_TRUE(casella.isEnabled()) << nome.toStdString();
        casella.setFocus();
        casella.selectAll();
        if (testo.isEmpty()) QTest::keyClick(&casella, Qt::Key_Delete);
        for (const QChar c : testo) QTest::sendKeyEvent(QTest::Click, &casella, Qt::Key_unknown, QString(c), {});
    }
    void ScriviNellElenco(const QString& nome, const QString& testo) {
        QLineEdit& casella = *Elenco(nome).lineEdit();
        casella.setFocus();
        casella.selectAll();
        QTest::keyClicks(&casella, testo);
    }
    /// Goes through a list with the arrow keys.
    void Scegli(const QString& nome, const QString& voce) {
        QComboBox& elenco = Elenco(nome);
        const int meta = elenco.findText(voce);
        ASSERT_GE(meta, 0) << voce.toStdString();
        ASSERT_TRUE(elenco.isEnabled()) << nome.toStdString();
        const int passi = meta - elenco.currentIndex();
        for (int i = 0; i < std::abs(passi); ++i) QTest::keyClick(&elenco, passi > 0 ? Qt::Key_Down : Qt::Key_Up);
    }

    void NuovaMeta(const QString& localita) {
        Premi(u"cmdNuovo"_s);
        Scrivi(u"txtLocalita"_s, localita);
        Scrivi(u"txtNazione"_s, u"italia"_s);
        Box(u"Confermi inserimento meta?"_s, QMessageBox::Yes, u"Inserimento meta"_s);
        Premi(u"cmdSalva"_s);
    }
    void ScriviTappa(const QString& localita, const QString& km) {
        Scrivi(u"txtTappa"_s, localita);
        Scrivi(u"txtKm"_s, km);
        Premi(u"cmdInserisce"_s);
    }
    void BoxFine(QMessageBox::StandardButton bottone) {
        Box(u"Hai chiesto di uscire dalla funzione 'Itinerari':\n\nVuoi salvare le eventuali modifiche?"_s, bottone,
            u"Fine inserimento"_s);
    }
    QString Cella(int riga, int colonna) {
        const QAbstractItemModel& modello = *Trova<QTableView>(u"mfgTab"_s).model();
        return modello.index(riga, colonna).data().toString();
    }
    QString Intestazione(int colonna) {
        return Trova<QTableView>(u"mfgTab"_s).model()->headerData(colonna, Qt::Horizontal).toString();
    }
    /// The localities in the grid.
    QString Tappe() {
        QStringList nomi;
        const int righe = Trova<QTableView>(u"mfgTab"_s).model()->rowCount();
        for (int riga = 0; riga < righe; ++riga) {
            if (!Cella(riga, 1).isEmpty()) nomi += Cella(riga, 1);
        }
        return nomi.join(u' ');
    }
    /// Object names of the main commands that can be pressed, without "cmd".
    QString Abilitati() {
        QStringList nomi;
        for (const QPushButton* pulsante : Trova<QWidget>(u"frmBottoni"_s).findChildren<QPushButton*>()) {
            if (pulsante->isEnabled()) nomi += pulsante->objectName().mid(3);
        }
        nomi.sort();
        return nomi.join(u' ');
    }

    CartellaDiProva cartella_;
    std::unique_ptr<FormMete> form_;

  private:
    // A display gives the focus back to the window when its boxes are gone; the one of the tests has to be asked.
    void Attiva() {
        if (!form_->isVisible() || form_->isActiveWindow()) return;
        form_->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    }

    struct BoxAtteso {
        QString testo;
        QString titolo;
        QMessageBox::StandardButton bottone;
    };
    void GuardaBox() {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isVisible()) return;
        if (box_.empty() || box->button(box_.front().bottone) == nullptr) {
            ADD_FAILURE() << "unexpected box: " << box->text().toStdString();
            box->done(QMessageBox::No);
            return;
        }
        const BoxAtteso atteso = box_.front();
        box_.pop_front();
        EXPECT_EQ(box->text(), atteso.testo);
        EXPECT_EQ(box->windowTitle(), atteso.titolo);
        QTest::mouseClick(box->button(atteso.bottone), Qt::LeftButton);
    }

    std::deque<BoxAtteso> box_;
    QTimer occhio_;
};

}  // namespace cronovia::prova
