// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/archive_check.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

#include <QByteArrayView>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <map>
#include <optional>

#include "calendar/testo.h"
#include "store/archive.h"
#include "store/connection.h"
#include "store/foreign_file.h"
#include "store/schema.h"
#include "store/schema_check.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostReports = 10'000;

/// Faults of one kind are one finding, with their number.
class Findings {
  public:
    /// `text` has a place for the number.
    void Add(bool damage, const QString& text, const QString& detail, std::int64_t number = 1) {
        const auto [found, first] = index_.try_emplace(text, all_.size());
        if (first) all_.push_back({0, {damage, text, detail}});
        all_[found->second].number += number;
    }

    [[nodiscard]] std::vector<Finding> All() const {
        std::vector<Finding> findings;
        for (const auto& [number, finding] : all_) {
            findings.push_back(finding);
            findings.back().text = finding.text.arg(Raggruppa(number));
        }
        return findings;
    }

  private:
    struct Counted {
        std::int64_t number = 0;
        Finding finding;
    };
    std::vector<Counted> all_;
    std::map<QString, std::size_t> index_;
};

QString PagesInDisorder() { return u"Certe pagine del file sono illeggibili o in disordine (segnalazioni: %1)."_s; }

// An index is named by its table and its field.
QString IndexInDisorder(const QString& index) {
    for (const auto* tables : {&AllTables(), &TablesOnDemand()}) {
        for (const Table each : *tables) {
            const TableDefinition& table = Definition(each);
            if (!index.startsWith(table.name + u'_')) continue;
            return u"L'indice %1 %2 non dice quello che dicono i suoi dati (righe: %3)."_s.arg(
                index.mid(table.name.size() + 1), table.people, u"%1"_s);
        }
    }
    return u"L'indice %1 non dice quello che dicono i suoi dati (righe: %2)."_s.arg(index, u"%1"_s);
}

// One report of the database's own check, which may have several lines.
void AddReport(const QString& report, Findings& findings) {
    static const QRegularExpression index(u"(?:index|index,) ([A-Za-z_]+)$"_s);
    for (const QString& line : report.split(u'\n')) {
        if (line.startsWith("***"_L1)) continue;
        const QRegularExpressionMatch match = index.match(line);
        findings.Add(true, match.hasMatch() ? IndexInDisorder(match.captured(1)) : PagesInDisorder(), line);
    }
}

void CheckPages(SQLite::Database& database, bool indexes, Findings& findings) {
    SQLite::Statement statement(database, std::string("PRAGMA ") + (indexes ? "integrity_check(" : "quick_check(") +
                                              std::to_string(kMostReports) + ")");
    while (statement.executeStep()) {
        const QString report = QString::fromUtf8(statement.getColumn(0).getText());
        if (report != "ok"_L1) AddReport(report, findings);
    }
}

// Nothing else is ever written into a yes/no field; an earlier release left those that it added empty.
bool IsYesNo(const SQLite::Column& value) {
    if (value.isInteger()) return value.getInt64() == 0 || value.getInt64() == 1;
    return value.isNull() || value.size() == 0;
}

bool IsReadable(const SQLite::Column& value) {
    return value.isText() && QByteArrayView(value.getText(), value.getBytes()).isValidUtf8();
}

void CheckValue(const TableDefinition& table, const FieldDefinition& field, const SQLite::Column& value,
                std::int64_t row, bool widths, Findings& findings) {
    const bool readable = field.width == 0 ? IsYesNo(value) : IsReadable(value);
    const auto where = [&] { return u"%1, rowid %2"_s.arg(field.name, QString::number(row)); };
    if (!readable) {
        findings.Add(true, u"Nelle righe %1 ci sono valori illeggibili (valori: %2)."_s.arg(table.people, u"%1"_s),
                     where());
    } else if (widths && field.width > 0 && value.getBytes() > field.width &&
               QString::fromUtf8(value.getText(), value.getBytes()).size() > field.width) {
        findings.Add(false, u"Certi testi %1 sono più lunghi del loro campo (testi: %2)."_s.arg(table.people, u"%1"_s),
                     where());
    }
}

void CheckValues(SQLite::Database& database, const TableDefinition& table, bool widths, Findings& findings) {
    std::string names;
    for (const FieldDefinition& field : table.fields) names += ", \"" + field.name.toStdString() + '"';
    SQLite::Statement statement(database, "SELECT rowid" + names + " FROM \"" + table.name.toStdString() + '"');
    while (statement.executeStep()) {
        for (std::size_t i = 0; i < table.fields.size(); ++i) {
            CheckValue(table, table.fields[i], statement.getColumn(static_cast<int>(i) + 1),
                       statement.getColumn(0).getInt64(), widths, findings);
        }
    }
}

// How many rows do not go with others, and the first one by its key.
struct Relation {
    const char* sql;
    const char16_t* text;
    std::optional<Table> needed = {};  // not every archive has it
};

