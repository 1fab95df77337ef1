// SPDX-License-Identifier: GPL-3.0-or-later
// The archive: one database file with all trips, itineraries and the city guide.
#pragma once

#include <QString>
#include <QStringView>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "interaction/progress.h"
#include "store/name_pattern.h"
#include "store/schema.h"

class QDateTime;

namespace cronovia {

/// One row of a table: all its fields as texts, in the table's order. A yes/no field is "1" or "0".
struct Record {
    std::int64_t id = 0;  ///< 0 before it is stored
    std::vector<QString> values;

    /// The value of a field, by its position in the table.
    [[nodiscard]] const QString& operator[](int field) const { return values[static_cast<std::size_t>(field)]; }
    [[nodiscard]] QString& operator[](int field) { return values[static_cast<std::size_t>(field)]; }
};

/// One condition on a field, by its position in the table.
struct Condition {
    int field = 0;
    NamePattern pattern;
};

/// Which rows of a table: those that fulfil every condition. The first condition leads the search, through an index
/// when its field has one and its pattern a literal beginning.
struct Search {
    Table table = Table::MeteVandro;
    std::vector<Condition> conditions;
};

/// What decides first in the order of lists that people read: base letters without case or accents. Texts with the
/// same key stand in the order of their characters.
QString AlphabeticalKey(QStringView text);

/// Sorts rows by these fields, the first one leading, as `Archive::Select` does.
void SortRecords(std::vector<Record>& records, std::initializer_list<int> order);

/// The open database file. Every failure is a `Failure` with its message. Only `Transaction` makes several changes one,
/// only `ReadSnapshot` several readings.
class Archive {
  public:
    /// Opens the archive of a data folder, which is made when it does not exist, as is the file. Missing tables, fields
    /// and indexes are added and changed widths followed, after a copy of the file was laid beside it; a file that
    /// cannot be used is refused and left as it was. As much of it is checked as takes no time worth mentioning.
    static Archive Open(const QString& folder);

    /// Opens a copy to be read only. A `Failure` when it cannot be, or when its tables are those of an older release.
    static Archive OpenCopy(const QString& path);

    /// Path of the database file in a data folder.
    static QString FilePath(const QString& folder);

    Archive(Archive&&) noexcept;
    Archive& operator=(Archive&&) noexcept;
    ~Archive();

    /// Path of this one's file.
    [[nodiscard]] const QString& Path() const;

    /// A sentence about its damage; empty as far as is known. While it is damaged nothing can be written, and what is
    /// read may be incomplete.
    [[nodiscard]] const QString& Damage() const;
    /// Whether its pages and indexes were checked: at its opening, if it was small enough, or since.
    [[nodiscard]] bool WasChecked() const { return confirmed_.has_value(); }
    /// Checks its pages and indexes, unless that was done since it was written to; a `Failure` when it is damaged. For
    /// those who hand on much of what they read.
    void ConfirmSound();

    /// From now on a copy is kept before the first write of each day, by that clock, and so many of the newest stay. A
    /// write does not fail for want of a copy: `tell` gets a sentence then.
    void KeepDailyCopies(std::function<QDateTime()> now, std::function<void(const QString&)> tell,
                         std::function<int()> newest);
    /// Keeps a copy before something that takes or changes much: `reason` is "prima di importare" or the like. A
    /// `Failure` when that cannot be done. Nothing happens when no daily copies are kept either, when there is nothing
    /// worth it, or when nothing was written since the last one.
    void KeepCopy(const QString& reason);

    /// The rows in the alphabetical order of the fields in `order`, the first one leading; rows alike in them, and all
    /// rows without such fields, in the order in which they were added.
    std::vector<Record> Select(const Search& search, std::initializer_list<int> order = {});
    /// Of the rows found, the one that was added first.
    std::optional<Record> SelectFirst(const Search& search);
    /// The id of one of the rows found, whichever comes up first.
    std::optional<std::int64_t> Find(const Search& search);
    /// Whether there is such a row.
    bool Exists(const Search& search) { return Find(search).has_value(); }

