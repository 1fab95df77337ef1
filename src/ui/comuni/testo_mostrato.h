// SPDX-License-Identifier: GPL-3.0-or-later
// The gate through which texts come on screen. Names of trips and places, of files and printers may hold anything: what
// is shown is what they hold, never markup, a letter to press, a turned direction of writing or a row without end.
#pragma once

#include <QLabel>
#include <QMessageBox>
#include <QString>

namespace cronovia {

/// A text for a tooltip of a cell, which would take some texts for markup.
QString TestoPiano(const QString& testo);

/// What a control tells under the mouse.
void MostraIstruzione(QWidget& controllo, const QString& istruzione);

/// A text that came from elsewhere as a part of a caption: of a button, a frame, an entry of a menu.
QString InScritta(const QString& testo);

/// The title of a window.
void MostraTitolo(QWidget& finestra, const QString& titolo);

/// A label; what it says later comes through `MostraScritta`.
QLabel* NuovaScritta(const QString& testo = {});
void MostraScritta(QLabel& scritta, const QString& testo);

/// A box over a window, or by itself. Texts that are those of files and terminals as well may come with CR LF.
class Box : public QMessageBox {
    Q_OBJECT

  public:
    /// Plain texts; the box goes with the window.
    Box(Icon icona, const QString& titolo, const QString& testo, StandardButtons bottoni, QWidget* finestra = nullptr);
};

}  // namespace cronovia
