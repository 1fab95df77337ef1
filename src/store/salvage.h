// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of a damaged database file, read one by one into a new one.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <map>
#include <vector>

#include "store/schema.h"

namespace SQLite {
class Database;
}

namespace cronovia {

/// Copies every table with all rows that can be read, without indexes. Letters that are none are replaced. Throws what
/// the database throws when not even the list of tables can be read.
void SalvageRows(SQLite::Database& damaged, SQLite::Database& target);

/// What the indexes of a damaged table say otherwise than the rows saved from it; of a missing row, what most of those
/// that can be read say.
struct IndexWitness {
    using Values = std::map<int, QString>;     // by the position of the field
    std::map<std::int64_t, Values> missing;    ///< rows that are not among those saved, with the values known of them
    std::map<std::int64_t, Values> different;  ///< values that the row has otherwise
};
IndexWitness WitnessOf(SQLite::Database& damaged, SQLite::Database& saved, Table table);

/// When the row with that id has these values in a copy: takes it from there if it is missing, else puts these values
/// into the one that is there. False when it has others, or is not there.
bool CompleteFromCopy(SQLite::Database& copy, SQLite::Database& saved, Table table, std::int64_t id,
                      const IndexWitness::Values& values);

}  // namespace cronovia
