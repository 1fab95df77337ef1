// Opening the archive of a data folder.
#include <SQLiteCpp/Exception.h>

#include <QDir>
#include <memory>

#include "store/archive.h"
#include "store/connection.h"
#include "store/schema_check.h"

namespace cronovia {

using namespace Qt::StringLiterals;

QString Archive::FilePath(const QString& folder) { return QDir(folder).filePath(u"VandroCronovia.mdb"_s); }

const QString& Archive::Path() const { return connection_->Path(); }

Archive Archive::Open(const QString& folder) {
    const QString path = FilePath(folder);
    const QString opening = u"Errore apertura database "_s + QDir::toNativeSeparators(path);
    if (!QDir().mkpath(folder)) throw Failure(opening + u": la cartella non si può creare."_s);
    RefuseForeignFile(path);
    try {
        auto connection = std::make_unique<Connection>(path);
        UpdateTables(connection->Database(), path);
        return Archive(std::move(connection));
    } catch (const SQLite::Exception& error) {
        throw Failure(opening + u": "_s + DatabaseReason(error) + u"."_s);
    }
}

// Through a connection of its own: that of a transaction cannot be copied from.
void Archive::CopyTo(const QString& path) const {
    Guarded(connection_->Path(), [&] {
        SQLite::Database source(connection_->Path().toStdString(), SQLite::OPEN_READONLY);
        CopyDatabase(source, path);
    });
}

}  // namespace cronovia
