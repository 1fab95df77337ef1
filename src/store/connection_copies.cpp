// SPDX-License-Identifier: GPL-3.0-or-later
// The copies that an open archive keeps of itself.
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <QDateTime>
#include <QFileInfo>
#include <utility>

#include "store/connection.h"
#include "store/copies.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// What people typed; all else comes by itself.
bool WorthACopy(SQLite::Database& database) {
    return database
        .execAndGet(
            "SELECT EXISTS (SELECT 1 FROM MeteVandro) OR EXISTS (SELECT 1 FROM Itinerari) OR "
            "EXISTS (SELECT 1 FROM GuidaCitta)")
        .getInt();
}

QString NotLaid(const QString& reason) {
    return u"La copia di sicurezza dell'archivio nella cartella Copie non si può fare: "_s + reason + u"."_s;
}

}  // namespace

void Archive::Connection::KeepDailyCopies(std::function<QDateTime()> now, std::function<void(const QString&)> tell,
                                          std::function<int()> newest) {
    keeping_ = Keeping{std::move(now), std::move(tell), std::move(newest), {}, {}};
}

// A damaged archive is none to be kept, and it is found out here when it is too large to be checked at its opening.
void Archive::Connection::LayCopyNow(const QString& reason) {
    const QDateTime now = keeping_->now();
    keeping_->day = now.date();
    const Mark present = PresentMark();
    if (keeping_->mark == present) return;
    try {
        SQLite::Database source(path_.toStdString(), SQLite::OPEN_READONLY, kBusyTimeoutMs);
        if (!WorthACopy(source)) {
            keeping_->day = {};
            return;
        }
        const QString folder = QFileInfo(path_).path();
        LayAmongCopies(source, folder, now, reason);
        ThinCopies(folder, now.date(), keeping_->newest());
    } catch (const SQLite::Exception& error) {
        if ((error.getErrorCode() & 0xFF) != SQLITE_CORRUPT) throw;
        MarkDamaged();
        return;
    }
    keeping_->mark = present;
}

void Archive::Connection::KeepCopyOfToday() {
    if (!keeping_ || !damage_.isEmpty()) return;
    if (!QFileInfo::exists(path_)) return;  // moved away: the writing tells of it
    const QDateTime now = keeping_->now();
    if (keeping_->day == now.date()) return;
    const std::vector<ArchiveCopy> copies = CopiesOf(QFileInfo(path_).path());
    if (!copies.empty() && copies.front().when.date() == now.date()) {
        keeping_->day = now.date();
        return;
    }
    try {
        LayCopyNow({});
    } catch (const SQLite::Exception& error) {
        keeping_->tell(NotLaid(DatabaseReason(error)));
    }
}

void Archive::Connection::KeepCopy(const QString& reason) {
    if (!keeping_) return;
    if (!damage_.isEmpty()) throw Failure(damage_);
    try {
        LayCopyNow(reason);
    } catch (const SQLite::Exception& error) {
        throw Failure(NotLaid(DatabaseReason(error)) + u" Perciò non è stato cambiato niente."_s);
    }
    if (!damage_.isEmpty()) throw Failure(damage_);
}

// As `Archive::PresentMark`.
Archive::Mark Archive::Connection::PresentMark() {
    return {Number("PRAGMA data_version"), database_.getTotalChanges()};
}

}  // namespace cronovia
