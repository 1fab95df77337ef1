// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/copies.h"

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <future>
#include <string>
#include <utility>

#include "store/archive_check.h"
#include "store/connection.h"
#include "store/foreign_file.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMonths = 12;
constexpr qint64 kAbandonedAfterSeconds = 3600;
const auto kStamp = u"yyyy-MM-dd HH.mm.ss"_s;

[[noreturn]] void Unwritable() { throw SQLite::Exception("copy", SQLITE_CANTOPEN); }

// Another program may hold the file.
void CopyPages(SQLite::Database& source, SQLite::Database& target) {
    SQLite::Backup backup(target, source);
    const int result = backup.executeStep();
    if (result != SQLITE_DONE) throw SQLite::Exception("backup", result);
}

/// Nothing changes in the file while this lives.
class Held {
  public:
    explicit Held(SQLite::Database& database) : database_(database) {
        database_.exec("BEGIN");
        database_.execAndGet("SELECT COUNT(*) FROM sqlite_master");  // only reading takes the lock
    }
    ~Held() { sqlite3_exec(database_.getHandle(), "COMMIT", nullptr, nullptr, nullptr); }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

  private:
    SQLite::Database& database_;
};

bool IsDamaged(SQLite::Database& database) { return AnyDamage(CheckDatabase(database, DepthForCopies(database))); }

// By a connection of its own, as another thread needs one.
bool IsDamagedAt(const std::string& path) {
    SQLite::Database database(path, SQLite::OPEN_READONLY, kBusyTimeoutMs);
    Distrust(database);
    return IsDamaged(database);
}

