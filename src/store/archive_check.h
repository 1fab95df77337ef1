// SPDX-License-Identifier: GPL-3.0-or-later
// What is wrong inside a database file.
#pragma once

#include <QString>
#include <vector>

namespace SQLite {
class Database;
}

namespace cronovia {

/// One kind of fault at one place of an archive.
struct Finding {
    bool damage = false;  ///< what is read may be wrong; else it is odd, and harms nobody
    QString text;         ///< an Italian sentence
    QString detail;       ///< the first one of them as the database tells it, for those who know it; may be empty
};

/// How much is looked at. Each one includes those before it.
enum class CheckDepth {
    Nothing,
    Pages,    ///< the pages of the file and what they say of themselves
    Indexes,  ///< whether each index tells what its table does
    Values,   ///< every value: its type, its letters
    Whole,    ///< the widths of the fields, and rows that need others
};

/// Looks through a database; no finding: all is in order. An error of the database that tells of damage is a finding
/// too, any other one is thrown. The values of a file that `UpdateTables` would change are not looked at.
std::vector<Finding> CheckDatabase(SQLite::Database& database, CheckDepth depth);

/// Whether what is read may be wrong.
bool AnyDamage(const std::vector<Finding>& findings);

/// The depth that takes less than 50 ms, by the number of pages; and that of a copy, which may take a little longer.
CheckDepth DepthAtOpening(SQLite::Database& database);
CheckDepth DepthForCopies(SQLite::Database& database);

/// Looks through the archive file of a data folder, whole. A `Failure` when there is none, or when the file is none
/// of ours.
std::vector<Finding> CheckArchive(const QString& folder);

}  // namespace cronovia
