#include "ui/comuni/interazione_finestra.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString Titolo(const QString& titolo) { return titolo.isEmpty() ? QCoreApplication::applicationName() : titolo; }

// Some texts are those of files and terminals as well.
QString InRighe(QString text) { return text.replace("\r\n"_L1, "\n"_L1); }

QMessageBox::Icon Icona(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Exclamation:
            return QMessageBox::Warning;
        case Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton Bottone(Answer answer) {
    switch (answer) {
        case Answer::Yes:
            return QMessageBox::Yes;
        case Answer::Cancel:
            return QMessageBox::Cancel;
        case Answer::No:
            break;
    }
    return QMessageBox::No;
}

}  // namespace

void InterazioneFinestra::Show(const Message& message) {
    QMessageBox box(Icona(message.icon), Titolo(message.title), InRighe(message.text), QMessageBox::Ok, &finestra_);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

bool InterazioneFinestra::ShowUndoable(const Message& message, const QString& caption) {
    QMessageBox box(Icona(message.icon), Titolo(message.title), InRighe(message.text), QMessageBox::Ok, &finestra_);
    box.setTextFormat(Qt::PlainText);
    box.addButton(QMessageBox::Discard)->setText(caption);
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    return box.exec() == QMessageBox::Discard;
}

Answer InterazioneFinestra::Ask(const Question& question) {
    const auto si = question.salva ? QMessageBox::Save : QMessageBox::Yes;
    const auto no = question.salva ? QMessageBox::Discard : QMessageBox::No;
    QMessageBox::StandardButtons buttons = si | no;
    if (question.cancellable) buttons |= QMessageBox::Cancel;
    QMessageBox box(QMessageBox::Question, Titolo(question.title), question.text, buttons, &finestra_);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(question.salva ? si : Bottone(question.preset));
    if (question.salva) box.button(si)->setText(u"&Salva"_s);
    if (question.salva) box.button(no)->setText(u"&Non salvare"_s);
    if (!question.si.isEmpty()) box.button(si)->setText(question.si);
    if (!question.no.isEmpty()) box.button(no)->setText(question.no);
    // Closing the box by its frame leaves everything as it is.
    box.setEscapeButton(question.cancellable ? QMessageBox::Cancel : QMessageBox::No);
    const int bottone = box.exec();
    if (bottone == si) return Answer::Yes;
    return bottone == no || !question.cancellable ? Answer::No : Answer::Cancel;
}

}  // namespace cronovia
