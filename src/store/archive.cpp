#include "store/archive.h"

#include <SQLiteCpp/Exception.h>

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

#include "store/connection.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

std::string Name(const QString& name) { return (u'"' + name + u'"').toStdString(); }

std::string ColumnNames(const DefinizioneTabella& table) {
    std::string names;
    for (const Campo& campo : table.campi) names += (names.empty() ? "" : ", ") + Name(campo.nome);
    return names;
}

std::string MakeInsertSql(const DefinizioneTabella& table) {
    std::string marks;
    for (std::size_t i = 0; i < table.campi.size(); ++i) marks += marks.empty() ? "?" : ", ?";
    return "INSERT INTO " + Name(table.nome) + " (" + ColumnNames(table) + ") VALUES (" + marks + ")";
}

std::string MakeUpdateSql(const DefinizioneTabella& table) {
    std::string changes;
    for (const Campo& campo : table.campi) changes += (changes.empty() ? "" : ", ") + Name(campo.nome) + " = ?";
    return "UPDATE " + Name(table.nome) + " SET " + changes + " WHERE rowid = ?";
}

std::string MakeSelectSql(const DefinizioneTabella& table) {
    return "SELECT rowid, " + ColumnNames(table) + " FROM " + Name(table.nome);
}

// The text of a statement for each table, put together once: an import asks and adds by the hundred thousand.
template <auto Make>
const std::string& SqlFor(Tabella tabella) {
    static const std::vector<std::string> texts = [] {
        std::vector<std::string> all;
        for (const Tabella t : TutteLeTabelle()) all.push_back(Make(Definizione(t)));
        return all;
    }();
    return texts.at(static_cast<std::size_t>(tabella) - 1);
}

const std::string& SelectSql(Tabella tabella) { return SqlFor<MakeSelectSql>(tabella); }
const std::string& InsertSql(Tabella tabella) { return SqlFor<MakeInsertSql>(tabella); }

Record ReadRecord(const SQLite::Statement& statement, std::size_t fields) {
    Record record;
    record.id = statement.getColumn(0).getInt64();
    record.valori.reserve(fields);
    for (std::size_t i = 0; i < fields; ++i) record.valori.push_back(ColumnText(statement, static_cast<int>(i) + 1));
    return record;
}

bool Fulfils(const Record& record, const std::vector<Condizione>& condizioni) {
    return std::all_of(condizioni.begin(), condizioni.end(),
                       [&](const Condizione& c) { return c.modello.Matches(record[c.posto]); });
}

void CheckWidths(const DefinizioneTabella& table, std::span<const QString> valori) {
    for (std::size_t i = 0; i < table.campi.size(); ++i) {
        const Campo& campo = table.campi[i];
        if (campo.larghezza == 0 || valori[i].size() <= campo.larghezza) continue;
        throw Failure(u"Il valore «%1» è troppo lungo per il campo %2 di %3: al massimo %4 caratteri."_s.arg(
            valori[i], campo.nome, table.nome, QString::number(campo.larghezza)));
    }
}

void BindValues(SQLite::Statement& statement, const DefinizioneTabella& table, std::span<const QString> valori) {
    for (std::size_t i = 0; i < table.campi.size(); ++i) {
        const int index = static_cast<int>(i) + 1;
        if (table.campi[i].larghezza == 0) {
            statement.bind(index, valori[i] == "1"_L1 ? 1 : 0);
        } else {
            BindText(statement, index, valori[i]);
        }
    }
}

// A stretch of the keys' order, both ends included, and the patterns that may match what lies in it.
struct Stretch {
    QByteArray from;
    QByteArray to;
    std::vector<std::size_t> patterns;
};

// The text as the order of the keys sees it.
QByteArray OrderKey(const QString& text) {
    QByteArray key = text.toUtf8();
    for (char& c : key) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 'a' - 'A');
    }
    return key;
}

