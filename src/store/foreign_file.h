// SPDX-License-Identifier: GPL-3.0-or-later
// Files under the archive's name that are none of ours.
#pragma once

#include <QString>

namespace SQLite {
class Database;
}

namespace cronovia {

/// Refuses a path that holds something other than a database file: a folder, a device, an empty file, one of another
/// kind or of the Jet engine. It is only read; nothing at the path is fine.
void RefuseForeignFile(const QString& path);

/// Refuses a database of another program, also one with tables of our names, one with views or triggers, which no
/// archive has, and one of a newer schema. Nothing is run that the file brings with it.
void RefuseForeignDatabase(SQLite::Database& database, const QString& path);

/// Whether what stands there is a file that no program left so: empty, or without the beginning of any database that is
/// known.
bool IsDestroyed(const QString& path);

/// Whether it has any table.
bool HasTables(SQLite::Database& database);

}  // namespace cronovia
