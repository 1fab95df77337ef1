// SPDX-License-Identifier: GPL-3.0-or-later
// A stage of an itinerary.
#pragma once

#include <QString>
#include <optional>
#include <span>
#include <vector>

#include "calendar/durata.h"
#include "itinerary/vincoli.h"
#include "trips/meta.h"

namespace cronovia {

/// One stage: the locality reached, the road to it, the stop there. The first stage is the departure place.
struct Tappa {
    QString localita;                ///< empty in a free row
    QString numStrada;               ///< road numbers; a text with "TRAGH" is a ferry leg
    int km = 0;                      ///< from the previous stage
    std::optional<TipoStrada> tipo;  ///< nothing when blank; counts as a local road then
    Durata sosta;                    ///< planned stop; its days are visiting days
    bool fineGiorno = false;         ///< the day ends here
    Durata guida;                    ///< visit times of the guide at this stage; days as in `sosta`
    bool kmDaIndicare = false;       ///< the kilometres are not known any more: `km` is 0 until they are told
    VincoliTappa vincoli = {};       ///< what others set for it
    bool kmStimati = false;          ///< the kilometres, which are more than 0, are a guess from the straight way

    /// Reached by ferry: so says its road, or the ferry's own hours.
    [[nodiscard]] bool Traghetto() const { return numStrada.contains(QStringView(u"TRAGH")) || vincoli.ConTraghetto(); }
    /// A ferry that takes the average time of the trip's ferries, at whichever hour.
    [[nodiscard]] bool TraghettoSenzaOrario() const { return !vincoli.ConTraghetto() && Traghetto(); }
    /// The kilometres that are driven: a ferry with its own hours has none.
    [[nodiscard]] int KmGuidati() const { return vincoli.ConTraghetto() ? 0 : km; }
    /// The road that its speed is that of.
    [[nodiscard]] TipoStrada TipoEffettivo() const { return tipo.value_or(TipoStrada::Locale); }
    /// Nothing is planned here, neither a stop nor the day's end.
    [[nodiscard]] bool SenzaSosta() const { return sosta.Nulla() && !fineGiorno; }

    friend bool operator==(const Tappa&, const Tappa&) = default;
};

/// The type of a letter "A", "S", "P" or "L"; nothing for any other text.
std::optional<TipoStrada> LeggiTipoStrada(QStringView lettera);

/// The type's letter; empty for no type.
QString LetteraTipoStrada(std::optional<TipoStrada> tipo);

/// The letter of the road that a stage's kilometres count for; that of its own type without kilometres.
QString LetteraStrada(const Tappa& tappa);

/// The localities that the stages name, in their order and as often as they do.
std::vector<QString> LocalitaDelleTappe(std::span<const Tappa> tappe);

/// The planned stop as the itinerary shows it: "gg:hh:mm", with a leading "*" when the day ends.
QString TestoSosta(const Durata& sosta, bool fineGiorno);

/// Driving time in whole hundredths of an hour, km at km/h, rounded half up. The speed must not be 0.
Centesimi TempoDiGuida(int km, int mediaKm);

}  // namespace cronovia
