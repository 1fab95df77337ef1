// SPDX-License-Identifier: GPL-3.0-or-later
// Places to stay become entries of the guide: first a proposal, which changes nothing, then what was agreed to.
#pragma once

#include <QString>
#include <optional>
#include <span>
#include <vector>

#include "exchange/annulla_import.h"
#include "exchange/soste/lettore_soste.h"
#include "guide/annotazioni.h"
#include "interaction/progress.h"
#include "places/gazzettino.h"

namespace cronovia {

/// What becomes of a place: it is added, or why not.
enum class SegnoSosta {
    Nuova,
    GiaInGuida,  ///< its locality has an entry with that description
    Vicina,      ///< less than 200 m from one before it in the file, or the same entry
    SenzaNome,
    SenzaLuogo,   ///< nothing that is known lies near
    TroppoLunga,  ///< its name, or that of its locality, does not fit into the guide
};

/// "nuova", "già in guida", …
QString Testo(SegnoSosta segno);

/// One place of the file as the guide would have it.
struct SostaProposta {
    QString localita;  ///< as the itineraries write it, else a place that is known; empty when there is none
    QString descrizione;
    QString tipo;  ///< description of its type
    SegnoSosta segno = SegnoSosta::Nuova;
    bool senzaNote = false;  ///< the notes do not fit beside the name, and are left out whole
    Posizione posizione;
};

/// One for each place, in their order; nothing when the person stopped it. A `Failure` when the guide has no type that
/// does without a time, or when the file of places is missing and no journey passes near.
std::optional<std::vector<SostaProposta>> ProponiSoste(Archive& archive, Gazzettino& gazzettino,
                                                       std::span<const SostaLetta> soste, Progress& progress);

/// How many are to be added, or were (`fatto`), and how many are left out, each for its reason; in lines.
QString ConteggioSoste(std::span<const SostaProposta> soste, bool fatto);

/// How many are new.
int SosteNuove(std::span<const SostaProposta> soste);

/// Adds the new ones, whole or not at all; what was added can be taken back. Those that the guide has got since they
/// were proposed are left out, and marked so.
TracciaImport AggiungiSoste(Archive& archive, std::span<SostaProposta> soste);

}  // namespace cronovia
