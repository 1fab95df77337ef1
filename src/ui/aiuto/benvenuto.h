// SPDX-License-Identifier: GPL-3.0-or-later
// What is shown while there is no trip yet.
#pragma once

#include <QFrame>

namespace cronovia {

/// Says what the program does and offers three ways to begin.
class Benvenuto : public QFrame {
    Q_OBJECT

  public:
    Benvenuto();

  Q_SIGNALS:
    /// The person wants to begin: with a trip of their own; with those of an exchange file.
    void NuovoViaggio();
    void Importa();
    /// The exchange file of an example.
    void Esempio(const QString& file);
};

}  // namespace cronovia
