// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/salvage.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

#include <algorithm>
#include <optional>
#include <string>

#include "store/connection.h"
#include "store/schema_check.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr std::int64_t kLongestGap = 2'000'000;

std::string InQuotes(const QString& name) {
    return (u'"' + QString(name).replace(u'"', u"\"\""_s) + u'"').toStdString();
}

// A step that ends the reading when a page cannot be read.
bool NextRow(SQLite::Statement& statement) { return statement.tryExecuteStep() == SQLITE_ROW; }

struct ForeignTable {
    QString name;
    std::string sql;
};

std::vector<ForeignTable> TablesIn(SQLite::Database& database) {
    std::vector<ForeignTable> tables;
    SQLite::Statement statement(
        database,
        "SELECT name, sql FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\'");
    while (statement.executeStep()) tables.push_back({ColumnText(statement, 0), statement.getColumn(1).getString()});
    return tables;
}

// A text is written with letters only, everything else as it is.
void CopyValue(const SQLite::Statement& row, int column, SQLite::Statement& insert) {
    const SQLite::Column value = row.getColumn(column);
    const int index = column + 1;
    if (value.isInteger()) {
        insert.bind(index, value.getInt64());
    } else if (value.isFloat()) {
        insert.bind(index, value.getDouble());
    } else if (value.isBlob()) {
        insert.bind(index, value.getBlob(), value.getBytes());
    } else if (value.isText()) {
        BindText(insert, index, ColumnText(row, column));
    } else {
        insert.bind(index);
    }
}

/// One table on its way.
class TableSalvage {
  public:
    TableSalvage(SQLite::Database& damaged, SQLite::Database& target, const QString& table)
        : damaged_(damaged), target_(target), name_(InQuotes(table)) {
        SQLite::Statement fields(damaged, "SELECT name FROM pragma_table_info(?)");
        fields.bind(1, table.toStdString());
        std::string marks = "?";
        names_ = "rowid";
        while (fields.executeStep()) {
            names_ += ", " + InQuotes(ColumnText(fields, 0));
            marks += ", ?";
            ++columns_;
        }
        insert_ = "INSERT OR IGNORE INTO " + name_ + " (" + names_ + ") VALUES (" + marks + ")";
    }

    // From the beginning as far as it goes, from the end as far as it goes, then one by one what lies between.
    void Run() {
        const std::optional<std::int64_t> first = Scan(" ORDER BY rowid");
        if (!broken_) return;
        const std::optional<std::int64_t> last = Scan(" ORDER BY rowid DESC");
        if (last) End(first.value_or(0), *last);
    }

  private:
    std::optional<std::int64_t> Scan(const std::string& order) {
        SQLite::Statement select(damaged_, "SELECT " + names_ + " FROM " + name_ + order);
        SQLite::Statement insert(target_, insert_);
        std::optional<std::int64_t> id;
        while (NextRow(select)) {
            id = select.getColumn(0).getInt64();
            Insert(select, insert);
        }
        broken_ = select.getErrorCode() != SQLITE_DONE;
        return id;
    }

    void End(std::int64_t after, std::int64_t before) {
        if (before - after > kLongestGap) return;
        SQLite::Statement select(damaged_, "SELECT " + names_ + " FROM " + name_ + " WHERE rowid = ?");
        SQLite::Statement insert(target_, insert_);
        for (std::int64_t id = after + 1; id < before; ++id) {
            select.bind(1, id);
            if (NextRow(select)) Insert(select, insert);
            select.tryReset();
        }
    }

    void Insert(const SQLite::Statement& row, SQLite::Statement& insert) const {
        for (int i = 0; i <= columns_; ++i) CopyValue(row, i, insert);
        insert.exec();
        insert.reset();
    }

    SQLite::Database& damaged_;
    SQLite::Database& target_;
    std::string name_;
    std::string names_;
    std::string insert_;
    int columns_ = 0;
    bool broken_ = false;
};

