// SPDX-License-Identifier: GPL-3.0-or-later
// Names looked up by what is literal in a pattern, be it at the beginning or at the end.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "store/archive.h"

namespace cronovia {

/// The names of a table's rows in a temporary table, each from both its ends. What is written to the table later is
/// told with `Add`. For long runs of questions whose patterns find no help in the table's own indexes. One at a time
/// for a table; database errors are a `Failure`.
class NameIndex {
  public:
    /// A name is the fields at `fields` of a row, put together with `kJoin`.
    NameIndex(Archive& archive, Table table, std::vector<int> fields);
    NameIndex(const NameIndex&) = delete;
    NameIndex& operator=(const NameIndex&) = delete;
    ~NameIndex();

    static constexpr QChar kJoin{0x1F};  ///< between the fields of a name

    /// Tells of a row that was written; `values` has a value for every field of the table.
    void Add(std::int64_t id, const std::vector<QString>& values);

    /// The id of a row whose name matches, whichever comes up first; nothing when none does.
    std::optional<std::int64_t> Find(const NamePattern& pattern);

  private:
    class Way;

    Archive::Connection& connection_;
    std::string table_;
    std::vector<int> fields_;
};

}  // namespace cronovia
