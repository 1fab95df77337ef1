// SPDX-License-Identifier: GPL-3.0-or-later
// Where the stages of the open trip lie, looked up once for all who show it.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <span>
#include <vector>

#include "app/documento.h"
#include "itinerary/posizioni.h"

namespace cronovia {

/// A name that can be entered as a stage.
struct PropostaNome {
    QString nome;         ///< as the field takes it
    QString spiegazione;  ///< the country of a place that the program knows; empty for names used before
};

/// Where the localities of the open trip lie, and which names can follow: kept as long as its stages stay as they are.
class LuoghiDelViaggio {
  public:
    /// The file of places; read when something is asked.
    explicit LuoghiDelViaggio(QString file) : gazzettino_(std::move(file)) {}

    /// The places that the program knows by itself; without its file they are none.
    [[nodiscard]] Gazzettino& Repertorio() { return gazzettino_; }

    /// Those of these stages; looked up anew when they, or the archive, are others than at the last time.
    const std::vector<PosizioneTappa>& Posizioni(Archive& archive, std::span<const Tappa> tappe,
                                                 const QString& nazione);

    /// Another number whenever they were looked up anew.
    [[nodiscard]] int Versione() const { return versione_; }

    /// The straight way in kilometres from the stage above a row, counted from 1, to a locality that is being typed
    /// there; nothing where one of them is not known.
    std::optional<double> Diretta(Archive& archive, const Documento& documento, int riga, const QString& localita);

    /// What a name that begins so can become: stages of this trip, from three letters on those of other trips and the
    /// guide, places, each once. None for fewer than two letters.
    std::vector<PropostaNome> Proposte(Archive& archive, const Documento& documento, const QString& inizio,
                                       int massimo);

  private:
    Gazzettino gazzettino_;
    std::vector<PosizioneTappa> posizioni_;
    std::vector<Tappa> tappe_;
    QString nazione_;
    std::optional<Archive::Mark> letto_;
    int versione_ = 0;
};

}  // namespace cronovia