    /// Hands over row after row of a table, in the order in which they were added, without holding more than one.
    void ForEach(Table table, const std::function<void(const Record&)>& visit);

    /// Hands over the rows whose field matches one of many patterns, with the place of that pattern in the list; a row
    /// comes once for each that it matches, in no order. All of it is from one moment of the archive.
    void ForEachMatch(Table table, int field, std::span<const NamePattern> patterns,
                      const std::function<void(std::size_t, Record&&)>& visit);

    /// Lays a checked copy of the file under a path where there is none: as it was written last, also within a
    /// transaction that has written nothing yet.
    void CopyTo(const QString& path) const;

    /// The same as this object sees the file, even when that was moved or deleted meanwhile.
    void CopyAsOpenTo(const QString& path) const;

    /// How many rows a table has.
    std::int64_t Count(Table table);

    /// Rows that searches have looked at so far, found or not.
    [[nodiscard]] std::int64_t RowsRead() const { return rowsRead_; }

    /// A mark that is another one as soon as anything was written to the file, by this object or another program.
    struct Mark {
        std::int64_t others = 0;
        std::int64_t own = 0;
        friend bool operator==(const Mark&, const Mark&) = default;
    };
    /// The mark of this moment.
    Mark PresentMark();
    /// Its part about this object, known without asking the file.
    [[nodiscard]] std::int64_t OwnChanges() const;

    /// The highest id of a table, 0 when it is empty. A new row gets the next one.
    std::int64_t LastId(Table table);

    /// Adds a row and returns its id, changes the row with that id; `values` has a value for every field. One wider
    /// than its field is refused.
    std::int64_t Insert(Table table, std::span<const QString> values);
    void Update(Table table, const Record& record);
    /// Deletes the row with that id, if there is one.
    void Delete(Table table, std::int64_t id);
    /// Deletes the rows whose ids are greater than `after` and at most `last`.
    void DeleteRange(Table table, std::int64_t after, std::int64_t last);

    /// Keys that nothing new gets while this object lives, though no row has them any more. Who hands out keys heeds
    /// it.
    void Retire(const QString& key) { retired_.push_back(key); }
    [[nodiscard]] const std::vector<QString>& Retired() const { return retired_; }

    /// Deletes the rows whose field matches the pattern, all rows without a condition; returns how many.
    int DeleteMatching(Table table, const std::optional<Condition>& condition, Progress& progress);

  private:
    friend class ReadSnapshot;
    friend class Transaction;
    friend class NameIndex;
    class Connection;

    explicit Archive(std::unique_ptr<Connection> connection);
    bool Has(Table table);
    void Scan(const Search& search, const std::function<bool(Record&&)>& visit);

    std::unique_ptr<Connection> connection_;
    std::int64_t rowsRead_ = 0;
    std::vector<QString> retired_;
    std::optional<Mark> confirmed_;  // the moment at which all was seen to be in order
};

/// All that is read while it lives is from one moment of the archive, whatever other programs write. They wait until
/// it ends, so nothing long is done within it but reading, and an export, which hands on what it reads. Within another
/// one, or within a transaction, it is part of that. To write within it is a `std::logic_error` of the program.
class ReadSnapshot {
  public:
    /// The moment is that of the first reading.
    explicit ReadSnapshot(Archive& archive);
    ReadSnapshot(const ReadSnapshot&) = delete;
    ReadSnapshot& operator=(const ReadSnapshot&) = delete;
    ~ReadSnapshot();

  private:
    Archive::Connection& connection_;
    bool outermost_;
};

/// Everything written between construction and `Commit` happens whole or not at all; what is read meanwhile is from
/// one moment. Within another one it is part of that: without its own `Commit` nothing of it happens, with it all of it
/// as soon as the outer one commits.
class Transaction {
  public:
    /// A `Failure` when another program is writing and does not end in time.
    explicit Transaction(Archive& archive);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();

    /// A `Failure` when it could not be written: then nothing was.
    void Commit();

  private:
    Archive::Connection& connection_;
    bool outermost_;
    bool open_ = true;
};

}  // namespace cronovia
