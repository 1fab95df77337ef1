// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/repair.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "store/archive.h"
#include "store/archive_check.h"
#include "store/connection.h"
#include "store/salvage.h"
#include "store/schema_check.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostDoubts = 20;

std::string TableName(Table table) { return '"' + Definition(table).name.toStdString() + '"'; }

std::string FieldName(Table table, int field) {
    return '"' + Definition(table).fields.at(static_cast<std::size_t>(field)).name.toStdString() + '"';
}

std::int64_t RowsOf(SQLite::Database& database, Table table) {
    return database.execAndGet("SELECT COUNT(*) FROM " + TableName(table)).getInt64();
}

// With the person's own parameters, and a day on which nobody wanted to leave: it is theirs to be put right.
void InsertTrip(SQLite::Database& database, const QString& code, const QString& name, const QDate& day) {
    SQLite::Statement any(database, "INSERT INTO MeteVandro DEFAULT VALUES");
    any.exec();
    const std::int64_t id = database.getLastInsertRowid();
    const std::vector<FieldDefinition>& fields = Definition(Table::MeteVandro).fields;
    for (int i = 0; i < std::ssize(fields); ++i) {
        const bool own = i < mete::MediaAutostrada || i == mete::GiorniAdeguamento;
        SQLite::Statement set(
            database,
            "UPDATE MeteVandro SET " + FieldName(Table::MeteVandro, i) + " = " +
                (own ? "?" : "COALESCE((SELECT " + FieldName(Table::MeteVandro, i) + " FROM Parametri), '')") +
                " WHERE rowid = " + std::to_string(id));
        if (own) {
            BindText(set, 1,
                     i == mete::CodiceMeta   ? code
                     : i == mete::Localita   ? name
                     : i == mete::DataInizio ? day.toString(u"ddMMyyyy"_s)
                     : i == mete::OraInizio  ? u"0800"_s
                                             : QString());
        }
        set.exec();
    }
}

/// One repair under way, in a folder of its own within the data folder.
class Repairer {
  public:
    explicit Repairer(const QString& folder) : path_(Archive::FilePath(folder)) {
        repair_.place = std::make_shared<QTemporaryDir>(QDir(folder).filePath(u"Riparazione-XXXXXX"_s));
        repair_.written = QFileInfo(path_).lastModified();
        copies_ = CopiesOf(folder);
        const auto good =
            std::find_if(copies_.begin(), copies_.end(), [](const auto& copy) { return IsGood(copy.path); });
        if (good != copies_.end()) repair_.lastGood = *good;
    }

    Repair Run() {
        if (!repair_.place->isValid() || !Duplicate(u"danneggiato.mdb"_s)) NoRoom();
        if (!Tried([this] { return ByIndexes(); }) && !Tried([this] { return ByRows(); }) && !ByCopy()) {
            throw Failure(
                u"L'archivio %1 non si può riparare: non si riesce a leggerlo, e non c'è nessuna copia in ordine."_s
                    .arg(QDir::toNativeSeparators(path_)));
        }
        return std::move(repair_);
    }

  private:
    static bool IsGood(const QString& copy) {
        try {
            RefuseBadCopy(copy);
            return true;
        } catch (const Failure&) {
            return false;
        }
    }

    [[noreturn]] void NoRoom() const {
        throw Failure(u"Nella cartella %1 non c'è posto, o manca il permesso, per la copia da riparare."_s.arg(
            QDir::toNativeSeparators(QFileInfo(path_).path())));
    }

    // What cannot be read is no way; that the disk cannot be written is none of the archive's faults: a worse way would
    // save less of it.
    template <typename Way>
    static bool Tried(Way&& way) {
        try {
            return way();
        } catch (const SQLite::Exception& error) {
            constexpr std::array kOfTheDisk = {SQLITE_FULL, SQLITE_IOERR, SQLITE_CANTOPEN,
                                               SQLITE_PERM, SQLITE_NOMEM, SQLITE_READONLY};
            if (std::find(kOfTheDisk.begin(), kOfTheDisk.end(), error.getErrorCode() & 0xFF) != kOfTheDisk.end()) {
                throw Failure(u"La riparazione non si può fare: %1."_s.arg(DatabaseReason(error)));
            }
            return false;
        }
    }

