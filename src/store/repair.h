// SPDX-License-Identifier: GPL-3.0-or-later
// A damaged archive made readable again, as far as its file and its copies allow.
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "store/copies.h"
#include "store/schema.h"

namespace cronovia {

/// What became of the rows of one table.
struct RepairedTable {
    Table table = Table::MeteVandro;
    std::int64_t kept = 0;      ///< rows of the repaired file
    std::int64_t fromCopy = 0;  ///< of these, those that only a copy had, or that it could put right
    std::int64_t lost = 0;      ///< rows that an index still knew, and nothing else
};

/// A repaired file that waits to be put in place; it goes with the object.
struct Repair {
    /// How it came about.
    enum class Way {
        Indexes,  ///< the rows were in order, only indexes were not
        Rows,     ///< read row by row into a new file
        Copy,     ///< the file cannot be read: it is the last good copy
    };
    Way way = Way::Indexes;
    QString path;                       ///< of the repaired file
    std::vector<RepairedTable> tables;  ///< in the order of their numbers
    QStringList rebuilt;                ///< names of lost trips, made anew for the stages that are left of them
    QStringList doubts;                 ///< texts of which the file says two things: "«ALBA» o «ALBB»"; 20 at most
    std::optional<ArchiveCopy> lastGood;   ///< the newest copy that is in order
    std::shared_ptr<QTemporaryDir> place;  ///< the folder that the file lies in
    QDateTime written;                     ///< when the damaged file was written last
};

/// Repairs a copy of a data folder's archive; the archive stays as it is. First the indexes alone, then row by row with
/// the help of the copies, at last the newest good copy itself. A `Failure` when there is no archive, when it is
/// in order, or when nothing helps.
Repair PrepareRepair(const QString& folder);

/// Puts the repaired file into the archive's place and returns the path of the damaged one, which stays beside it. A
/// `Failure` when the archive was written to since, or when it cannot be done: all is as it was then.
QString ApplyRepair(const QString& folder, const Repair& repair, const QDateTime& now);

}  // namespace cronovia