// What is open is no more at its path: there is nothing, or another file.
bool HasMoved(SQLite::Database& database) {
    int moved = 0;
    sqlite3_file_control(database.getHandle(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

// The pages are copied as they are: to look through them where they come from, meanwhile, tells the same. Whether they
// are damaged.
bool CopyAndCheck(SQLite::Database& source, SQLite::Database& target) {
    const Held held(source);
    if (HasMoved(source)) {
        CopyPages(source, target);
        return IsDamaged(target);
    }
    std::future<bool> damaged = std::async(std::launch::async, IsDamagedAt, source.getFilename());
    CopyPages(source, target);
    return damaged.get();
}

// A copy that was never ended, since its program was killed.
bool Abandoned(const QString& path) {
    const QFileInfo info(path);
    return info.isFile() && info.lastModified().secsTo(QDateTime::currentDateTime()) > kAbandonedAfterSeconds;
}

/// A file that a copy grows in: made by nobody else at the same time, and gone unless it got its name.
class Unfinished {
  public:
    explicit Unfinished(const std::function<QString(int)>& name) {
        for (int number = 1;; ++number) {
            final_ = name(number);
            path_ = final_ + u".parziale"_s;
            if (Abandoned(path_)) QFile::remove(path_);
            QFile file(path_);
            if (!QFileInfo::exists(final_) && file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return;
            if (!QFileInfo::exists(final_) && !QFileInfo::exists(path_)) Unwritable();
        }
    }
    ~Unfinished() {
        if (!path_.isEmpty()) QFile::remove(path_);
    }
    Unfinished(const Unfinished&) = delete;
    Unfinished& operator=(const Unfinished&) = delete;

    [[nodiscard]] std::string Path() const { return path_.toStdString(); }
    QString Finish() {
        if (!QFile::rename(path_, final_)) Unwritable();
        path_.clear();
        return final_;
    }

  private:
    QString final_;
    QString path_;
};

const QRegularExpression& CopyName() {
    static const QRegularExpression name(
        u"^VandroCronovia (\\d{4}-\\d\\d-\\d\\d \\d\\d\\.\\d\\d\\.\\d\\d)(?: \\d+)?(?: \\((.*)\\))?\\.mdb$"_s);
    return name;
}

std::optional<ArchiveCopy> CopyAt(const QFileInfo& file) {
    const QRegularExpressionMatch parts = CopyName().match(file.fileName());
    const QDateTime when = QDateTime::fromString(parts.captured(1), kStamp);
    if (!when.isValid()) return std::nullopt;
    return ArchiveCopy{file.filePath(), when, parts.captured(2)};
}

int MonthOf(const QDate& date) { return date.year() * 12 + date.month(); }

void RemoveAbandoned(const QDir& folder) {
    for (const QFileInfo& file : folder.entryInfoList({u"*.parziale"_s, u"*.parziale-journal"_s}, QDir::Files)) {
        if (Abandoned(file.filePath())) QFile::remove(file.filePath());
    }
}

}  // namespace

QString LayCopy(SQLite::Database& source, const std::function<QString(int)>& name) {
    Unfinished copy(name);
    {
        SQLite::Database target(copy.Path(), SQLite::OPEN_READWRITE);
        if (CopyAndCheck(source, target)) throw SQLite::Exception("copy", SQLITE_CORRUPT);
    }
    return copy.Finish();
}

QString CopiesFolder(const QString& folder) { return QDir(folder).filePath(u"Copie"_s); }

std::vector<ArchiveCopy> CopiesOf(const QString& folder) {
    std::vector<ArchiveCopy> copies;
    for (const QFileInfo& file :
         QDir(CopiesFolder(folder)).entryInfoList({u"*.mdb"_s}, QDir::Files, QDir::Time | QDir::Reversed)) {
        if (auto copy = CopyAt(file)) copies.push_back(std::move(*copy));
    }
    std::stable_sort(copies.begin(), copies.end(), [](const auto& a, const auto& b) { return a.when < b.when; });
    std::reverse(copies.begin(), copies.end());
    return copies;
}

QString LayAmongCopies(SQLite::Database& source, const QString& folder, const QDateTime& now, const QString& reason) {
    const QDir copies(CopiesFolder(folder));
    if (!copies.mkpath(u"."_s)) Unwritable();
    RemoveAbandoned(copies);
    return LayCopy(source, [&](int number) {
        const QString again = number == 1 ? QString() : u" %1"_s.arg(number);
        const QString why = reason.isEmpty() ? QString() : u" (%1)"_s.arg(reason);
        return copies.filePath(u"VandroCronovia %1%2%3.mdb"_s.arg(now.toString(kStamp), again, why));
    });
}

void ThinCopies(const QString& folder, const QDate& today, int newest) {
    for (const ArchiveCopy& old : CopiesToRemove(CopiesOf(folder), today, newest)) QFile::remove(old.path);
}

std::vector<ArchiveCopy> CopiesToRemove(const std::vector<ArchiveCopy>& copies, const QDate& today, int newest) {
    std::vector<ArchiveCopy> superfluous;
    QSet<int> months;
    for (std::size_t i = 0; i < copies.size(); ++i) {
        const int month = MonthOf(copies[i].when.date());
        const bool first = !months.contains(month) && month > MonthOf(today) - kMonths;
        months.insert(month);
        if (i >= static_cast<std::size_t>(newest) && !first) superfluous.push_back(copies[i]);
    }
    return superfluous;
}

std::vector<std::optional<std::int64_t>> RowsIn(const QString& path) {
    return Guarded(path, [&] {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READONLY, kBusyTimeoutMs);
        Distrust(database);
        std::vector<std::optional<std::int64_t>> rows;
        for (const Table each : AllTables()) {
            const std::string name = Definition(each).name.toStdString();
            if (database.tableExists(name)) {
                rows.emplace_back(database.execAndGet("SELECT COUNT(*) FROM \"" + name + "\"").getInt64());
            } else {
                rows.emplace_back();
            }
        }
        return rows;
    });
}

// Byte by byte, since nothing in it can be relied on.
QString LayAside(const QString& path, const QDateTime& now) {
    const QFileInfo file(path);
    const auto name = [&](int number) {
        const QString again = number == 1 ? QString() : u" %1"_s.arg(number);
        return file.dir().filePath(
            u"%1 danneggiato %2%3.mdb"_s.arg(file.completeBaseName(), now.toString(kStamp), again));
    };
    int number = 1;
    while (QFileInfo::exists(name(number))) ++number;
    const QString unfinished = name(number) + u".parziale"_s;
    QFile::remove(unfinished);
    if (QFile::copy(path, unfinished) && QFile::rename(unfinished, name(number))) return name(number);
    QFile::remove(unfinished);
    throw Failure(
        u"Il file %1 non si può mettere da parte nella sua cartella: manca lo spazio o il permesso. Non è "
        "stato cambiato niente."_s.arg(QDir::toNativeSeparators(path)));
}

QString KeepPresent(const QString& folder, const QDateTime& now, const QString& reason) {
    const QString path = Archive::FilePath(folder);
    if (QFileInfo(path).size() == 0) return {};
    try {
        SQLite::Database source(path.toStdString(), SQLite::OPEN_READWRITE, kBusyTimeoutMs);
        Distrust(source);
        return LayAmongCopies(source, folder, now, reason);
    } catch (const SQLite::Exception& error) {
        const int code = error.getErrorCode() & 0xFF;
        if (code == SQLITE_CORRUPT || code == SQLITE_NOTADB) return LayAside(path, now);
        throw Failure(
            u"L'archivio di adesso non si può copiare nella cartella Copie: %1. Non è stato cambiato niente."_s.arg(
                DatabaseReason(error)));
    }
}

void RefuseBadCopy(const QString& path) {
    if (!QFileInfo::exists(path)) throw Failure(u"Il file %1 non c'è."_s.arg(QDir::toNativeSeparators(path)));
    RefuseForeignFile(path);
    Guarded(path, [&] {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READONLY, kBusyTimeoutMs);
        Distrust(database);
        RefuseForeignDatabase(database, path);
        if (!AnyDamage(CheckDatabase(database, CheckDepth::Indexes))) return;
        throw Failure(u"La copia %1 è danneggiata: scegline un'altra."_s.arg(QDir::toNativeSeparators(path)));
    });
}

namespace {

// The pages of a database file, but for what tells how often and with what it was written.
QByteArray PagesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QByteArray bytes = file.readAll();
    for (const auto& [from, count] : {std::pair{24, 4}, {92, 8}}) {
        if (bytes.size() >= from + count) bytes.replace(from, count, QByteArray(count, '\0'));
    }
    return bytes;
}

// Whether a replacement that failed at its end was committed all the same: then only the rest of a longer file is left
// behind the pages.
bool Replaced(const QString& path, const QString& source) {
    const QByteArray pages = PagesOf(source);
    return !pages.isEmpty() && !QFileInfo::exists(path + u"-journal"_s) && PagesOf(path).startsWith(pages);
}

}  // namespace

// The reset has the old pages overwritten without a look at what they say.
void ReplaceContents(const QString& path, const QString& source) {
    Guarded(path, [&] {
        SQLite::Database from(source.toStdString(), SQLite::OPEN_READONLY, kBusyTimeoutMs);
        SQLite::Database target(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, kBusyTimeoutMs);
        sqlite3_db_config(target.getHandle(), SQLITE_DBCONFIG_RESET_DATABASE, 1, nullptr);
        try {
            CopyPages(from, target);
        } catch (const SQLite::Exception&) {
            if (!Replaced(path, source)) throw;
        }
    });
}

}  // namespace cronovia
