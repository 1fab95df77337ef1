// SPDX-License-Identifier: GPL-3.0-or-later
// Positions that a person, or a file of a navigator, has given to localities. They are about a locality, whichever trip
// passes it.
#pragma once

#include <QString>
#include <map>
#include <optional>
#include <vector>

#include "places/posizione.h"
#include "store/archive.h"

namespace cronovia {

/// All of an archive, as of one moment. Of a name as much counts as an itinerary stores, 29 characters.
class PosizioniConfermate {
  public:
    /// None; those of the archive, but for rows that tell no position.
    PosizioniConfermate() = default;
    explicit PosizioniConfermate(Archive& archive);

    /// Nothing for a locality that has none. Capital and small letters are the same.
    [[nodiscard]] std::optional<Posizione> Di(const QString& localita) const;

  private:
    std::map<QString, Posizione> perLocalita_;
};

/// What a locality had before and has since, as it is stored; nothing where it has none.
struct CambioPosizione {
    QString localita;
    std::optional<Posizione> prima;
    std::optional<Posizione> dopo;
};
using CambiPosizioni = std::vector<CambioPosizione>;

/// Gives a locality its position, instead of the one it had; nothing is written when that is the same.
CambioPosizione ConfermaPosizione(Archive& archive, const QString& localita, const Posizione& posizione);

/// Takes it away; whether there was one.
bool DimenticaPosizione(Archive& archive, const QString& localita);

/// Takes changes back, the last one first, whole or not at all; a locality that has got another position since keeps
/// it. Returns the changes that this was, which can be taken back in their turn.
CambiPosizioni AnnullaPosizioni(Archive& archive, const CambiPosizioni& cambi);

}  // namespace cronovia