// Rows about a stage or a trip that an earlier release changed meanwhile harm nobody: they count for nothing any more.
constexpr std::array<Relation, 9> kRelations = {{
    {"SELECT COUNT(*), MIN(CodiceMeta) FROM Itinerari WHERE CodiceMeta NOT IN (SELECT CodiceMeta FROM MeteVandro)",
     u"Ci sono tappe di mète che non ci sono più (tappe: %1)."},
    {"SELECT COUNT(*), MIN(CodiceMeta) FROM (SELECT CodiceMeta FROM MeteVandro GROUP BY 1 HAVING COUNT(*) > 1)",
     u"Certe mète hanno lo stesso codice (codici: %1)."},
    {"SELECT COUNT(*), MIN(CodiceMeta || ' ' || Sequenza) FROM (SELECT CodiceMeta, Sequenza FROM Itinerari "
     "GROUP BY 1, 2 HAVING COUNT(*) > 1)",
     u"Certe tappe di una mèta hanno lo stesso numero (numeri: %1)."},
    {"SELECT COUNT(*), MIN(Localita) FROM GuidaCitta WHERE CodiceGuida NOT IN (SELECT CodiceGuida FROM TipoGuida)",
     u"Certe annotazioni della guida hanno un tipo che non c'è (annotazioni: %1)."},
    {"SELECT MAX(COUNT(*) - 1, 0), '' FROM MetaCorrente", u"La mèta corrente è scritta più volte (di troppo: %1)."},
    {"SELECT MAX(COUNT(*) - 1, 0), '' FROM Parametri",
     u"I parametri personali sono scritti più volte (di troppo: %1)."},
    {"SELECT COUNT(*), MIN(CodiceMeta || ' ' || Sequenza) FROM Vincoli AS V WHERE NOT EXISTS (SELECT 1 FROM Itinerari "
     "AS I WHERE I.CodiceMeta = V.CodiceMeta AND I.Sequenza = V.Sequenza)",
     u"Ci sono orari fissati di tappe che non ci sono più (tappe: %1).", Table::Vincoli},
    {"SELECT COUNT(*), MIN(CodiceMeta) FROM Scadenze WHERE CodiceMeta NOT IN (SELECT CodiceMeta FROM MeteVandro)",
     u"Ci sono scadenze di mète che non ci sono più (scadenze: %1).", Table::Scadenze},
    {"SELECT COUNT(*), MIN(CodiceMeta || ' ' || Sequenza) FROM Stime AS S WHERE NOT EXISTS (SELECT 1 FROM Itinerari "
     "AS I WHERE I.CodiceMeta = S.CodiceMeta AND I.Sequenza = S.Sequenza)",
     u"Ci sono distanze stimate di tappe che non ci sono più (tappe: %1).", Table::Stime},
}};

void CheckRelations(SQLite::Database& database, Findings& findings) {
    const std::vector<Table> present = TablesOf(database);
    for (const Relation& relation : kRelations) {
        if (relation.needed && std::find(present.begin(), present.end(), *relation.needed) == present.end()) continue;
        SQLite::Statement statement(database, relation.sql);
        statement.executeStep();
        const std::int64_t number = statement.getColumn(0).getInt64();
        if (number == 0) continue;
        findings.Add(false, QString::fromUtf16(relation.text), ColumnText(statement, 1), number);
    }
}

int PagesOf(SQLite::Database& database) { return database.execAndGet("PRAGMA page_count").getInt(); }

}  // namespace

std::vector<Finding> CheckDatabase(SQLite::Database& database, CheckDepth depth) {
    if (depth == CheckDepth::Nothing) return {};
    Findings findings;
    try {
        CheckPages(database, depth >= CheckDepth::Indexes, findings);
        // Fields of an older form may be missing; they are added at the next opening.
        const CheckDepth possible = UpToDate(database) ? depth : std::min(depth, CheckDepth::Indexes);
        if (possible >= CheckDepth::Values) {
            for (const Table table : TablesOf(database))
                CheckValues(database, Definition(table), possible == CheckDepth::Whole, findings);
        }
        if (possible == CheckDepth::Whole) CheckRelations(database, findings);
    } catch (const SQLite::Exception& error) {
        const int code = error.getErrorCode() & 0xFF;
        if (code != SQLITE_CORRUPT && code != SQLITE_NOTADB && code != SQLITE_ERROR) throw;
        findings.Add(true, PagesInDisorder(), QString::fromUtf8(error.what()));
    }
    return findings.All();
}

bool AnyDamage(const std::vector<Finding>& findings) {
    return std::any_of(findings.begin(), findings.end(), [](const Finding& finding) { return finding.damage; });
}

// Measured: 0.04 ms for a page with its part of the indexes, 0.01 ms for the page alone.
CheckDepth DepthAtOpening(SQLite::Database& database) {
    const int pages = PagesOf(database);
    if (pages <= 600) return CheckDepth::Values;
    if (pages <= 1'200) return CheckDepth::Indexes;
    return pages <= 4'000 ? CheckDepth::Pages : CheckDepth::Nothing;
}

CheckDepth DepthForCopies(SQLite::Database& database) {
    return PagesOf(database) <= 15'000 ? CheckDepth::Indexes : CheckDepth::Pages;
}

std::vector<Finding> CheckArchive(const QString& folder) {
    const QString path = Archive::FilePath(folder);
    if (!QFileInfo::exists(path)) {
        throw Failure(u"Nella cartella %1 non c'è nessun archivio."_s.arg(QDir::toNativeSeparators(folder)));
    }
    RefuseForeignFile(path);
    return Guarded(path, [&] {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE, kBusyTimeoutMs);
        Distrust(database);
        try {
            RefuseForeignDatabase(database, path);
        } catch (const SQLite::Exception&) {
            // what cannot be read at all is a finding
        }
        return CheckDatabase(database, CheckDepth::Whole);
    });
}

}  // namespace cronovia