// The values that an index has, by their rows; nothing when its pages cannot be read to the end.
std::optional<std::map<std::int64_t, QString>> EntriesOf(SQLite::Database& database, const TableDefinition& table,
                                                         const QString& field) {
    try {
        const std::string index = InQuotes(table.name + u'_' + field);
        SQLite::Statement statement(database, "SELECT rowid, " + InQuotes(field) + " FROM " + InQuotes(table.name) +
                                                  " INDEXED BY " + index + " ORDER BY " + InQuotes(field) +
                                                  " COLLATE NOCASE");
        std::map<std::int64_t, QString> entries;
        while (NextRow(statement)) {
            const SQLite::Column value = statement.getColumn(1);
            const bool text = value.isText() && QByteArrayView(value.getText(), value.getBytes()).isValidUtf8();
            if (text) entries[statement.getColumn(0).getInt64()] = ColumnText(statement, 1);
        }
        if (statement.getErrorCode() != SQLITE_DONE) return std::nullopt;
        return entries;
    } catch (const SQLite::Exception&) {
        return std::nullopt;
    }
}

}  // namespace

void SalvageRows(SQLite::Database& damaged, SQLite::Database& target) {
    target.exec("BEGIN");
    for (const ForeignTable& table : TablesIn(damaged)) {
        target.exec(table.sql);
        TableSalvage(damaged, target, table.name).Run();
    }
    target.exec("COMMIT");
}

// A single index may err itself: what most of those that can be read say of a missing row counts.
IndexWitness WitnessOf(SQLite::Database& damaged, SQLite::Database& saved, Table table) {
    const TableDefinition& definition = Definition(table);
    IndexWitness witness;
    std::map<std::int64_t, int> votes;
    int readable = 0;
    for (const QString& field : definition.indexes) {
        const auto entries = EntriesOf(damaged, definition, field);
        if (!entries) continue;
        ++readable;
        const auto position =
            static_cast<int>(std::find_if(definition.fields.begin(), definition.fields.end(),
                                          [&](const FieldDefinition& each) { return each.name == field; }) -
                             definition.fields.begin());
        SQLite::Statement row(saved,
                              "SELECT " + InQuotes(field) + " FROM " + InQuotes(definition.name) + " WHERE rowid = ?");
        for (const auto& [id, value] : *entries) {
            row.bind(1, id);
            if (!row.executeStep()) {
                witness.missing[id][position] = value;
                ++votes[id];
            } else if (ColumnText(row, 0) != value) {
                witness.different[id][position] = value;
            }
            row.reset();
        }
    }
    std::erase_if(witness.missing, [&](const auto& row) { return 2 * votes[row.first] <= readable; });
    return witness;
}

bool CompleteFromCopy(SQLite::Database& copy, SQLite::Database& saved, Table table, std::int64_t id,
                      const IndexWitness::Values& values) {
    const TableDefinition& definition = Definition(table);
    if (!HasTable(copy, table)) return false;
    std::string names = "rowid";
    std::string marks = "?";
    for (const FieldDefinition& field : definition.fields) {
        names += ", " + InQuotes(field.name);
        marks += ", ?";
    }
    const std::string name = InQuotes(definition.name);
    SQLite::Statement row(copy, "SELECT " + names + " FROM " + name + " WHERE rowid = ?");
    row.bind(1, id);
    const auto same = [&](const auto& value) { return ColumnText(row, value.first + 1) == value.second; };
    if (!row.executeStep() || !std::all_of(values.begin(), values.end(), same)) return false;
    SQLite::Statement insert(saved, "INSERT OR IGNORE INTO " + name + " (" + names + ") VALUES (" + marks + ")");
    for (int i = 0; i <= std::ssize(definition.fields); ++i) CopyValue(row, i, insert);
    if (insert.exec() > 0) return true;
    for (const auto& [field, value] : values) {
        const QString& fieldName = definition.fields.at(static_cast<std::size_t>(field)).name;
        SQLite::Statement update(saved, "UPDATE " + name + " SET " + InQuotes(fieldName) + " = ? WHERE rowid = ?");
        BindText(update, 1, value);
        update.bind(2, id);
        update.exec();
    }
    return true;
}

}  // namespace cronovia
