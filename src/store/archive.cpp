// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/archive.h"

#include <SQLiteCpp/Exception.h>

#include <algorithm>
#include <string_view>
#include <tuple>
#include <utility>

#include "store/connection.h"
#include "store/many_patterns.h"
#include "store/schema_check.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

std::string Name(const QString& name) { return (u'"' + name + u'"').toStdString(); }

std::string ColumnNames(const TableDefinition& table) {
    std::string names;
    for (const FieldDefinition& field : table.fields) names += (names.empty() ? "" : ", ") + Name(field.name);
    return names;
}

std::string MakeInsertSql(const TableDefinition& table) {
    std::string marks;
    for (std::size_t i = 0; i < table.fields.size(); ++i) marks += marks.empty() ? "?" : ", ?";
    return "INSERT INTO " + Name(table.name) + " (" + ColumnNames(table) + ") VALUES (" + marks + ")";
}

std::string MakeUpdateSql(const TableDefinition& table) {
    std::string changes;
    for (const FieldDefinition& field : table.fields)
        changes += (changes.empty() ? "" : ", ") + Name(field.name) + " = ?";
    return "UPDATE " + Name(table.name) + " SET " + changes + " WHERE rowid = ?";
}

std::string MakeSelectSql(const TableDefinition& table) {
    return "SELECT rowid, " + ColumnNames(table) + " FROM " + Name(table.name);
}

// The text of a statement for each table, put together once: an import asks and adds by the hundred thousand.
template <auto Make>
const std::string& SqlFor(Table table) {
    static const std::vector<std::string> texts = [] {
        std::vector<std::string> all;
        for (const auto* tables : {&AllTables(), &TablesOnDemand()}) {
            for (const Table t : *tables) all.push_back(Make(Definition(t)));
        }
        return all;
    }();
    return texts.at(static_cast<std::size_t>(table) - 1);
}

const std::string& SelectSql(Table table) { return SqlFor<MakeSelectSql>(table); }
const std::string& InsertSql(Table table) { return SqlFor<MakeInsertSql>(table); }

Record ReadRecord(const SQLite::Statement& statement, std::size_t fields) {
    Record record;
    record.id = statement.getColumn(0).getInt64();
    record.values.reserve(fields);
    for (std::size_t i = 0; i < fields; ++i) record.values.push_back(ColumnText(statement, static_cast<int>(i) + 1));
    return record;
}

// Reads rows of which neighbours often say the same: a text that stood in the row before is held once with it.
class RecordReader {
  public:
    RecordReader(const SQLite::Statement& statement, std::size_t fields) : statement_(statement), before_(fields) {}

    Record Read() {
        Record record;
        record.id = statement_.getColumn(0).getInt64();
        record.values.reserve(before_.size());
        for (std::size_t i = 0; i < before_.size(); ++i) {
            const SQLite::Column column = statement_.getColumn(static_cast<int>(i) + 1);
            const char* text = column.getText("");
            const std::string_view utf8(text, static_cast<std::size_t>(column.getBytes()));
            Value& value = before_[i];
            if (value.utf8 != utf8) {
                value.utf8 = utf8;
                value.text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
            }
            record.values.push_back(value.text);
        }
        return record;
    }

  private:
    struct Value {
        std::string utf8;
        QString text = QString::fromUtf8("");
    };

    const SQLite::Statement& statement_;
    std::vector<Value> before_;
};

bool Fulfils(const Record& record, const std::vector<Condition>& conditions) {
    return std::all_of(conditions.begin(), conditions.end(),
                       [&](const Condition& c) { return c.pattern.Matches(record[c.field]); });
}

void CheckWidths(const TableDefinition& table, std::span<const QString> values) {
    for (std::size_t i = 0; i < table.fields.size(); ++i) {
        const FieldDefinition& field = table.fields[i];
        if (field.width == 0 || values[i].size() <= field.width) continue;
        throw Failure(
            u"Il testo «%1» è troppo lungo: al massimo %2 caratteri."_s.arg(values[i], QString::number(field.width)));
    }
}

void BindValues(SQLite::Statement& statement, const TableDefinition& table, std::span<const QString> values) {
    for (std::size_t i = 0; i < table.fields.size(); ++i) {
        const int index = static_cast<int>(i) + 1;
        if (table.fields[i].width == 0) {
            statement.bind(index, values[i] == "1"_L1 ? 1 : 0);
        } else {
            BindText(statement, index, values[i]);
        }
    }
}

}  // namespace

// Base letters without case or accents.
QString AlphabeticalKey(QStringView text) {
    if (std::all_of(text.begin(), text.end(), [](QChar c) { return c < QChar(0x80); })) {
        return text.toString().toLower();
    }
    const QString decomposed = text.toString().normalized(QString::NormalizationForm_KD);
    QString key;
    key.reserve(decomposed.size());
    for (const QChar c : decomposed) {
        if (!c.isMark()) key += c.toCaseFolded();
    }
    return key;
}

