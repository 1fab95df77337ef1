// SPDX-License-Identifier: GPL-3.0-or-later
// A trip as the archive held it, and in what another state of it differs.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "app/sessione.h"
#include "interaction/failure.h"
#include "itinerary/modifiche.h"

namespace cronovia {

/// The fields and stages that a row and its stages hold; visit times, which are the guide's, are left away.
struct MetaMemorizzata {
    Meta meta;
    RigheItinerario tappe;

    friend bool operator==(const MetaMemorizzata&, const MetaMemorizzata&) = default;
};

/// What the archive held of a trip that was opened.
MetaMemorizzata Memorizzata(const MetaAperta& aperta);
/// What it holds now; nothing when there is no trip with that code.
std::optional<MetaMemorizzata> LeggiMemorizzata(Archive& archive, const QString& codice);

/// In what a trip differs from what it was, a line for each kind of change: the names of its fields, the stages added,
/// changed and taken away by their localities. Empty when it does not.
QStringList Differenze(const MetaMemorizzata& prima, const MetaMemorizzata& dopo);

/// A stored trip is no longer what it was when it was opened: another window, or a command, was at it. Nothing was
/// written.
class MetaCambiata : public Failure {
  public:
    /// What it was, and what is stored now; nothing when it is gone.
    MetaCambiata(const MetaMemorizzata& prima, std::optional<MetaMemorizzata> adesso);

    /// What is stored in its place.
    [[nodiscard]] const std::optional<MetaMemorizzata>& Adesso() const { return adesso_; }
    /// Its code is free or that of another destination: saved all the same, it would be a new trip.
    [[nodiscard]] bool Persa() const { return persa_; }

  private:
    std::optional<MetaMemorizzata> adesso_;
    bool persa_;
};

}  // namespace cronovia
