// SPDX-License-Identifier: GPL-3.0-or-later
// An archive too large to be looked through at its opening is, while the person pauses.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <optional>

#include "store/background_check.h"

namespace cronovia {

class ControlloInPausa : public QObject {
    Q_OBJECT

  public:
    /// Looks through the file once, and goes when that has ended; what comes in from keyboard or mouse stops it, to
    /// begin anew in the next pause.
    ControlloInPausa(const QString& archivio, QObject* parent);

  Q_SIGNALS:
    /// That is what it found out.
    void Danneggiato();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void Finito(std::optional<bool> danneggiato);

    BackgroundCheck controllo_;
    QTimer pausa_;
};

}  // namespace cronovia