// The keys are made once, not for each comparison.
void SortRecords(std::vector<Record>& records, std::initializer_list<int> order) {
    struct Keyed {
        std::vector<std::pair<QString, QString>> keys;  // a field's place in the alphabet, then the field itself
        Record record;
    };
    std::vector<Keyed> rows;
    rows.reserve(records.size());
    for (Record& record : records) {
        std::vector<std::pair<QString, QString>> keys;
        for (const int field : order) keys.emplace_back(AlphabeticalKey(record[field]), record[field]);
        rows.push_back({std::move(keys), std::move(record)});
    }
    std::sort(rows.begin(), rows.end(), [](const Keyed& a, const Keyed& b) {
        return std::tie(a.keys, a.record.id) < std::tie(b.keys, b.record.id);
    });
    std::transform(rows.begin(), rows.end(), records.begin(), [](Keyed& row) { return std::move(row.record); });
}

Archive::Archive(std::unique_ptr<Connection> connection) : connection_(std::move(connection)) {}
Archive::Archive(Archive&&) noexcept = default;
Archive& Archive::operator=(Archive&&) noexcept = default;
Archive::~Archive() = default;

bool Archive::Has(Table table) {
    const auto& onDemand = TablesOnDemand();
    if (std::find(onDemand.begin(), onDemand.end(), table) == onDemand.end()) return true;
    return Guarded(connection_->Path(), [&] { return HasTable(connection_->Database(), table); });
}

void Archive::Scan(const Search& search, const std::function<bool(Record&&)>& visit) {
    if (!Has(search.table)) return;
    const TableDefinition& definition = Definition(search.table);
    const auto run = [&](SQLite::Statement& statement) {
        bool goOn = true;
        while (goOn && statement.executeStep()) {
            Record record = ReadRecord(statement, definition.fields.size());
            ++rowsRead_;
            if (Fulfils(record, search.conditions)) goOn = visit(std::move(record));
        }
        statement.reset();
        return goOn;
    };
    const auto ranges =
        search.conditions.empty() ? std::vector<NamePattern::Range>() : search.conditions.front().pattern.Ranges();
    Guarded(connection_->Path(), [&] {
        if (ranges.empty()) {
            SQLite::Statement statement(connection_->Database(), SelectSql(search.table) + " ORDER BY rowid");
            run(statement);
            return;
        }
        const auto leading = static_cast<std::size_t>(search.conditions.front().field);
        // The ranges are those of this order, whatever order a table made elsewhere gives its field.
        const std::string column = Name(definition.fields.at(leading).name) + " COLLATE NOCASE";
        for (const NamePattern::Range& range : ranges) {
            const std::string test = range.single ? " = ?1" : " >= ?1 AND " + column + " < ?2";
            SQLite::Statement& statement = connection_->Prepared(SelectSql(search.table) + " WHERE " + column + test);
            BindText(statement, 1, range.from);
            if (!range.single) BindText(statement, 2, range.to);
            if (!run(statement)) return;
        }
    });
}

void Archive::ForEach(Table table, const std::function<void(const Record&)>& visit) {
    Scan({table, {}}, [&](Record&& record) {
        visit(record);
        return true;
    });
}

void Archive::ForEachMatch(Table table, int field, std::span<const NamePattern> patterns,
                           const std::function<void(std::size_t, Record&&)>& visit) {
    const TableDefinition& definition = Definition(table);
    const std::string column = Name(definition.fields.at(static_cast<std::size_t>(field)).name) + " COLLATE NOCASE";
    const auto hand = [&](const std::vector<std::size_t>& matching, Record&& record) {
        for (std::size_t i = 1; i < matching.size(); ++i) visit(matching[i], Record(record));
        if (!matching.empty()) visit(matching.front(), std::move(record));
    };
    const std::vector<Stretch> stretches = StretchesOf(patterns);
    const ReadSnapshot moment(*this);
    Guarded(connection_->Path(), [&] {
        SQLite::Statement& statement =
            connection_->Prepared(SelectSql(table) + " WHERE " + column + " BETWEEN ?1 AND ?2");
        RecordReader reader(statement, definition.fields.size());
        Matcher matcher(patterns);
        for (const Stretch& stretch : stretches) {
            statement.bindNoCopy(1, stretch.from);
            statement.bindNoCopy(2, stretch.to);
            while (statement.executeStep()) {
                Record record = reader.Read();
                hand(matcher.Matching(record[field], stretch.patterns), std::move(record));
            }
            statement.reset();
        }
    });
    const std::vector<std::size_t> anywhere = WithoutBeginning(patterns);
    if (anywhere.empty()) return;
    Matcher matcher(patterns);
    ForEach(table, [&](const Record& record) { hand(matcher.Matching(record[field], anywhere), Record(record)); });
}

