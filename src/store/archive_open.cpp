// SPDX-License-Identifier: GPL-3.0-or-later
// Opening the archive of a data folder, and looking whether it can be relied on.
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <memory>
#include <optional>

#include "store/archive.h"
#include "store/archive_check.h"
#include "store/connection.h"
#include "store/copies.h"
#include "store/foreign_file.h"
#include "store/schema_check.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

/// One moment of a database, of which all is read while this lives. Without it each of a hundred small questions would
/// lock the file and look for a journal by itself.
class Moment {
  public:
    explicit Moment(SQLite::Database& database) : database_(database) { database_.exec("BEGIN"); }
    Moment(const Moment&) = delete;
    Moment& operator=(const Moment&) = delete;
    ~Moment() { database_.tryExec("COMMIT"); }

  private:
    SQLite::Database& database_;
};

// A new archive gets its name when it is complete. Whoever made one meanwhile was first.
void CreateFile(const QString& path) {
    const QString unfinished = u"%1-%2.parziale"_s.arg(path, QString::number(QCoreApplication::applicationPid()));
    QFile::remove(unfinished);
    try {
        SQLite::Database database(unfinished.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        UpdateTables(database, unfinished);
    } catch (...) {
        QFile::remove(unfinished);
        throw;
    }
    if (!QFile::rename(unfinished, path)) QFile::remove(unfinished);
}

}  // namespace

QString Archive::FilePath(const QString& folder) { return QDir(folder).filePath(u"VandroCronovia.mdb"_s); }

const QString& Archive::Path() const { return connection_->Path(); }

Archive Archive::Open(const QString& folder) {
    const QString path = FilePath(folder);
    const QString opening = u"Errore apertura database "_s + QDir::toNativeSeparators(path);
    if (!QDir().mkpath(folder)) throw Failure(opening + u": la cartella non si può creare."_s);
    RefuseForeignFile(path);
    try {
        if (!QFileInfo::exists(path)) CreateFile(path);
        auto connection = std::make_unique<Connection>(path);
        SQLite::Database& database = connection->Database();
        auto moment = std::make_optional<Moment>(database);
        RefuseForeignDatabase(database, path);
        const CheckDepth depth = DepthAtOpening(database);
        const bool damaged = AnyDamage(CheckDatabase(database, depth));
        const bool current = !damaged && UpToDate(database);
        moment.reset();
        if (damaged) {
            connection->MarkDamaged();
            return Archive(std::move(connection));
        }
        if (!current) UpdateTables(database, path);
        Archive archive(std::move(connection));
        if (depth >= CheckDepth::Indexes) archive.confirmed_ = archive.PresentMark();
        return archive;
    } catch (const SQLite::Exception& error) {
        const bool damaged = (error.getErrorCode() & 0xFF) == SQLITE_CORRUPT;
        throw Failure(opening + u": "_s + DatabaseReason(error) + u"."_s +
                      (damaged ? u" Che cosa se ne salva lo dice «cronovia verifica --ripara»."_s : QString()));
    }
}

Archive Archive::OpenCopy(const QString& path) {
    return Guarded(path, [&] {
        auto connection = std::make_unique<Connection>(path);
        connection->Database().exec("PRAGMA query_only = ON");
        if (!UpToDate(connection->Database())) {
            throw Failure(u"La copia %1 è di una versione precedente."_s.arg(QDir::toNativeSeparators(path)));
        }
        return Archive(std::move(connection));
    });
}

const QString& Archive::Damage() const { return connection_->Damage(); }

void Archive::ConfirmSound() {
    if (!Damage().isEmpty()) throw Failure(Damage());
    const Mark present = PresentMark();
    if (confirmed_ == present) return;
    Guarded(connection_->Path(), [&] {
        if (AnyDamage(CheckDatabase(connection_->Database(), CheckDepth::Indexes))) connection_->MarkDamaged();
    });
    if (!Damage().isEmpty()) throw Failure(Damage());
    confirmed_ = present;
}

// Through a connection of its own: that of a transaction cannot be copied from.
void Archive::CopyTo(const QString& path) const {
    Guarded(connection_->Path(), [&] {
        SQLite::Database source(connection_->Path().toStdString(), SQLite::OPEN_READONLY, kBusyTimeoutMs);
        LayCopy(source, [&](int number) { return number == 1 ? path : u"%1 %2"_s.arg(path).arg(number); });
    });
}

void Archive::CopyAsOpenTo(const QString& path) const {
    Guarded(connection_->Path(), [&] {
        LayCopy(connection_->Database(),
                [&](int number) { return number == 1 ? path : u"%1 %2"_s.arg(path).arg(number); });
    });
}

void Archive::KeepDailyCopies(std::function<QDateTime()> now, std::function<void(const QString&)> tell,
                              std::function<int()> newest) {
    connection_->KeepDailyCopies(std::move(now), std::move(tell), std::move(newest));
}

void Archive::KeepCopy(const QString& reason) { connection_->KeepCopy(reason); }

}  // namespace cronovia
