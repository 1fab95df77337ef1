// SPDX-License-Identifier: GPL-3.0-or-later
// What the window looks like, from one start to the next.
#pragma once

#include <QSettings>
#include <QSize>
#include <functional>
#include <vector>

class QMainWindow;

namespace cronovia {

class AspettoFinestra {
  public:
    /// Of the window at its first start.
    static constexpr QSize kMisura{1280, 800};

    /// Kept in a file of the data folder.
    explicit AspettoFinestra(const QString& cartella);

    /// Size and place of the window, and those of its panels and bars.
    void Segue(QMainWindow& finestra);
    /// One thing more, by its name: what `comE` gave last is handed to `rimetti`, nothing when it never did.
    void Segue(const QString& nome, std::function<QVariant()> comE, std::function<void(const QVariant&)> rimetti);

    /// Puts all back as it was.
    void Ripristina();
    /// Keeps what has changed. Done now and then while the window is open too: whoever ends it by force finds it again.
    void Ricorda();

    /// The file, for what else is kept in it.
    [[nodiscard]] QSettings& Impostazioni() { return impostazioni_; }

  private:
    struct Ricordo {
        QString nome;
        std::function<QVariant()> comE;
        std::function<void(const QVariant&)> rimetti;
    };

    QSettings impostazioni_;
    std::vector<Ricordo> ricordi_;
};

}  // namespace cronovia
