// Brings a database file to today's tables.
#pragma once

#include <QString>

#include "store/schema.h"

namespace SQLite {
class Database;
}

namespace cronovia {

/// Refuses a path that holds something other than an archive: another kind of file, a database of another program, one
/// of the Jet engine, or a newer schema. The file is only read.
void RefuseForeignFile(const QString& path);

/// Creates missing tables and indexes, adds missing fields and follows changed widths, all in one transaction. Before
/// an existing table set is changed, a copy of the file is laid beside it. Refused when a value does not fit its field.
void UpdateTables(SQLite::Database& database, const QString& path);

/// Whether the file has a table; and makes one that is made on demand, within a transaction of the caller.
bool HasTable(SQLite::Database& database, Table table);
void MakeTable(SQLite::Database& database, Table table);

/// Copies the database into a new file; an `SQLite::Exception` when it could not be done whole.
void CopyDatabase(SQLite::Database& database, const QString& path);

}  // namespace cronovia
