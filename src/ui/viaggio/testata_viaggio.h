// SPDX-License-Identifier: GPL-3.0-or-later
// The line above the fields of the trip: folds them away, and says in short what they hold.
#pragma once

#include <QAction>
#include <QToolButton>
#include <QWidget>

#include "app/postazione.h"

namespace cronovia {

class ScrittaStretta;

class TestataViaggio : public QWidget {
    Q_OBJECT

  public:
    /// Of these fields, which stand below it.
    TestataViaggio(const Postazione& postazione, QWidget& campi);

    /// Folds and unfolds, for menu and key: checked while the fields are unfolded.
    [[nodiscard]] QAction& Azione() const { return *azione_; }
    /// Where no fields are needed they are away, and there for a new trip, whatever the person chose.
    void Mostra();
    /// The person has to see the fields.
    void Apri() { azione_->setChecked(true); }

  private:
    /// A new trip is being typed.
    [[nodiscard]] bool Nuova() const;
    /// The screen in front is not about one trip.
    [[nodiscard]] bool Altrove() const;
    void Disponi();

    const Postazione& postazione_;
    QWidget& campi_;
    QAction* azione_;
    QToolButton* maniglia_;
    ScrittaStretta* riassunto_;
    ScrittaStretta* scadenza_;
};

}  // namespace cronovia
