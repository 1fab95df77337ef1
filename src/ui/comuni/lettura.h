// SPDX-License-Identifier: GPL-3.0-or-later
// What is told to those who have the screen read out.
#pragma once

#include <QModelIndex>
#include <QString>

namespace cronovia {

/// From now on a table or list whose current row changes is told to have the focus only if it has: who types elsewhere
/// goes on hearing what is typed. For the whole program.
void DiceSoloIlFuocoVero();

/// A row of a table as one text: a beginning, then what stands in the columns behind that of `cella`, each under its
/// heading. Who comes to the row hears it all.
QString RigaLetta(const QModelIndex& cella, const QString& inizio);

}  // namespace cronovia
