// SPDX-License-Identifier: GPL-3.0-or-later
// Whether a name is stored already, asked for each of the many rows that come from a file.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "store/archive.h"
#include "store/name_index.h"

namespace cronovia {

/// Answers from the table's own index for as long as that is quick, and from an index of its own once the questions
/// have made it read too many rows: names with wildcards at their beginning, many entries of one locality.
class NomiPresenti {
  public:
    /// Names that lie in these fields of a table.
    NomiPresenti(Archive& archive, Table tabella, std::vector<int> campi);

    /// The id of a row whose first fields match `prime` and whose last one has that name by the rules of name matching.
    /// Other installations store one blank behind a name, or in its place.
    std::optional<std::int64_t> Trova(std::span<const NamePattern> prime, const QString& nome);

    /// Tells of a row that was added or changed, and of rows that were deleted.
    void Scritta(std::int64_t id, const std::vector<QString>& valori);
    void Dimentica() { indice_.reset(); }

  private:
    std::optional<std::int64_t> Trova(std::span<const NamePattern> prime, const NamePattern& ultimo);

    Archive& archive_;
    Table tabella_;
    std::vector<int> campi_;
    std::int64_t righeLette_ = 0;
    std::optional<NameIndex> indice_;
};

}  // namespace cronovia
