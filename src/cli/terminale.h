// SPDX-License-Identifier: GPL-3.0-or-later
// The person at the other end of a command line, when there is one.
#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QTextStream>
#include <optional>

#include "interaction/progress.h"

namespace cronovia {

/// Which ends of a line are a terminal, and whether it may be coloured.
struct Terminale {
    bool ingresso = false;
    bool uscita = false;
    bool errori = false;
    bool colori = false;

    /// Those of this process; no colours when NO_COLOR is set to anything, or TERM does not say that there are some.
    static Terminale DelProcesso();
};

/// Asks on a terminal, "s", "si" or "sì" for yes, all else for no; nothing when nobody can answer.
std::optional<bool> Chiedi(const Terminale& terminale, const QString& domanda, QTextStream& errori);

/// Tells what lasts longer than a second how far it is, on one line that goes when it has ended.
class AvanzamentoSulTerminale : public Progress {
  public:
    /// Tells nothing unless `mostra`; the stream must outlive it.
    AvanzamentoSulTerminale(QTextStream& errori, bool mostra) : errori_(errori), mostra_(mostra) { passato_.start(); }
    ~AvanzamentoSulTerminale() override;

    void Title(const QString& title) override { titolo_ = title; }
    void Advance(double count, double total) override;

    /// Takes the line away, before something else is told.
    void Togli();

  private:
    QTextStream& errori_;
    bool mostra_;
    QElapsedTimer passato_;
    qint64 mostrato_ = 0;  // milliseconds
    qsizetype larghezza_ = 0;
    QString titolo_;
};

}  // namespace cronovia
