// SPDX-License-Identifier: GPL-3.0-or-later
// Taking an import back.
#pragma once

#include <cstdint>
#include <vector>

#include "store/archive.h"

namespace cronovia {

/// What an import added, which is all that it changed, and how the archive looked right after it.
struct TracciaImport {
    /// The rows that one table got.
    struct Righe {
        Table tabella = Table::MeteVandro;
        std::int64_t dopo = 0;    ///< the rows have greater ids than this
        std::int64_t ultima = 0;  ///< and none a greater one than this
    };
    std::vector<Righe> aggiunte;
    Archive::Mark stato;  ///< right after it
};

/// Deletes the rows of an import, whole or not at all. A `Failure` when anything was written to the archive since.
void AnnullaImport(Archive& archive, const TracciaImport& traccia);

/// Notes the rows that trips, stages and guide get within a transaction of the caller, between construction and `Fine`.
class OsservaAggiunte {
  public:
    /// From here on.
    explicit OsservaAggiunte(Archive& archive);
    /// What was added up to now; asked once.
    TracciaImport Fine();

  private:
    Archive& archive_;
    TracciaImport traccia_;
};

}  // namespace cronovia
