// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/name_index.h"

#include <QList>
#include <algorithm>

#include "store/connection.h"

namespace cronovia {

namespace {

QString FromItsEnd(const QString& text) {
    QList<uint> characters = text.toUcs4();
    std::reverse(characters.begin(), characters.end());
    const std::u32string reversed(characters.begin(), characters.end());
    return QString::fromUcs4(reversed.data(), static_cast<qsizetype>(reversed.size()));
}

}  // namespace

NameIndex::NameIndex(Archive& archive, Table table, std::vector<int> fields)
    : connection_(*archive.connection_),
      table_("temp.nomi_" + Definition(table).name.toStdString()),
      fields_(std::move(fields)) {
    Guarded(connection_.Path(), [&] {
        const std::string bare = table_.substr(table_.find('.') + 1);
        connection_.Database().exec("DROP TABLE IF EXISTS " + table_ + "; CREATE TABLE " + table_ +
                                    " (id INTEGER, nome TEXT COLLATE NOCASE, rovescio TEXT COLLATE NOCASE)");
        archive.ForEach(table, [&](const Record& record) { Add(record.id, record.values); });
        connection_.Database().exec("CREATE INDEX temp." + bare + "_n ON " + bare + " (nome); CREATE INDEX temp." +
                                    bare + "_r ON " + bare + " (rovescio)");
    });
}

NameIndex::~NameIndex() { connection_.Database().tryExec("DROP TABLE IF EXISTS " + table_); }

void NameIndex::Add(std::int64_t id, const std::vector<QString>& values) {
    QString name;
    for (const int field : fields_) {
        if (field != fields_.front()) name += kJoin;
        name += values[static_cast<std::size_t>(field)];
    }
    Guarded(connection_.Path(), [&] {
        SQLite::Statement& statement = connection_.Prepared("INSERT INTO " + table_ + " VALUES (?, ?, ?)");
        statement.bind(1, id);
        BindText(statement, 2, name);
        BindText(statement, 3, FromItsEnd(name));
        statement.exec();
        statement.reset();
    });
}

// One of the two ways through the names: those in the ranges of a pattern, row after row.
class NameIndex::Way {
  public:
    Way(Archive::Connection& connection, const std::string& table, const std::string& column, NamePattern pattern)
        : connection_(connection),
          select_("SELECT id, " + column + " FROM " + table),
          column_(column),
          pattern_(std::move(pattern)),
          ranges_(pattern_.Ranges()),
          all_(ranges_.empty()) {}
    ~Way() {
        if (statement_ != nullptr) statement_->tryReset();
    }
    Way(const Way&) = delete;
    Way& operator=(const Way&) = delete;

    /// Looks at the next name; false behind the last one.
    bool Step() {
        while (statement_ != nullptr || Open()) {
            if (statement_->executeStep()) {
                if (pattern_.Matches(ColumnText(*statement_, 1))) found_ = statement_->getColumn(0).getInt64();
                return true;
            }
            statement_->reset();
            statement_ = nullptr;
        }
        return false;
    }
    [[nodiscard]] const std::optional<std::int64_t>& Found() const { return found_; }

  private:
    bool Open() {
        if (next_ == (all_ ? 1 : ranges_.size())) return false;
        if (all_) {
            statement_ = &connection_.Prepared(select_);
        } else {
            const NamePattern::Range& range = ranges_[next_];
            const std::string test = range.single ? " = ?1" : " >= ?1 AND " + column_ + " < ?2";
            statement_ = &connection_.Prepared(select_ + " WHERE " + column_ + test);
            BindText(*statement_, 1, range.from);
            if (!range.single) BindText(*statement_, 2, range.to);
        }
        ++next_;
        return true;
    }

    Archive::Connection& connection_;
    std::string select_;
    std::string column_;
    NamePattern pattern_;
    std::vector<NamePattern::Range> ranges_;
    bool all_;
    std::size_t next_ = 0;
    SQLite::Statement* statement_ = nullptr;
    std::optional<std::int64_t> found_;
};

// Which way is the shorter one shows only on the way: both go on in turns, and the first to end has the answer.
std::optional<std::int64_t> NameIndex::Find(const NamePattern& pattern) {
    return Guarded(connection_.Path(), [&] {
        Way fromStart(connection_, table_, "nome", pattern);
        Way fromEnd(connection_, table_, "rovescio", pattern.Reversed());
        for (;;) {
            for (Way* way : {&fromStart, &fromEnd}) {
                if (!way->Step() || way->Found()) return way->Found();
            }
        }
    });
}

}  // namespace cronovia
