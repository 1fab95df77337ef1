// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/schema_check.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>

#include <QDir>
#include <QFileInfo>
#include <QStringList>
#include <algorithm>
#include <string>
#include <vector>

#include "interaction/failure.h"
#include "store/copies.h"
#include "store/foreign_file.h"
#include "store/schema.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

struct Column {
    QString name;
    QString type;
    bool ours = true;  // else a field that somebody else added
};

std::string Quoted(const QString& name) { return (u'"' + name + u'"').toStdString(); }

QString TypeOf(const FieldDefinition& field) {
    return field.width == 0 ? u"BOOLEAN"_s : u"TEXT(%1)"_s.arg(field.width);
}

std::string ColumnSql(const Column& column) {
    std::string sql = Quoted(column.name) + " " + column.type.toStdString();
    if (column.ours) sql += column.type.startsWith("TEXT"_L1) ? " COLLATE NOCASE NOT NULL DEFAULT ''" : " DEFAULT 0";
    return sql;
}

std::vector<Column> ColumnsOf(SQLite::Database& database, const QString& table) {
    std::vector<Column> columns;
    SQLite::Statement statement(database, "SELECT name, type FROM pragma_table_info(?)");
    statement.bind(1, table.toStdString());
    while (statement.executeStep()) {
        columns.push_back({QString::fromStdString(statement.getColumn(0).getString()),
                           QString::fromStdString(statement.getColumn(1).getString())});
    }
    return columns;
}

std::string IndexName(const TableDefinition& table, const QString& field) {
    return table.name.toStdString() + "_" + field.toStdString();
}

// An index by that name alone is not enough: it must be on the field, and know no difference of case.
bool HasIndex(SQLite::Database& database, const TableDefinition& table, const QString& field) {
    SQLite::Statement statement(
        database,
        "SELECT 1 FROM pragma_index_list(?1) AS list, pragma_index_xinfo(list.name) AS field "
        "WHERE list.name = ?2 AND field.seqno = 0 AND field.name = ?3 AND field.coll = 'NOCASE'");
    statement.bind(1, table.name.toStdString());
    statement.bind(2, IndexName(table, field));
    statement.bind(3, field.toStdString());
    return statement.executeStep();
}

// What one table lacks.
struct TableState {
    std::vector<Column> columns;  // none: the table does not exist
    bool rebuild = false;         // a field is missing or has another width
    bool complete = false;
};

TableState StateOf(SQLite::Database& database, const TableDefinition& table) {
    TableState state;
    state.columns = ColumnsOf(database, table.name);
    if (state.columns.empty()) return state;
    state.rebuild = std::any_of(table.fields.begin(), table.fields.end(), [&](const FieldDefinition& field) {
        const auto found = std::find_if(state.columns.begin(), state.columns.end(),
                                        [&](const Column& column) { return column.name == field.name; });
        return found == state.columns.end() || (field.width > 0 && found->type != TypeOf(field));
    });
    state.complete =
        !state.rebuild && std::all_of(table.indexes.begin(), table.indexes.end(),
                                      [&](const QString& field) { return HasIndex(database, table, field); });
    return state;
}

