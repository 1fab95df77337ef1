// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/maiuscole.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QValidator>

#include "calendar/testo.h"

namespace cronovia {

namespace {

// Typed letters change before they arrive, so that the box can undo its typing; what is pasted changes afterwards.
class Maiuscole : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& testo, int& /*posizione*/) const override {
        testo = Maiuscolo(testo);
        return Acceptable;
    }

    bool eventFilter(QObject* casella, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const auto& tasto = static_cast<const QKeyEvent&>(*event);
        const QString maiuscolo = Maiuscolo(tasto.text());
        if (maiuscolo == tasto.text()) return false;
        QKeyEvent altro(tasto.type(), tasto.key(), tasto.modifiers(), maiuscolo, tasto.isAutoRepeat());
        QCoreApplication::sendEvent(casella, &altro);
        event->setAccepted(altro.isAccepted());
        return true;
    }
};

}  // namespace

void ScriviMaiuscolo(QLineEdit& casella) {
    auto* maiuscole = new Maiuscole(&casella);
    casella.setValidator(maiuscole);
    casella.installEventFilter(maiuscole);
}

}  // namespace cronovia
