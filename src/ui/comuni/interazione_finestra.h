// SPDX-License-Identifier: GPL-3.0-or-later
// Questions and messages as boxes over the window.
#pragma once

#include <QWidget>

#include "interaction/interaction.h"

namespace cronovia {

class InterazioneFinestra : public Interaction {
  public:
    /// The window must outlive it.
    explicit InterazioneFinestra(QWidget& finestra) : finestra_(finestra) {}

    void Show(const Message& message) override;
    Answer Ask(const Question& question) override;
    bool ShowUndoable(const Message& message, const QString& caption) override;

  private:
    QWidget& finestra_;
};

}  // namespace cronovia