// Stretches that overlap become one: no row lies in two, however many names begin alike.
std::vector<Stretch> StretchesOf(std::span<const NamePattern> patterns) {
    std::vector<Stretch> all;
    for (std::size_t i = 0; i < patterns.size(); ++i) {
        for (const NamePattern::Range& range : patterns[i].Ranges()) {
            all.push_back({OrderKey(range.from), OrderKey(range.single ? range.from : range.to), {i}});
        }
    }
    std::sort(all.begin(), all.end(), [](const Stretch& a, const Stretch& b) { return a.from < b.from; });
    std::vector<Stretch> merged;
    for (Stretch& stretch : all) {
        if (merged.empty() || merged.back().to < stretch.from) {
            merged.push_back(std::move(stretch));
            continue;
        }
        merged.back().to = std::max(merged.back().to, stretch.to);
        merged.back().patterns.push_back(stretch.patterns.front());
    }
    // A letter in both cases gives its pattern two stretches, which may have become one.
    for (Stretch& stretch : merged) {
        std::sort(stretch.patterns.begin(), stretch.patterns.end());
        stretch.patterns.erase(std::unique(stretch.patterns.begin(), stretch.patterns.end()), stretch.patterns.end());
    }
    return merged;
}

// Pairs of texts.
QString AsJson(const std::vector<Stretch>& stretches) {
    QJsonArray all;
    for (const Stretch& s : stretches) all.append(QJsonArray{QString::fromUtf8(s.from), QString::fromUtf8(s.to)});
    return QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Compact));
}

// Which of the patterns match a text, remembered: many rows have the same.
class Matcher {
  public:
    explicit Matcher(std::span<const NamePattern> patterns) : patterns_(patterns) {}

    const std::vector<std::size_t>& Matching(const QString& text, const std::vector<std::size_t>& candidates) {
        const auto known = known_.constFind(text);
        if (known != known_.constEnd()) return *known;
        std::vector<std::size_t> matching;
        std::copy_if(candidates.begin(), candidates.end(), std::back_inserter(matching),
                     [&](std::size_t i) { return patterns_[i].Matches(text); });
        return *known_.insert(text, matching);
    }

  private:
    std::span<const NamePattern> patterns_;
    QHash<QString, std::vector<std::size_t>> known_;
};

}  // namespace

// Base letters without case or accents.
QString ChiaveAlfabetica(QStringView testo) {
    if (std::all_of(testo.begin(), testo.end(), [](QChar c) { return c < QChar(0x80); })) {
        return testo.toString().toLower();
    }
    const QString decomposed = testo.toString().normalized(QString::NormalizationForm_KD);
    QString key;
    key.reserve(decomposed.size());
    for (const QChar c : decomposed) {
        if (!c.isMark()) key += c.toCaseFolded();
    }
    return key;
}

bool PrimaNellAlfabeto(QStringView a, QStringView b) {
    const int keys = ChiaveAlfabetica(a).compare(ChiaveAlfabetica(b));
    return keys != 0 ? keys < 0 : a.compare(b) < 0;
}

// The keys are made once, not for each comparison.
void OrdinaRecord(std::vector<Record>& record, std::initializer_list<int> ordine) {
    struct ConChiavi {
        std::vector<std::pair<QString, QString>> chiavi;  // a field's place in the alphabet, then the field itself
        Record record;
    };
    std::vector<ConChiavi> righe;
    righe.reserve(record.size());
    for (Record& riga : record) {
        std::vector<std::pair<QString, QString>> chiavi;
        for (const int posto : ordine) chiavi.emplace_back(ChiaveAlfabetica(riga[posto]), riga[posto]);
        righe.push_back({std::move(chiavi), std::move(riga)});
    }
    std::sort(righe.begin(), righe.end(), [](const ConChiavi& a, const ConChiavi& b) {
        return std::tie(a.chiavi, a.record.id) < std::tie(b.chiavi, b.record.id);
    });
    std::transform(righe.begin(), righe.end(), record.begin(), [](ConChiavi& riga) { return std::move(riga.record); });
}

Archive::Archive(std::unique_ptr<Connection> connection) : connection_(std::move(connection)) {}
Archive::Archive(Archive&&) noexcept = default;
Archive& Archive::operator=(Archive&&) noexcept = default;
Archive::~Archive() = default;

