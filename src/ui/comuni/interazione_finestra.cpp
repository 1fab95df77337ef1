// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/interazione_finestra.h"

#include <QCoreApplication>
#include <QIcon>
#include <QPushButton>

#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString Titolo(const QString& titolo) { return titolo.isEmpty() ? QCoreApplication::applicationName() : titolo; }

QMessageBox::Icon Icona(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Exclamation:
            return QMessageBox::Warning;
        case Icon::None:
        case Icon::Programma:
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
    Box box(Icona(message.icon), Titolo(message.title), message.text, QMessageBox::Ok, &finestra_);
    if (message.icon == Icon::Programma) box.setIconPixmap(QIcon(u":/icone/cronovia.svg"_s).pixmap(64));
    box.exec();
}

bool InterazioneFinestra::ShowUndoable(const Message& message, const QString& caption) {
    Box box(Icona(message.icon), Titolo(message.title), message.text, QMessageBox::Ok, &finestra_);
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
    Box box(QMessageBox::Question, Titolo(question.title), question.text, buttons, &finestra_);
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
