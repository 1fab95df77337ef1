// SPDX-License-Identifier: GPL-3.0-or-later
// The kinds of controls that the frames are made of.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QString>
#include <QStringList>

#include "app/comandi.h"

class QTableView;

namespace cronovia {

/// A name for a control of an array: "cmbOra" and 3 are "cmbOra_3".
QString NomeDiSerie(const QString& nome, int indice);

/// Numbers from `da` to `a` as texts of so many digits, as many as they have when that is 0.
QStringList Numeri(int da, int a, int cifre, int passo = 1);

/// The quarters of an hour: 00, 15, 30, 45.
QStringList Quarti();

/// A list to choose from; nothing can be typed.
QComboBox* NuovoElenco(const QString& nome, const QStringList& voci, const QString& istruzione);

/// Lets a list's text be typed: nothing but digits, at most so many, and never completed. A refused key changes
/// nothing, so that what was selected is still replaced by the next one.
void LasciaScrivereCifre(QComboBox& elenco, int cifre);

/// Shows a text in a list: as a guest among its items when it has none of that text. Guests that were shown before go.
void MostraVoce(QComboBox& elenco, const QString& testo);

/// A box that takes so many characters.
QLineEdit* NuovaCasella(const QString& nome, int larghezzaMassima, const QString& istruzione);

/// A box in which a text of one paragraph is seen on so many lines, however long it is. Enter and Tab are the window's.
QPlainTextEdit* NuovaCasellaLunga(const QString& nome, int righe, const QString& istruzione);

/// Leaves the keys of undo and redo to the window while a box has nothing of its own to undo.
void LasciaAnnullare(QLineEdit& casella);

/// Leaves the key of pasting to the window while rows of a table are on the clipboard.
void LasciaIncollareRighe(QLineEdit& casella);

/// A box that shows a result and takes no focus.
QLineEdit* NuovoRisultato(const QString& nome, int cifre, const QString& istruzione);

/// The button of a command.
QPushButton* NuovoPulsante(const DescrizioneComando& comando);
/// A button that is no command of the table.
QPushButton* NuovoPulsante(const QString& nome, const QString& scritta, const QString& istruzione);

/// Rows of one line of text each, without rules between; Tab leads out of them.
void DisponiRighe(QTableView& tabella);

/// A label that leads to its control by its mnemonic and names it.
QLabel* NuovaEtichetta(const QString& testo, QWidget& controllo);
/// One that is not seen, for a control that has a parent: only who hears the control gets its name.
void EtichettaNascosta(const QString& testo, QWidget& controllo);

/// Disables all that a frame holds, or enables it, but for what is always as it is: its help, buttons of commands.
void Blocca(const QWidget& riquadro, bool bloccato);
void LasciaAbilitato(QWidget& controllo);

/// Just as wide as so many digits of the control's font, and `bordo` pixels.
void LarghezzaPer(QWidget& controllo, int caratteri, int bordo);

}  // namespace cronovia
