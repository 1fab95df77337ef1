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

NameIndex::NameIndex(Archive& archive, Tabella tabella, std::vector<int> posti)
    : connection_(*archive.connection_),
      table_("temp.nomi_" + Definizione(tabella).nome.toStdString()),
      posti_(std::move(posti)) {
    Guarded(connection_.Path(), [&] {
        const std::string bare = table_.substr(table_.find('.') + 1);
        connection_.Database().exec("DROP TABLE IF EXISTS " + table_ + "; CREATE TABLE " + table_ +
                                    " (id INTEGER, nome TEXT COLLATE NOCASE, rovescio TEXT COLLATE NOCASE)");
        archive.ForEach(tabella, [&](const Record& record) { Add(record.id, record.valori); });
        connection_.Database().exec("CREATE INDEX temp." + bare + "_n ON " + bare + " (nome); CREATE INDEX temp." +
                                    bare + "_r ON " + bare + " (rovescio)");
    });
}

NameIndex::~NameIndex() { connection_.Database().tryExec("DROP TABLE IF EXISTS " + table_); }

void NameIndex::Add(std::int64_t id, const std::vector<QString>& valori) {
    QString name;
    for (const int posto : posti_) {
        if (posto != posti_.front()) name += kJoin;
        name += valori[static_cast<std::size_t>(posto)];
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

std::optional<std::int64_t> NameIndex::Find(const NamePattern& pattern) {
    const NamePattern reversed = pattern.Reversed();
    return reversed.LiteralStart() > pattern.LiteralStart() ? FindIn("rovescio", reversed) : FindIn("nome", pattern);
}

std::optional<std::int64_t> NameIndex::FindIn(const std::string& column, const NamePattern& pattern) {
    const std::vector<NamePattern::Range> ranges = pattern.Ranges();
    const std::string select = "SELECT id, " + column + " FROM " + table_;
    std::optional<std::int64_t> found;
    const auto look = [&](SQLite::Statement& statement) {
        while (!found && statement.executeStep()) {
            if (pattern.Matches(ColumnText(statement, 1))) found = statement.getColumn(0).getInt64();
        }
        statement.reset();
    };
    Guarded(connection_.Path(), [&] {
        if (ranges.empty()) look(connection_.Prepared(select));
        for (const NamePattern::Range& range : ranges) {
            const std::string test = range.single ? " = ?1" : " >= ?1 AND " + column + " < ?2";
            SQLite::Statement& statement = connection_.Prepared(select + " WHERE " + column + test);
            BindText(statement, 1, range.from);
            if (!range.single) BindText(statement, 2, range.to);
            look(statement);
            if (found) return;
        }
    });
    return found;
}

}  // namespace cronovia