const Column* FindColumn(const std::vector<Column>& columns, const QString& name) {
    const auto found = std::find_if(columns.begin(), columns.end(), [&](const Column& column) {
        return column.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == columns.end() ? nullptr : &*found;
}

void RefuseValuesThatDoNotFit(SQLite::Database& database, const TableDefinition& table,
                              const std::vector<Column>& columns, const QString& path) {
    for (const FieldDefinition& field : table.fields) {
        if (field.width == 0 || FindColumn(columns, field.name) == nullptr) continue;
        SQLite::Statement statement(database, "SELECT COUNT(*), MAX(length(" + Quoted(field.name) + ")) FROM " +
                                                  Quoted(table.name) + " WHERE length(" + Quoted(field.name) + ") > ?");
        statement.bind(1, field.width);
        statement.executeStep();
        const int count = statement.getColumn(0).getInt();
        if (count == 0) continue;
        throw Failure(
            u"Errore apertura database %1: per certi testi %2 c'è posto per %3 caratteri, ma %4 di loro sono più "
            "lunghi, fino a %5. Il file non è stato modificato."_s.arg(
                QDir::toNativeSeparators(path), table.people, QString::number(field.width), QString::number(count),
                QString::number(statement.getColumn(1).getInt())));
    }
}

void CreateTable(SQLite::Database& database, const QString& name, const std::vector<Column>& columns) {
    std::string list;
    for (const Column& column : columns) list += (list.empty() ? "" : ", ") + ColumnSql(column);
    database.exec("CREATE TABLE " + Quoted(name) + " (" + list + ")");
}

std::vector<Column> DeclaredColumns(const TableDefinition& table) {
    std::vector<Column> columns;
    columns.reserve(table.fields.size());
    for (const FieldDefinition& field : table.fields) columns.push_back({field.name, TypeOf(field)});
    return columns;
}

// A table with today's fields in today's order and the rows of the old one; fields that are not ours stay behind ours.
void RebuildTable(SQLite::Database& database, const TableDefinition& table, const std::vector<Column>& existing) {
    std::vector<Column> columns = DeclaredColumns(table);
    std::string names;
    std::string values;
    for (const Column& column : columns) {
        if (FindColumn(existing, column.name) == nullptr) continue;
        const std::string name = Quoted(column.name);
        names += (names.empty() ? "" : ", ") + name;
        values += (values.empty() ? "" : ", ") + ("COALESCE(" + name + ", '')");
    }
    for (const Column& column : existing) {
        if (FindColumn(columns, column.name) != nullptr) continue;
        columns.push_back({column.name, column.type, false});
        names += ", " + Quoted(column.name);
        values += ", " + Quoted(column.name);
    }
    const QString temporary = table.name + u"_nuova"_s;
    CreateTable(database, temporary, columns);
    if (!names.empty()) {
        database.exec("INSERT INTO " + Quoted(temporary) + " (rowid, " + names + ") SELECT rowid, " + values +
                      " FROM " + Quoted(table.name) + " ORDER BY rowid");
    }
    database.exec("DROP TABLE " + Quoted(table.name));
    database.exec("ALTER TABLE " + Quoted(temporary) + " RENAME TO " + Quoted(table.name));
}

void MendIndexes(SQLite::Database& database, const TableDefinition& table) {
    for (const QString& field : table.indexes) {
        if (HasIndex(database, table, field)) continue;
        const std::string name = "\"" + IndexName(table, field) + "\"";
        database.exec("DROP INDEX IF EXISTS " + name);
        database.exec("CREATE INDEX " + name + " ON " + Quoted(table.name) + " (" + Quoted(field) + " COLLATE NOCASE)");
    }
}

// Lays a copy beside the file, under the first free number.
void KeepCopy(SQLite::Database& database, const QString& path) {
    const QFileInfo file(path);
    LayCopy(database, [&](int number) {
        return file.dir().filePath(
            u"%1-copia%2.%3"_s.arg(file.completeBaseName(), QString::number(number), file.suffix()));
    });
}

void CheckEveryTable(SQLite::Database& database, const QString& path) {
    for (const Table each : TablesOf(database)) {
        const TableDefinition& table = Definition(each);
        const TableState state = StateOf(database, table);
        if (state.rebuild) RefuseValuesThatDoNotFit(database, table, state.columns, path);
    }
}

}  // namespace

std::vector<Table> TablesOf(SQLite::Database& database) {
    std::vector<Table> tables = AllTables();
    std::copy_if(TablesOnDemand().begin(), TablesOnDemand().end(), std::back_inserter(tables),
                 [&](Table table) { return HasTable(database, table); });
    return tables;
}

bool UpToDate(SQLite::Database& database) {
    const std::vector<Table> tables = TablesOf(database);
    return std::all_of(tables.begin(), tables.end(),
                       [&](Table table) { return StateOf(database, Definition(table)).complete; });
}

bool HasTable(SQLite::Database& database, Table table) {
    return database.tableExists(Definition(table).name.toStdString());
}

void MakeTable(SQLite::Database& database, Table table) {
    const TableDefinition& definition = Definition(table);
    CreateTable(database, definition.name, DeclaredColumns(definition));
    MendIndexes(database, definition);
}

void UpdateTables(SQLite::Database& database, const QString& path) {
    if (UpToDate(database)) return;
    CheckEveryTable(database, path);
    if (HasTables(database)) KeepCopy(database, path);
    database.exec("BEGIN IMMEDIATE");
    try {
        for (const Table each : TablesOf(database)) {
            const TableDefinition& table = Definition(each);
            const TableState state = StateOf(database, table);
            if (state.columns.empty()) CreateTable(database, table.name, DeclaredColumns(table));
            if (state.rebuild) RebuildTable(database, table, state.columns);
            MendIndexes(database, table);
        }
        database.exec("PRAGMA application_id = " + std::to_string(kApplicationId));
        database.exec("PRAGMA user_version = " + std::to_string(kSchemaVersion));
        database.exec("COMMIT");
    } catch (...) {
        database.tryExec("ROLLBACK");
        throw;
    }
}

}  // namespace cronovia
