// SPDX-License-Identifier: GPL-3.0-or-later
// A frame that lies over the grid and is left by one of two buttons.
#pragma once

#include <QFrame>
#include <QPushButton>
#include <QVBoxLayout>

namespace cronovia {

/// A caption with what the frame puts under it. Enter presses the button in focus, else the first; Escape the second.
/// Neither reaches the window.
class RiquadroSovrapposto : public QFrame {
    Q_OBJECT

  public:
    /// Hidden at first; `nome` is that of the frame, `scritta` its caption.
    RiquadroSovrapposto(const QString& nome, const QString& scritta);

    /// On show while it is `aperto`; in use then unless another frame lies over it, and with the focus once it is.
    void Mostra(bool aperto, bool inUso);

    /// On what `PrimoControllo` says.
    void Fuoco() { PrimoControllo().setFocus(); }

  protected:
    /// Before it is shown, and what gets the focus then.
    virtual void Prepara() {}
    [[nodiscard]] virtual QWidget& PrimoControllo() const { return *conferma_; }
    [[nodiscard]] QVBoxLayout& Contenuto() const { return *contenuto_; }
    /// The two buttons, for the frame to place.
    void Pulsanti(QPushButton* conferma, QPushButton* rinuncia);
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QVBoxLayout* contenuto_;
    QPushButton* conferma_ = nullptr;
    QPushButton* rinuncia_ = nullptr;
};

}  // namespace cronovia
