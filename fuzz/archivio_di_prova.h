// SPDX-License-Identifier: GPL-3.0-or-later
// What the fuzz targets share.
#pragma once

#include <cstdlib>

#include "interaction/progress.h"
#include "store/archive.h"

namespace cronovia {

/// A finding unless this holds.
inline void Pretendi(bool vero) {
    if (!vero) std::abort();
}

/// Takes out trips, stages and guide, so that the next input meets an empty archive.
inline void SvuotaArchivio(Archive& archive) {
    Transaction transaction(archive);
    Progress progress;
    for (const Table tabella :
         {Table::MeteVandro, Table::Itinerari, Table::GuidaCitta, Table::Vincoli, Table::Scadenze}) {
        archive.DeleteMatching(tabella, std::nullopt, progress);
    }
    transaction.Commit();
}

}  // namespace cronovia
