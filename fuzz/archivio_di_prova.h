// SPDX-License-Identifier: GPL-3.0-or-later
// What the fuzz targets share.
#pragma once

#include <QDir>
#include <QTemporaryDir>
#include <cstdlib>

#include "interaction/progress.h"
#include "store/archive.h"

namespace cronovia {

/// A finding unless this holds.
inline void Pretendi(bool vero) {
    if (!vero) std::abort();
}

/// A folder in memory where the system has such a place; what archives cost on disk would be all that is measured.
class CartellaInMemoria : public QTemporaryDir {
  public:
    CartellaInMemoria() : QTemporaryDir(Radice() + QStringLiteral("/cronovia-fuzz-XXXXXX")) {}

  private:
    static QString Radice() {
        const QString memoria = QStringLiteral("/dev/shm");
        return QDir(memoria).exists() ? memoria : QDir::tempPath();
    }
};

/// Takes out trips, stages and guide, so that the next input meets an empty archive.
inline void SvuotaArchivio(Archive& archive) {
    Transaction transaction(archive);
    Progress progress;
    std::vector<Table> tabelle = {Table::MeteVandro, Table::Itinerari, Table::GuidaCitta};
    tabelle.insert(tabelle.end(), TripTablesOnDemand().begin(), TripTablesOnDemand().end());
    for (const Table tabella : tabelle) {
        archive.DeleteMatching(tabella, std::nullopt, progress);
    }
    transaction.Commit();
}

}  // namespace cronovia
