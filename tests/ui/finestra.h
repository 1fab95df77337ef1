// SPDX-License-Identifier: GPL-3.0-or-later
// The window as a person has it: controls found by name, mouse and keyboard, boxes and dialogs answered by a script.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>

#include "support/prova.h"
#include "ui/form_mete.h"
#include "ui/nomi_letti.h"
#include "ui/testi_mostrati.h"

namespace cronovia::prova {

using namespace Qt::StringLiterals;

class FinestraTest : public testing::Test {
  protected:
    FinestraTest() {
        QObject::connect(&occhio_, &QTimer::timeout, &occhio_, [this] { GuardaDialogo(); });
        occhio_.start(5);
    }

    /// Opens the window, on Saturday 5 June 2027 at that time.
    void Apri(QTime ora = {10, 52}) {
        form_.reset();
        form_ = std::make_unique<FormMete>(
            cartella_.Path(),
            [ora] {
                return QDateTime({2027, 6, 5}, ora);
            },
            FinteStampanti());
        form_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
        form_->Comincia();
    }

    /// What comes up next, how it is answered, and what it must say.
    struct Attesa {
        enum class Che { Box, File, Altro } che = Che::Box;
        QString testo;                                          ///< of a box; "…" at its end: anything may follow
        QString titolo = u"Cronovia"_s;                         ///< of a box
        QMessageBox::StandardButton bottone = QMessageBox::Ok;  ///< of a box
        QString file;                                           ///< for a file dialog; none: it is called off
        /// What Enter answers when it is asked; without one that is the answer that loses nothing.
        QMessageBox::StandardButton preset = QMessageBox::NoButton;
        std::function<void()> intanto = {};  ///< happens while it is open
    };
    void Intanto(std::function<void()> cosa) {
        attese_.back().intanto = [prima = attese_.back().intanto, poi = std::move(cosa)] {
            if (prima) prima();
            poi();
        };
    }
    void Attendi(Attesa attesa) { attese_.push_back(std::move(attesa)); }
    /// A failure when something that must have come did not.
    void TuttoVenuto() {
        for (; !attese_.empty(); attese_.pop_front())
            ADD_FAILURE() << "never came: " << attese_.front().testo.toStdString();
    }
    /// What the last dialog that is no box was: its class, and its visible actions.
    QString visto_;

    template <typename Oggetto = QWidget>
    Oggetto& Trova(const QString& nome) {
        if (form_ == nullptr) throw std::runtime_error("the window is not open");
        auto* oggetto =
            form_->objectName() == nome ? qobject_cast<Oggetto*>(form_.get()) : form_->findChild<Oggetto*>(nome);
        if (oggetto == nullptr) throw std::runtime_error("there is no " + nome.toStdString());
        return *oggetto;
    }
    template <typename Controllo = QWidget>
    Controllo& Usabile(const QString& nome) {
        auto& controllo = Trova<Controllo>(nome);
        if (!controllo.isVisible()) throw std::runtime_error(nome.toStdString() + " is not visible");
        if (!controllo.isEnabled()) throw std::runtime_error(nome.toStdString() + " is not enabled");
        return controllo;
    }

    void Premi(const QString& nome) {
        auto& pulsante = Usabile<QAbstractButton>(nome);
        const bool spunta = qobject_cast<QPushButton*>(&pulsante) == nullptr;
        QTest::mouseClick(&pulsante, Qt::LeftButton, {}, spunta ? QPoint(8, pulsante.height() / 2) : QPoint());
        Attiva();
    }
    /// Presses a key where the focus is; a button that has its key goes down first.
    void Tasto(QKeyCombination tasto) {
        if (QApplication::focusWidget() == nullptr) throw std::runtime_error("nothing has the focus");
        QTest::keyClick(QApplication::focusWidget(), tasto.key(), tasto.keyboardModifiers());
        const auto giu = [this] {
            const auto pulsanti = form_->findChildren<QAbstractButton*>();
            return std::any_of(pulsanti.begin(), pulsanti.end(), [](const auto* p) { return p->isDown(); });
        };
        while (giu()) QTest::qWait(5);
        Attiva();
    }
    /// Types digit by digit, each where the focus is then.
    void Batti(const QString& testo) {
        for (const QChar c : testo) {
            QWidget* fuoco = QApplication::focusWidget();
            if (fuoco == nullptr) throw std::runtime_error("nothing has the focus");
            if (c.unicode() < 128) {
                QTest::keyClick(fuoco, c.toLatin1());
            } else {
                QTest::sendKeyEvent(QTest::Click, fuoco, Qt::Key_unknown, QString(c), {});
            }
        }
    }
    /// Types a text over the one that is there.
    void Scrivi(const QString& nome, const QString& testo) {
        QWidget* casella = &Usabile(nome);
        if (auto* elenco = qobject_cast<QComboBox*>(casella)) casella = elenco->lineEdit();
        auto* lunga = qobject_cast<QPlainTextEdit*>(casella);
        const bool corta = qobject_cast<QLineEdit*>(casella) != nullptr;
        if (!corta && lunga == nullptr) throw std::runtime_error("nothing is typed there");
        QTest::mouseClick(corta ? casella : lunga->viewport(), Qt::LeftButton);
        QTest::keyClick(casella, Qt::Key_A, Qt::ControlModifier);
        if (testo.isEmpty()) QTest::keyClick(casella, Qt::Key_Delete);
        Batti(testo);
    }

