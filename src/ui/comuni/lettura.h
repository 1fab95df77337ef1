// SPDX-License-Identifier: GPL-3.0-or-later
// What is told to those who have the screen read out.
#pragma once

#include <QAccessible>
#include <QModelIndex>
#include <QString>
#include <QWidget>

namespace cronovia {

/// From now on a table or list whose current row changes is told to have the focus only if it has: who types elsewhere
/// goes on hearing what is typed. For the whole program.
void DiceSoloIlFuocoVero();

/// A control is told to be one whole of that kind, under that name, where its own class says neither. Before it is
/// shown.
void LettoCome(QWidget& controllo, QAccessible::Role genere, const QString& nome);

/// A row of a table as one text: a beginning, then what stands in the columns behind that of `cella`, each under its
/// heading. Who comes to the row hears it all.
QString RigaLetta(const QModelIndex& cella, const QString& inizio);

}  // namespace cronovia
