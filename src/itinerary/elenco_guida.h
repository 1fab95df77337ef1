// SPDX-License-Identifier: GPL-3.0-or-later
// The guide of a trip: its localities, each with the entries of the guide.
#pragma once

#include <QString>
#include <array>
#include <optional>
#include <vector>

#include "guide/guida_citta.h"
#include "interaction/interaction.h"
#include "store/archive.h"

namespace cronovia {

/// A locality of the trip, or an entry below it.
struct RigaGuida {
    QString localita;               ///< as the itinerary names it
    QString sosta;                  ///< "gg:hh:mm" of its first stage, on the locality's row alone
    std::optional<VoceGuida> voce;  ///< nothing on the locality's row
};

/// The columns of the guide list.
enum class ColonnaGuida { Numero, Tappa, Sosta, Descrizione, Tempo, TipoNota };
inline constexpr std::size_t kColonneGuida = 6;
using TestiGuida = std::array<QString, kColonneGuida>;

/// The headings of the columns.
TestiGuida IntestazioniGuida();

/// The texts of a row, `numero` counted from 1.
TestiGuida ColonneGuida(int numero, const RigaGuida& riga);

/// The localities of a trip's stored itinerary, each once, in alphabetical order; names that differ in case alone are
/// the same. With each the stop of its first stage.
struct LocalitaDellaMeta {
    std::vector<QString> nomi;
    std::vector<QString> soste;  ///< "gg:hh:mm", as many as the names
};
LocalitaDellaMeta LocalitaDellItinerario(Archive& archive, const QString& codiceMeta);

/// What is said of a trip whose guide is asked for before it has stages.
Message SenzaTappeMemorizzate();

/// The guide list of a trip; empty when it has no stored stages. The number of queries does not grow with the trip or
/// the guide.
std::vector<RigaGuida> ElencoDellaGuida(Archive& archive, const QString& codiceMeta);

}  // namespace cronovia