    // A display gives the focus back to what is in front when boxes are gone; the one of the tests has to be asked.
    void Attiva() {
        QWidget* modale = QApplication::activeModalWidget();
        QWidget* davanti = modale != nullptr ? modale : form_.get();
        if (!davanti->isVisible() || davanti->isActiveWindow()) return;
        davanti->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(davanti));
    }

    CartellaDiProva cartella_;
    std::unique_ptr<FormMete> form_;
    QStringList stampanti_;  ///< that there are now; the last one is the system's own choice

  private:
    // What one of them prints is a PDF file of its name.
    Stampanti FinteStampanti() {
        return {[this] { return stampanti_; }, [this] { return stampanti_.value(stampanti_.size() - 1); },
                [this](const QString& nome) {
                    auto carta = std::make_unique<QPrinter>(QPrinter::HighResolution);
                    carta->setOutputFileName(cartella_.Path() + u'/' + nome + u".pdf"_s);
                    return carta;
                }};
    }
    void GuardaDialogo() {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialogo == nullptr || !dialogo->isVisible() || dialogo->property("servito").toBool()) return;
        dialogo->setProperty("servito", true);
        if (!dialogo->inherits("QFileDialog") && !dialogo->inherits("QPrintPreviewDialog")) SorvegliaNomi(*dialogo);
        auto* box = qobject_cast<QMessageBox*>(dialogo);
        const bool scelta = qobject_cast<QFileDialog*>(dialogo) != nullptr;
        const auto che = box != nullptr ? Attesa::Che::Box : scelta ? Attesa::Che::File : Attesa::Che::Altro;
        const Attesa attesa = attese_.empty() ? Attesa() : attese_.front();
        if (attese_.empty() || attesa.che != che || (box != nullptr && box->button(attesa.bottone) == nullptr)) {
            ADD_FAILURE() << "unexpected: " << (box != nullptr ? box->text() : dialogo->windowTitle()).toStdString();
            return dialogo->done(box != nullptr ? int{QMessageBox::No} : int{QDialog::Rejected});
        }
        attese_.pop_front();
        if (!attesa.intanto) return Rispondi(*dialogo, attesa);
        QTimer::singleShot(0, dialogo, [this, dialogo, attesa] {
            attesa.intanto();
            Rispondi(*dialogo, attesa);
        });
    }
    void Rispondi(QDialog& dialogo, const Attesa& attesa) {
        if (auto* box = qobject_cast<QMessageBox*>(&dialogo)) return RispondiBox(*box, attesa);
        if (auto* scelta = qobject_cast<QFileDialog*>(&dialogo)) return ScegliFile(*scelta, attesa.file);
        visto_ = QString::fromLatin1(dialogo.metaObject()->className());
        for (const QAction* azione : dialogo.findChildren<QAction*>()) {
            if (azione->isVisible() && !azione->text().isEmpty()) visto_ += u'|' + azione->text();
        }
        attesa.file.isEmpty() ? dialogo.reject() : dialogo.accept();
        if (!dialogo.isVisible()) return;
        ADD_FAILURE() << "stays open: " << dialogo.windowTitle().toStdString();
        dialogo.reject();
    }
    void RispondiBox(QMessageBox& box, const Attesa& attesa) {
        if (attesa.testo.endsWith(u'…')) {
            EXPECT_TRUE(box.text().startsWith(attesa.testo.chopped(1))) << box.text().toStdString();
        } else {
            EXPECT_EQ(box.text(), attesa.testo);
        }
        EXPECT_EQ(box.windowTitle(), attesa.titolo);
        if (qobject_cast<QFileDialog*>(box.parentWidget()) == nullptr) TestiMostrati::Sorveglia(box);
        EXPECT_TRUE(box.buttons().size() == 1 || box.defaultButton() == Preset(box, attesa.preset))
            << "another answer is preset: " << box.text().toStdString();
        QTest::mouseClick(box.button(attesa.bottone), Qt::LeftButton);
    }
    static QAbstractButton* Preset(const QMessageBox& box, QMessageBox::StandardButton preset) {
        for (const auto quale : {preset, QMessageBox::Yes, QMessageBox::Save, QMessageBox::Ok}) {
            if (quale != QMessageBox::NoButton && box.button(quale) != nullptr) return box.button(quale);
        }
        return nullptr;
    }
    void ScegliFile(QFileDialog& scelta, const QString& file) {
        visto_ = scelta.nameFilters().join(u'|');
        auto* nome = scelta.findChild<QLineEdit*>(u"fileNameEdit"_s);
        nome->setText(file);
        // It may ask something itself, and waits for the answer.
        QTimer::singleShot(0, nome,
                           [nome, file] { QTest::keyClick(nome, file.isEmpty() ? Qt::Key_Escape : Qt::Key_Return); });
    }

    std::deque<Attesa> attese_;
    QTimer occhio_;
};

}  // namespace cronovia::prova