void Archive::Scan(const Ricerca& ricerca, const std::function<bool(Record&&)>& visit) {
    const DefinizioneTabella& table = Definizione(ricerca.tabella);
    const auto run = [&](SQLite::Statement& statement) {
        bool goOn = true;
        while (goOn && statement.executeStep()) {
            Record record = ReadRecord(statement, table.campi.size());
            ++rowsRead_;
            if (Fulfils(record, ricerca.condizioni)) goOn = visit(std::move(record));
        }
        statement.reset();
        return goOn;
    };
    const auto ranges =
        ricerca.condizioni.empty() ? std::vector<NamePattern::Range>() : ricerca.condizioni.front().modello.Ranges();
    Guarded(connection_->Path(), [&] {
        if (ranges.empty()) {
            SQLite::Statement statement(connection_->Database(), SelectSql(ricerca.tabella) + " ORDER BY rowid");
            run(statement);
            return;
        }
        const auto posto = static_cast<std::size_t>(ricerca.condizioni.front().posto);
        // The ranges are those of this order, whatever order a table made elsewhere gives its field.
        const std::string field = Name(table.campi.at(posto).nome) + " COLLATE NOCASE";
        for (const NamePattern::Range& range : ranges) {
            const std::string test = range.single ? " = ?1" : " >= ?1 AND " + field + " < ?2";
            SQLite::Statement& statement = connection_->Prepared(SelectSql(ricerca.tabella) + " WHERE " + field + test);
            BindText(statement, 1, range.from);
            if (!range.single) BindText(statement, 2, range.to);
            if (!run(statement)) return;
        }
    });
}

void Archive::ForEach(Tabella tabella, const std::function<void(const Record&)>& visit) {
    Scan({tabella, {}}, [&](Record&& record) {
        visit(record);
        return true;
    });
}

void Archive::ForEachMatch(Tabella tabella, int posto, std::span<const NamePattern> modelli,
                           const std::function<void(std::size_t, Record&&)>& visit) {
    const DefinizioneTabella& table = Definizione(tabella);
    const std::string field = Name(table.campi.at(static_cast<std::size_t>(posto)).nome) + " COLLATE NOCASE";
    const auto hand = [&](const std::vector<std::size_t>& matching, Record&& record) {
        for (std::size_t i = 1; i < matching.size(); ++i) visit(matching[i], Record(record));
        if (!matching.empty()) visit(matching.front(), std::move(record));
    };
    const std::vector<Stretch> stretches = StretchesOf(modelli);
    Guarded(connection_->Path(), [&] {
        // Taken apart once: each row found would do it again.
        SQLite::Statement& statement = connection_->Prepared(
            "WITH stretch AS MATERIALIZED"
            " (SELECT key AS place, value ->> 0 AS first, value ->> 1 AS last FROM json_each(?1)) SELECT " +
            Name(table.nome) + ".rowid, " + ColumnNames(table) + ", place FROM stretch CROSS JOIN " + Name(table.nome) +
            " WHERE " + field + " BETWEEN first AND last");
        BindText(statement, 1, AsJson(stretches));
        Matcher matcher(modelli);
        const auto place = static_cast<int>(table.campi.size()) + 1;
        while (statement.executeStep()) {
            Record record = ReadRecord(statement, table.campi.size());
            const Stretch& stretch = stretches[static_cast<std::size_t>(statement.getColumn(place).getInt64())];
            hand(matcher.Matching(record[posto], stretch.patterns), std::move(record));
        }
        statement.reset();
    });
    std::vector<std::size_t> anywhere;  // patterns without a literal beginning
    for (std::size_t i = 0; i < modelli.size(); ++i) {
        if (modelli[i].Ranges().empty()) anywhere.push_back(i);
    }
    if (anywhere.empty()) return;
    Matcher matcher(modelli);
    ForEach(tabella, [&](const Record& record) { hand(matcher.Matching(record[posto], anywhere), Record(record)); });
}

std::vector<Record> Archive::Select(const Ricerca& ricerca, std::initializer_list<int> ordine) {
    std::vector<Record> records;
    Scan(ricerca, [&](Record&& record) {
        records.push_back(std::move(record));
        return true;
    });
    OrdinaRecord(records, ordine);
    return records;
}

