// SPDX-License-Identifier: GPL-3.0-or-later
// The page of the manual for the terminal, from the table of the verbs.
#pragma once

#include <QString>

namespace cronovia {

/// The page in the language of `man`: every verb with its options, where the data lies, exit codes, examples. `data` is
/// that of the release, as yyyy-mm-dd.
QString PaginaDelManuale(const QString& versione, const QString& data);

}  // namespace cronovia
