// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/connection.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <QDir>
#include <QScopeGuard>
#include <stdexcept>
#include <utility>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString KnownReason(int code) {
    switch (code & 0xFF) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return u"l'archivio è in uso da un altro programma; riprova tra poco"_s;
        case SQLITE_FULL:
            return u"il disco è pieno"_s;
        case SQLITE_READONLY:
            return u"il file o la sua cartella sono in sola lettura"_s;
        case SQLITE_PERM:
        case SQLITE_AUTH:
        case SQLITE_CANTOPEN:
            return u"il file non si può aprire: controlla i permessi e la cartella"_s;
        case SQLITE_NOTADB:
            return u"il file non è un archivio di Cronovia"_s;
        case SQLITE_CORRUPT:
            return u"il file è danneggiato"_s;
        case SQLITE_IOERR:
            return u"errore di lettura o di scrittura sul disco"_s;
        default:
            return {};
    }
}

}  // namespace

void Distrust(SQLite::Database& database) {
    sqlite3* handle = database.getHandle();
    for (const auto& [option, value] : {std::pair{SQLITE_DBCONFIG_DEFENSIVE, 1},
                                        {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                                        {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                                        {SQLITE_DBCONFIG_ENABLE_VIEW, 0}}) {
        sqlite3_db_config(handle, option, value, nullptr);
    }
    database.exec("PRAGMA cell_size_check = ON");
}

QString DatabaseReason(const SQLite::Exception& error) {
    if (error.getExtendedErrorCode() == SQLITE_READONLY_DBMOVED) {
        return u"il file è stato spostato o cancellato mentre era aperto; nella finestra, «Salva in un'altra "
               "cartella…» del menu File conserva il tuo lavoro"_s;
    }
    const QString reason = KnownReason(error.getErrorCode());
    return reason.isEmpty() ? u"errore del database («%1»)"_s.arg(QString::fromUtf8(error.what())) : reason;
}

Failure DatabaseFailure(const SQLite::Exception& error, const QString& path) {
    return Failure(u"Archivio %1: %2."_s.arg(QDir::toNativeSeparators(path), DatabaseReason(error)));
}

// A connection belongs to one thread: nothing need be locked for each value that is read.
Archive::Connection::Connection(const QString& path)
    : path_(path), database_(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX, kBusyTimeoutMs) {
    Distrust(database_);
    database_.exec("PRAGMA cache_size = -32000");
}

SQLite::Statement& Archive::Connection::Prepared(const std::string& sql) {
    auto found = statements_.find(sql);
    if (found == statements_.end()) found = statements_.emplace(sql, SQLite::Statement(database_, sql)).first;
    SQLite::Statement& statement = found->second;
    statement.tryReset();
    return statement;
}

SQLite::Statement& Archive::Connection::ForWriting(const std::string& sql) {
    if (reading_) throw std::logic_error("written within a read snapshot: " + sql);
    if (!InTransaction()) KeepCopyOfToday();
    if (!damage_.isEmpty()) throw Failure(damage_);
    return Prepared(sql);
}

bool Archive::Connection::InTransaction() const { return sqlite3_get_autocommit(database_.getHandle()) == 0; }

void Archive::Connection::MarkDamaged() {
    damage_ =
        u"L'archivio %1 è danneggiato: quello che si legge può essere incompleto, e finché è così non si scrive "
        "niente. Per ripararlo: «Ripara l'archivio…» nel menu File, o «cronovia verifica --ripara»."_s.arg(
            QDir::toNativeSeparators(path_));
    database_.tryExec("PRAGMA query_only = ON");
}

void Archive::Connection::BeginReading() {
    Prepared("BEGIN").exec();
    reading_ = true;
}

void Archive::Connection::EndReading() {
    reading_ = false;
    database_.tryExec("COMMIT");
}

std::int64_t Archive::Connection::Number(const std::string& sql) {
    return Guarded(path_, [&] {
        SQLite::Statement& statement = Prepared(sql);
        // Left half-way, also by a failure, it would keep others from writing.
        const auto done = qScopeGuard([&] { statement.tryReset(); });
        statement.executeStep();
        return statement.getColumn(0).getInt64();
    });
}

}  // namespace cronovia