std::optional<Record> Archive::SelectFirst(const Ricerca& ricerca) {
    std::optional<Record> first;
    Scan(ricerca, [&](Record&& record) {
        if (!first || record.id < first->id) first = std::move(record);
        return true;
    });
    return first;
}

std::optional<std::int64_t> Archive::Find(const Ricerca& ricerca) {
    std::optional<std::int64_t> found;
    Scan(ricerca, [&](Record&& record) {
        found = record.id;
        return false;
    });
    return found;
}

std::int64_t Archive::Count(Tabella tabella) {
    return connection_->Number("SELECT COUNT(*) FROM " + Name(Definizione(tabella).nome));
}

std::int64_t Archive::LastId(Tabella tabella) {
    return connection_->Number("SELECT COALESCE(MAX(rowid), 0) FROM " + Name(Definizione(tabella).nome));
}

Archive::Mark Archive::PresentMark() { return {connection_->Number("PRAGMA data_version"), OwnChanges()}; }

std::int64_t Archive::OwnChanges() const { return connection_->Database().getTotalChanges(); }

std::int64_t Archive::Insert(Tabella tabella, std::span<const QString> valori) {
    const DefinizioneTabella& table = Definizione(tabella);
    CheckWidths(table, valori);
    return Guarded(connection_->Path(), [&] {
        SQLite::Statement& statement = connection_->ForWriting(InsertSql(tabella));
        BindValues(statement, table, valori);
        statement.exec();
        statement.reset();
        return connection_->Database().getLastInsertRowid();
    });
}

void Archive::Update(Tabella tabella, const Record& record) {
    const DefinizioneTabella& table = Definizione(tabella);
    CheckWidths(table, record.valori);
    Guarded(connection_->Path(), [&] {
        SQLite::Statement& statement = connection_->ForWriting(SqlFor<MakeUpdateSql>(tabella));
        BindValues(statement, table, record.valori);
        statement.bind(static_cast<int>(table.campi.size()) + 1, record.id);
        statement.exec();
        statement.reset();
    });
}

void Archive::Delete(Tabella tabella, std::int64_t id) {
    Guarded(connection_->Path(), [&] {
        SQLite::Statement& statement =
            connection_->ForWriting("DELETE FROM " + Name(Definizione(tabella).nome) + " WHERE rowid = ?");
        statement.bind(1, id);
        statement.exec();
        statement.reset();
    });
}

void Archive::DeleteRange(Tabella tabella, std::int64_t after, std::int64_t last) {
    Guarded(connection_->Path(), [&] {
        SQLite::Statement& statement = connection_->ForWriting("DELETE FROM " + Name(Definizione(tabella).nome) +
                                                               " WHERE rowid > ? AND rowid <= ?");
        statement.bind(1, after);
        statement.bind(2, last);
        statement.exec();
        statement.reset();
    });
}

int Archive::CancellaTabella(Tabella tabella, const std::optional<Condizione>& condizione, Progress& progress) {
    progress.Title(u"Cancellazione tabella "_s + Definizione(tabella).nome);
    std::vector<std::int64_t> ids;
    const auto conditions = condizione ? std::vector<Condizione>{*condizione} : std::vector<Condizione>();
    Scan({tabella, conditions}, [&](Record&& record) {
        ids.push_back(record.id);
        return true;
    });
    double done = 0;
    for (const std::int64_t id : ids) {
        progress.Advance(++done, static_cast<double>(ids.size()));
        Delete(tabella, id);
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

Transaction::Transaction(Archive& archive) : connection_(*archive.connection_) {
    Guarded(connection_.Path(), [&] { connection_.ForWriting("BEGIN IMMEDIATE").exec(); });
}

Transaction::~Transaction() {
    if (open_) connection_.Database().tryExec("ROLLBACK");
}

void Transaction::Commit() {
    Guarded(connection_.Path(), [&] { connection_.Database().exec("COMMIT"); });
    open_ = false;
}

}  // namespace cronovia
