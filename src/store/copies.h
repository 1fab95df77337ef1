// SPDX-License-Identifier: GPL-3.0-or-later
// Copies of the archive: how one is laid, where they are kept, which of them stay.
#pragma once

#include <QDateTime>
#include <QString>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "store/schema.h"

namespace SQLite {
class Database;
}

namespace cronovia {

/// Copies the database as it was written last into a new file, whole or not at all, and checks it. `name` makes the
/// path out of a number from 1 on; the first one that is free is taken and returned. An `SQLite::Exception` when it
/// could not be done, with the code of a damaged file when the copy is none that can be relied on.
QString LayCopy(SQLite::Database& source, const std::function<QString(int)>& name);

/// A copy in the folder of the copies.
struct ArchiveCopy {
    QString path;
    QDateTime when;  ///< by its name
    QString reason;  ///< before what it was laid: "prima di importare"; empty for the one of each day
};

/// The folder of the copies in a data folder.
QString CopiesFolder(const QString& folder);

/// The copies of a data folder, the newest one first.
std::vector<ArchiveCopy> CopiesOf(const QString& folder);

/// How many of the newest copies stay when nobody wants another number.
inline constexpr int kNewestCopies = 10;

/// Lays a copy in the folder of the copies, which is made when it does not exist. Throws as `LayCopy` does.
QString LayAmongCopies(SQLite::Database& source, const QString& folder, const QDateTime& now, const QString& reason);

/// Those that need not stay: all but so many of the newest, and the newest one of each of the last twelve months.
/// `copies` has the newest one first.
std::vector<ArchiveCopy> CopiesToRemove(const std::vector<ArchiveCopy>& copies, const QDate& today, int newest);

/// How many rows the tables of an archive file have, of `AllTables` and in its order; nothing for one that is not
/// there. A `Failure` when the file cannot be read.
std::vector<std::optional<std::int64_t>> RowsIn(const QString& path);

/// Lays the archive file of a data folder, whatever it holds, out of the way: in order among the copies, else as it is
/// beside itself. Returns the path; empty when there was no file or it was empty. A `Failure` when that cannot be done.
QString KeepPresent(const QString& folder, const QDateTime& now, const QString& reason);

/// Lays a file as it is beside itself, as a damaged one; returns the path. A `Failure` when that cannot be done.
QString LayAside(const QString& path, const QDateTime& now);

/// Removes the copies that need not stay.
void ThinCopies(const QString& folder, const QDate& today, int newest);

/// A `Failure` when the file is no archive that can be relied on.
void RefuseBadCopy(const QString& path);

/// Puts the contents of a database file into another one's place as one transaction of that one, whatever it held:
/// other programs that have it open see the new contents. A `Failure` when it could not be done: then nothing was.
void ReplaceContents(const QString& path, const QString& source);

}  // namespace cronovia
