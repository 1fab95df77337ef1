// SPDX-License-Identifier: GPL-3.0-or-later
// What the copy screen works on: the trips to copy from, then the stages of the one that was chosen.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "app/sessione.h"
#include "itinerary/tratti.h"
#include "trips/mete.h"

namespace cronovia {

/// What the copy screen works on: the trips whose stages can be copied, the stages of one of them, and the stretch that
/// is marked out there.
class TavoloCopia {
  public:
    /// Lists the trips with stored stages by their destinations; refused when there is none.
    explicit TavoloCopia(Sessione& sessione);

    /// In the order of the list.
    [[nodiscard]] const std::vector<MetaInElenco>& Mete() const { return mete_; }
    /// The stages of the trip chosen; nothing while the trips are listed.
    [[nodiscard]] const std::optional<RigheItinerario>& Tappe() const { return tappe_; }
    /// The row of the list, or of the stages, that is current, from 1.
    [[nodiscard]] int RigaCopia() const { return rigaCopia_; }
    /// Rows of the assigned first and last stage.
    [[nodiscard]] const std::array<std::optional<int>, 2>& Assegnate() const { return assegnate_; }
    /// The rows to highlight.
    [[nodiscard]] Tratto Evidenziato() const { return TrattoEvidenziato(assegnate_[0], assegnate_[1], rigaCopia_); }
    /// The stretch in the direction wanted, once both ends are assigned.
    [[nodiscard]] std::optional<Tratto> Scelto() const;

    /// Shows the stages of the trip in a row of the list, if there is such a row; refused when they are gone meanwhile,
    /// and the list is made anew.
    void ScegliMeta(int riga);
    /// Makes the list anew while it is shown.
    void Aggiorna();
    /// Goes to a row of what is listed, the nearest one that there is.
    void SelezionaRiga(int riga);
    /// The current row becomes the first (0) or last (1) stage.
    void Assegna(std::size_t estremo) { assegnate_.at(estremo) = rigaCopia_; }

  private:
    void ElencaMete();

    Sessione* sessione_;  // never null
    std::vector<MetaInElenco> mete_;
    std::optional<RigheItinerario> tappe_;
    int rigaCopia_ = 1;
    std::array<std::optional<int>, 2> assegnate_;
};

}  // namespace cronovia
