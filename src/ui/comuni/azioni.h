// SPDX-License-Identifier: GPL-3.0-or-later
// The commands as actions: in the menu, on buttons and behind keys it is the same one.
#pragma once

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <array>

#include "app/comandi.h"

class QMainWindow;

namespace cronovia {

/// The key of a command, wherever it holds; empty when it has none.
[[nodiscard]] QKeySequence TastoDi(Comando comando);
/// Gives an action the words and the key of a command.
void Presenta(QAction& azione, Comando comando);

class Azioni : public QObject {
    Q_OBJECT

  public:
    /// Fills the menu bar of the window with all commands of the table that have a procedure. They are disabled until
    /// `Applica`.
    explicit Azioni(QMainWindow& finestra);

    /// A button that does the command; whoever asks for it places it. One for each command.
    QPushButton* NuovoPulsante(Comando comando);
    /// That button; the command must have one.
    [[nodiscard]] QPushButton& Pulsante(Comando comando) const { return *pulsanti_[static_cast<std::size_t>(comando)]; }
    /// Its action; each command has one.
    /// The action of a command that has a procedure.
    [[nodiscard]] QAction& Di(Comando comando) const { return *azioni_[static_cast<std::size_t>(comando)]; }
    /// For what has an action of its own: panels shown and hidden, instructions.
    [[nodiscard]] QMenu& MenuDi(Menu menu) const { return *menu_[static_cast<std::size_t>(menu)]; }

    /// Enabled and captions as they are at this moment.
    void Applica(const StatoComandi& stato);

  Q_SIGNALS:
    /// The person wants the command, by whatever means.
    void Chiesto(Comando comando);

  private:
    void CreaAzione(const DescrizioneComando& comando);

    std::array<QMenu*, kMenu> menu_{};
    std::array<QAction*, kComandi> azioni_{};
    std::array<QPushButton*, kComandi> pulsanti_{};
};

}  // namespace cronovia