std::vector<Record> Archive::Select(const Search& search, std::initializer_list<int> order) {
    std::vector<Record> records;
    Scan(search, [&](Record&& record) {
        records.push_back(std::move(record));
        return true;
    });
    SortRecords(records, order);
    return records;
}

std::optional<Record> Archive::SelectFirst(const Search& search) {
    std::optional<Record> first;
    Scan(search, [&](Record&& record) {
        if (!first || record.id < first->id) first = std::move(record);
        return true;
    });
    return first;
}

std::optional<std::int64_t> Archive::Find(const Search& search) {
    std::optional<std::int64_t> found;
    Scan(search, [&](Record&& record) {
        found = record.id;
        return false;
    });
    return found;
}

std::int64_t Archive::Count(Table table) {
    if (!Has(table)) return 0;
    return connection_->Number("SELECT COUNT(*) FROM " + Name(Definition(table).name));
}

std::int64_t Archive::LastId(Table table) {
    if (!Has(table)) return 0;
    return connection_->Number("SELECT COALESCE(MAX(rowid), 0) FROM " + Name(Definition(table).name));
}

Archive::Mark Archive::PresentMark() { return connection_->PresentMark(); }

std::int64_t Archive::OwnChanges() const { return connection_->Database().getTotalChanges(); }

std::int64_t Archive::Insert(Table table, std::span<const QString> values) {
    const TableDefinition& definition = Definition(table);
    CheckWidths(definition, values);
    return Guarded(connection_->Path(), [&] {
        if (!Has(table)) MakeTable(connection_->Database(), table);
        SQLite::Statement& statement = connection_->ForWriting(InsertSql(table));
        BindValues(statement, definition, values);
        statement.exec();
        statement.reset();
        return connection_->Database().getLastInsertRowid();
    });
}

void Archive::Update(Table table, const Record& record) {
    const TableDefinition& definition = Definition(table);
    CheckWidths(definition, record.values);
    Guarded(connection_->Path(), [&] {
        SQLite::Statement& statement = connection_->ForWriting(SqlFor<MakeUpdateSql>(table));
        BindValues(statement, definition, record.values);
        statement.bind(static_cast<int>(definition.fields.size()) + 1, record.id);
        statement.exec();
        statement.reset();
    });
}

void Archive::Delete(Table table, std::int64_t id) {
    Guarded(connection_->Path(), [&] {
        SQLite::Statement& statement =
            connection_->ForWriting("DELETE FROM " + Name(Definition(table).name) + " WHERE rowid = ?");
        statement.bind(1, id);
        statement.exec();
        statement.reset();
    });
}

void Archive::DeleteRange(Table table, std::int64_t after, std::int64_t last) {
    if (!Has(table)) return;
    Guarded(connection_->Path(), [&] {
        SQLite::Statement& statement =
            connection_->ForWriting("DELETE FROM " + Name(Definition(table).name) + " WHERE rowid > ? AND rowid <= ?");
        statement.bind(1, after);
        statement.bind(2, last);
        statement.exec();
        statement.reset();
    });
}

int Archive::DeleteMatching(Table table, const std::optional<Condition>& condition, Progress& progress) {
    progress.Title(u"Cancellazione tabella "_s + Definition(table).name);
    std::vector<std::int64_t> ids;
    const auto conditions = condition ? std::vector<Condition>{*condition} : std::vector<Condition>();
    Scan({table, conditions}, [&](Record&& record) {
        ids.push_back(record.id);
        return true;
    });
    double done = 0;
    for (const std::int64_t id : ids) {
        progress.Advance(++done, static_cast<double>(ids.size()));
        Delete(table, id);
    }
    return static_cast<int>(ids.size());
}

ReadSnapshot::ReadSnapshot(Archive& archive)
    : connection_(*archive.connection_), outermost_(!connection_.InTransaction()) {
    if (outermost_) Guarded(connection_.Path(), [&] { connection_.BeginReading(); });
}

ReadSnapshot::~ReadSnapshot() {
    if (outermost_) connection_.EndReading();
}

Transaction::Transaction(Archive& archive)
    : connection_(*archive.connection_), outermost_(!connection_.InTransaction()) {
    Guarded(connection_.Path(),
            [&] { connection_.ForWriting(outermost_ ? "BEGIN IMMEDIATE" : "SAVEPOINT inner").exec(); });
}

Transaction::~Transaction() {
    if (open_) connection_.Database().tryExec(outermost_ ? "ROLLBACK" : "ROLLBACK TO inner; RELEASE inner");
}

void Transaction::Commit() {
    Guarded(connection_.Path(), [&] { connection_.Database().exec(outermost_ ? "COMMIT" : "RELEASE inner"); });
    open_ = false;
}

}  // namespace cronovia
