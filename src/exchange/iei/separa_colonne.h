// SPDX-License-Identifier: GPL-3.0-or-later
// The values of one line of a text file that came from elsewhere.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <vector>

namespace cronovia {

/// The values of a line, in the file's bytes, without blanks around them.
struct Colonne {
    QByteArray riga;                     ///< what the values point into
    std::vector<QByteArrayView> valori;  ///< at most `kMassimo`
    int tolti = 0;                       ///< characters removed: double quotes, control characters other than Tab
    int inPiu = 0;                       ///< values beyond the last one that is taken

    static constexpr int kMassimo = 100;
};

/// Splits a line at its separator: of the bytes FF, FE, FD, FC, Tab, "," ";" and "!" the first that it holds anywhere.
/// Each value is followed by the separator, the last one may go without. A line without a separator is one value.
Colonne SeparaColonne(QByteArrayView riga);

}  // namespace cronovia
