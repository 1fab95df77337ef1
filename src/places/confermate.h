// SPDX-License-Identifier: GPL-3.0-or-later
// Positions that a person, or a file of a navigator, has given to localities. They are about a locality, whichever trip
// passes it.
#pragma once

#include <QString>
#include <map>
#include <optional>

#include "places/posizione.h"
#include "store/archive.h"

namespace cronovia {

/// All of an archive, as of one moment.
class PosizioniConfermate {
  public:
    PosizioniConfermate() = default;
    explicit PosizioniConfermate(Archive& archive);

    /// Nothing for a locality that has none. Capital and small letters are the same.
    [[nodiscard]] std::optional<Posizione> Di(const QString& localita) const;

  private:
    std::map<QString, Posizione> perLocalita_;
};

/// Gives a locality its position, instead of the one it had.
void ConfermaPosizione(Archive& archive, const QString& localita, const Posizione& posizione);

/// Takes it away; whether there was one.
bool DimenticaPosizione(Archive& archive, const QString& localita);

}  // namespace cronovia
