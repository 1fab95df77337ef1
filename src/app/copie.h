// SPDX-License-Identifier: GPL-3.0-or-later
// The copies of the archive as people choose among them, and putting one into its place.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "store/copies.h"

class QDateTime;

namespace cronovia {

/// A copy with what it holds.
struct CopiaInElenco {
    ArchiveCopy copia;
    qint64 byte = 0;                   ///< its size
    std::optional<std::int64_t> mete;  ///< trips and stages; nothing when it cannot be read
    std::optional<std::int64_t> tappe;

    /// "ogni giorno", or before what it was laid.
    [[nodiscard]] QString Perche() const;
};

/// The copies of a data folder, the newest one first.
std::vector<CopiaInElenco> ElencoCopie(const QString& cartella);

/// The path of a copy by what a person calls it: its number in the list, from 1, its name, or a path to a file
/// anywhere. A `Failure` when there is none.
QString TrovaCopia(const QString& cartella, const QString& chiamata);

/// What an archive would be with a copy in its place, as lines of text: which trips come back, go, become others. Never
/// empty. A `Failure` when the copy is none that can be relied on.
QString CosaCambierebbe(const QString& cartella, const QString& copia);

/// Puts a copy into the archive's place, which becomes a copy itself, or, when it is damaged, a file beside it.
/// Returns that file's path, empty when there was no archive. A `Failure` when the copy is none that can be relied on,
/// or when something cannot be written: all is as it was then.
QString RipristinaCopia(const QString& cartella, const QString& copia, const QDateTime& adesso);

/// Tells in a sentence that it was done, and where the archive of before is.
QString TestoRipristinata(const QString& copia, const QString& diPrima);

}  // namespace cronovia
