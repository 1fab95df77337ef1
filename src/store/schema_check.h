// SPDX-License-Identifier: GPL-3.0-or-later
// Brings a database file to today's tables.
#pragma once

#include <QString>

#include "store/schema.h"

namespace SQLite {
class Database;
}

namespace cronovia {

/// Creates missing tables and indexes, adds missing fields and follows changed widths, all in one transaction. Before
/// an existing table set is changed, a copy of the file is laid beside it. A `Failure` when a value does not fit its
/// field; the database's own errors go on to the caller.
void UpdateTables(SQLite::Database& database, const QString& path);

/// Whether the file has a table; and makes one that is made on demand, within a transaction of the caller.
bool HasTable(SQLite::Database& database, Table table);
void MakeTable(SQLite::Database& database, Table table);

/// Whether `UpdateTables` would change nothing.
bool UpToDate(SQLite::Database& database);

/// The tables of every archive, and those on demand that this one has.
std::vector<Table> TablesOf(SQLite::Database& database);

}  // namespace cronovia
