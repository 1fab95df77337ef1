// SPDX-License-Identifier: GPL-3.0-or-later
// A list to choose from by click or by Enter, in letters of equal width; a click beside it gives up.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QVariant>
#include <functional>
#include <vector>

namespace cronovia {

/// An entry: what is read, what stands for it, and whether it is the current one.
struct VoceScelta {
    QString testo;
    QVariant dato;
    bool corrente = false;
};

/// A locality in a column of so many characters, with its row, which stands for it.
VoceScelta VoceLocalita(const QString& localita, int colonne, int riga, bool corrente);

class ElencoScelta : public QListWidget {
    Q_OBJECT

  public:
    /// Hidden at first; `descrizione` names it.
    ElencoScelta(const QString& nome, const QString& descrizione);
    /// Puts a heading over the entries, which stays while they scroll.
    void Intesta(const QString& intestazione);
    /// Shows the list, or hides it. While it is open and the entries are the same, nothing moves.
    void Mostra(bool aperto, const std::function<std::vector<VoceScelta>()>& voci);

  Q_SIGNALS:
    /// What stands for the entry that was chosen.
    void Scelta(const QVariant& dato);
    /// The person went on elsewhere.
    void Rinuncia();

  protected:
    bool eventFilter(QObject* oggetto, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    [[nodiscard]] bool GiaElencate(const std::vector<VoceScelta>& voci) const;

    QLabel* intestazione_ = nullptr;
};

}  // namespace cronovia
