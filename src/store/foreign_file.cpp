// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/foreign_file.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <QByteArray>
#include <QByteArrayView>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <algorithm>

#include "interaction/failure.h"
#include "store/schema.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

int NumberOf(SQLite::Database& database, const char* sql) { return database.execAndGet(sql).getInt(); }

// In small letters, as the database tells them apart.
QStringList FieldNames(SQLite::Database& database, const QString& table) {
    SQLite::Statement statement(database, "SELECT name FROM pragma_table_info(?)");
    statement.bind(1, table.toStdString());
    QStringList names;
    while (statement.executeStep()) names += QString::fromStdString(statement.getColumn(0).getString()).toLower();
    return names;
}

// Our tables that are there, and those of them that have all, or at least some, of their fields.
struct Likeness {
    int present = 0;
    int whole = 0;
    int some = 0;
};

Likeness LikenessOf(SQLite::Database& database) {
    Likeness likeness;
    for (const Table each : AllTables()) {
        const TableDefinition& table = Definition(each);
        const QStringList names = FieldNames(database, table.name);
        if (names.isEmpty()) continue;
        const auto ours = std::count_if(table.fields.begin(), table.fields.end(), [&](const FieldDefinition& field) {
            return names.contains(field.name.toLower());
        });
        ++likeness.present;
        if (ours == std::ssize(table.fields)) ++likeness.whole;
        if (ours > 0) ++likeness.some;
    }
    return likeness;
}

// A file that carries our mark may lack fields of a later release; another one must have all that makes an archive.
bool IsOurs(SQLite::Database& database) {
    const int mark = NumberOf(database, "PRAGMA application_id");
    const Likeness likeness = LikenessOf(database);
    if (mark == kApplicationId) return likeness.some == likeness.present;
    const bool trips = !FieldNames(database, Definition(Table::MeteVandro).name).isEmpty();
    return mark == 0 && trips && likeness.whole == likeness.present;
}

constexpr QByteArrayView kJet("\0\1\0\0Standard Jet DB", 19);
constexpr QByteArrayView kOurs("SQLite format 3\0", 16);

}  // namespace

bool IsDestroyed(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return false;
    const QByteArray start = file.read(20);
    return !start.startsWith(kJet) && !start.startsWith(kOurs);
}

bool HasTables(SQLite::Database& database) {
    return NumberOf(database, "SELECT COUNT(*) FROM sqlite_master WHERE type = 'table'") > 0;
}

void RefuseForeignFile(const QString& path) {
    const QFileInfo info(path);
    const QString opening = u"Errore apertura database "_s + QDir::toNativeSeparators(path) + u": "_s;
    if (info.isDir()) throw Failure(opening + u"al suo posto c'è una cartella."_s);
    for (const char* tail : {"", "-journal", "-wal", "-shm"}) {
        const QFileInfo part(path + QLatin1StringView(tail));
        if (!part.exists() || part.isFile()) continue;
        throw Failure(opening + u"%1 non è un file."_s.arg(QDir::toNativeSeparators(part.filePath())));
    }
    if (!info.exists()) return;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw Failure(opening + u"manca il permesso di leggere il file."_s);
    const QByteArray start = file.read(20);
    if (start.isEmpty()) {
        throw Failure(opening +
                      u"il file è vuoto, non c'è più niente da leggere. Se ne hai una copia, anche nella cartella "
                      "Copie, «cronovia ripristina» la rimette al suo posto; altrimenti toglilo, e Cronovia ne fa uno "
                      "nuovo."_s);
    }
    if (start.startsWith(kJet)) {
        throw Failure(opening +
                      u"è un archivio Jet dell'edizione precedente, che Cronovia non può usare; il file è "
                      "rimasto com'era."_s);
    }
    if (!start.startsWith(kOurs)) {
        throw Failure(opening + u"il file non è un archivio di Cronovia; è rimasto com'era."_s);
    }
}

void RefuseForeignDatabase(SQLite::Database& database, const QString& path) {
    const QString opening = u"Errore apertura database "_s + QDir::toNativeSeparators(path) + u": "_s;
    if (NumberOf(database, "PRAGMA user_version") > kSchemaVersion) {
        throw Failure(opening + u"l'archivio è di una versione più recente di Cronovia."_s);
    }
    if (HasTables(database) && !IsOurs(database)) {
        throw Failure(opening + u"il file è un archivio di un altro programma; è rimasto com'era."_s);
    }
    if (NumberOf(database, "SELECT COUNT(*) FROM sqlite_master WHERE type IN ('view', 'trigger')") > 0) {
        throw Failure(opening +
                      u"qualcuno vi ha aggiunto viste o procedure automatiche, che un archivio di Cronovia non ha; "
                      "il file è rimasto com'era."_s);
    }
}

}  // namespace cronovia