    [[nodiscard]] QString Place(const QString& name) const { return repair_.place->filePath(name); }

    // A file that was cut gets its missing pages back, empty: what stands before them can be read then.
    bool Duplicate(const QString& name) const {
        if (!QFile::copy(path_, Place(name))) return false;
        QFile file(Place(name));
        if (!file.open(QIODevice::ReadWrite)) return false;
        const QByteArray header = file.read(32);
        const auto number = [&](int from, int bytes) {
            qint64 value = 0;
            for (int i = 0; i < bytes; ++i) value = value * 256 + static_cast<unsigned char>(header.at(from + i));
            return value;
        };
        if (header.size() < 32) return true;
        const qint64 whole = number(16, 2) * number(28, 4);
        const bool cut = file.size() < whole && whole < 16 * file.size();
        return !cut || file.resize(whole);
    }

    // The rows are in order when what the indexes said of them before is no more than what they hold.
    bool ByIndexes() {
        if (!Duplicate(u"indici.mdb"_s)) NoRoom();
        SQLite::Database database(Place(u"indici.mdb"_s).toStdString(), SQLite::OPEN_READWRITE);
        SQLite::Database damaged(Place(u"danneggiato.mdb"_s).toStdString(), SQLite::OPEN_READWRITE);
        Distrust(database);
        Distrust(damaged);
        database.exec("REINDEX");
        if (AnyDamage(CheckDatabase(database, CheckDepth::Values))) return false;
        repair_.tables.clear();
        for (const Table table : TablesOf(database)) {
            const IndexWitness witness = WitnessOf(damaged, database, table);
            if (!witness.missing.empty() || !witness.different.empty()) return false;
            repair_.tables.push_back({table, RowsOf(database, table)});
        }
        repair_.way = Repair::Way::Indexes;
        repair_.path = Place(u"indici.mdb"_s);
        return true;
    }

    bool ByRows() {
        const QString path = Place(u"righe.mdb"_s);
        SQLite::Database damaged(Place(u"danneggiato.mdb"_s).toStdString(), SQLite::OPEN_READWRITE);
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        Distrust(damaged);
        SalvageRows(damaged, database);
        database.exec("BEGIN");
        repair_.tables.clear();
        for (const Table table : TablesOf(database)) {
            if (database.tableExists(Definition(table).name.toStdString())) {
                repair_.tables.push_back(Complete(damaged, database, table));
            }
        }
        RebuildTrips(database);
        database.exec("COMMIT");
        UpdateTables(database, path);
        if (AnyDamage(CheckDatabase(database, CheckDepth::Values))) return false;
        if (RowsOf(database, Table::MeteVandro) == 0 && repair_.lastGood) return false;
        repair_.way = Repair::Way::Rows;
        repair_.path = path;
        return true;
    }

    // What an index knows better than the rows is believed where a copy says the same.
    RepairedTable Complete(SQLite::Database& damaged, SQLite::Database& database, Table table) {
        RepairedTable repaired{table};
        const IndexWitness witness = WitnessOf(damaged, database, table);
        for (const auto& [id, values] : witness.missing) {
            const bool taken = TakeFromCopies(database, table, id, values);
            ++(taken ? repaired.fromCopy : repaired.lost);
            if (taken || table != Table::MeteVandro) continue;
            const auto code = values.find(mete::CodiceMeta);
            const auto name = values.find(mete::Localita);
            if (code != values.end() && name != values.end()) lostTrips_[code->second] = name->second;
        }
        for (const auto& [id, values] : witness.different) {
            if (TakeFromCopies(database, table, id, values)) {
                ++repaired.fromCopy;
            } else {
                Doubt(database, table, id, values);
            }
        }
        repaired.kept = RowsOf(database, table);
        return repaired;
    }

