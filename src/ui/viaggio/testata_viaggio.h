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
    explicit TestataViaggio(QWidget& campi);

    /// Folds and unfolds, for menu and key: checked while the fields are unfolded.
    [[nodiscard]] QAction& Azione() const { return *azione_; }
    /// Where no fields are needed they are away, and there for a new trip, whatever the person chose.
    void Mostra(const Postazione& postazione);
    /// The person has to see the fields.
    void Apri() { azione_->setChecked(true); }

  private:
    void Disponi(bool aperta);

    QWidget& campi_;
    QAction* azione_;
    QToolButton* maniglia_;
    ScrittaStretta* riassunto_;
    ScrittaStretta* scadenza_;
    bool nuova_ = false;    // a new trip is being typed
    bool altrove_ = false;  // the screen in front is not about one trip
};

}  // namespace cronovia
