// SPDX-License-Identifier: GPL-3.0-or-later
// The progress of long operations: a status text and a bar.
#pragma once

#include <QElapsedTimer>
#include <QFrame>
#include <QLabel>
#include <QProgressBar>

#include "interaction/progress.h"

namespace cronovia {

/// Shows progress and lets the window live while it runs.
class Avanzamento : public QFrame, public Progress {
    Q_OBJECT

  public:
    explicit Avanzamento(QWidget* parent = nullptr);

    void Title(const QString& title) override;
    void Advance(double count, double total) override;
    bool StopRequested() override;

    /// The person wants the run to stop; the next run has begun.
    void ChiediStop() { stop_ = true; }
    void NuovaOperazione() { stop_ = false; }

  private:
    void LasciaVivereLaFinestra();

    QLabel* lblElaborazione_;
    QProgressBar* txtPerc_;
    QElapsedTimer ultima_;
    bool stop_ = false;
};

}  // namespace cronovia