    // Stages without their trip would not be seen, and be those of the next one that gets its code.
    void RebuildTrips(SQLite::Database& database) {
        SQLite::Statement orphans(database,
                                  "SELECT DISTINCT CodiceMeta FROM Itinerari WHERE CodiceMeta NOT IN "
                                  "(SELECT CodiceMeta FROM MeteVandro) ORDER BY 1");
        std::vector<QString> codes;
        while (orphans.executeStep()) codes.push_back(ColumnText(orphans, 0));
        for (const QString& code : codes) {
            const auto known = lostTrips_.find(code);
            const QString name = known != lostTrips_.end() ? known->second : u"RECUPERATA %1"_s.arg(code);
            InsertTrip(database, code, name, QFileInfo(path_).lastModified().date());
            repair_.rebuilt += name;
            ++repair_.tables.front().kept;
        }
    }

    // The newest copy that has the row; older ones are opened when they are needed.
    bool TakeFromCopies(SQLite::Database& database, Table table, std::int64_t id, const IndexWitness::Values& values) {
        for (std::size_t i = 0;; ++i) {
            if (i == opened_.size() && !OpenNextCopy()) return false;
            if (CompleteFromCopy(*opened_[i], database, table, id, values)) return true;
        }
    }

    bool OpenNextCopy() {
        while (next_ < copies_.size()) {
            const QString path = copies_[next_++].path;
            if (!IsGood(path)) continue;
            auto copy = std::make_unique<SQLite::Database>(path.toStdString(), SQLite::OPEN_READONLY, kBusyTimeoutMs);
            Distrust(*copy);
            if (!UpToDate(*copy)) continue;
            opened_.push_back(std::move(copy));
            return true;
        }
        return false;
    }

    void Doubt(SQLite::Database& database, Table table, std::int64_t id, const IndexWitness::Values& values) {
        for (const auto& [field, value] : values) {
            SQLite::Statement row(
                database, "SELECT " + FieldName(table, field) + " FROM " + TableName(table) + " WHERE rowid = ?");
            row.bind(1, id);
            if (row.executeStep() && repair_.doubts.size() < kMostDoubts) {
                repair_.doubts += u"«%1» o «%2»"_s.arg(ColumnText(row, 0), value);
            }
        }
    }

    bool ByCopy() {
        if (!repair_.lastGood) return false;
        const QString path = Place(u"copia.mdb"_s);
        if (!QFile::copy(repair_.lastGood->path, path)) NoRoom();
        repair_.way = Repair::Way::Copy;
        repair_.path = path;
        repair_.tables.clear();
        const auto rows = RowsIn(path);
        for (const Table table : AllTables()) {
            repair_.tables.push_back({table, rows.at(static_cast<std::size_t>(table) - 1).value_or(0)});
        }
        return true;
    }

    QString path_;
    Repair repair_;
    std::vector<ArchiveCopy> copies_;
    std::map<QString, QString> lostTrips_;                   // names that an index still knows, by the codes
    std::vector<std::unique_ptr<SQLite::Database>> opened_;  // of these, to take rows from
    std::size_t next_ = 0;                                   // the copy to be opened next
};

}  // namespace

Repair PrepareRepair(const QString& folder) {
    if (!AnyDamage(CheckArchive(folder))) throw Failure(u"L'archivio è in ordine: non c'è niente da riparare."_s);
    return Repairer(folder).Run();
}

QString ApplyRepair(const QString& folder, const Repair& repair, const QDateTime& now) {
    const QString path = Archive::FilePath(folder);
    if (QFileInfo(path).lastModified() != repair.written) {
        throw Failure(u"L'archivio è cambiato nel frattempo: ripeti la riparazione."_s);
    }
    QString aside = LayAside(path, now);
    ReplaceContents(path, repair.path);
    return aside;
}

}  // namespace cronovia
