// SPDX-License-Identifier: GPL-3.0-or-later
// Which trips of an exchange file an import takes, and under which codes.
#pragma once

#include <QHash>
#include <QString>
#include <vector>

#include "store/archive.h"

namespace cronovia {

/// What became of a trip of the file.
enum class StatoMeta {
    NonScelta,   ///< the import does not take it
    InAttesa,    ///< its record was not met yet
    Inserita,    ///< it is in the archive
    Scartata,    ///< its destination was stored already
    TroppoLunga  ///< has more stages than a trip can have
};

/// A trip on its way from the file into the archive.
struct MetaDaImportare {
    QString codice;  ///< in the archive
    int tappe = 0;   ///< of those met
    StatoMeta stato = StatoMeta::NonScelta;
};

/// The trips of a file by their codes in it.
class MappaCodici {
  public:
    /// Notes a trip of the file; of several with the same code the first one.
    void Aggiungi(const QString& codiceNelFile);

    /// Chooses the trips to import, all of them when `scelti` is empty, and gives each its code: its own when it has
    /// six digits and is free, else the next free one above the highest in the archive, from 1 on behind the last of
    /// all. Leading zeros of a chosen code may be left out. A `Failure` when one is not in the file, or when no code is
    /// free.
    void Scegli(const std::vector<QString>& scelti, Archive& archive);

    /// Nothing when the file has no trip with that code.
    MetaDaImportare* Trova(const QString& codiceNelFile);

  private:
    QHash<QString, MetaDaImportare> mete_;
    std::vector<QString> inOrdine_;
};

}  // namespace cronovia
