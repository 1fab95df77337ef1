// SPDX-License-Identifier: GPL-3.0-or-later
// A journey as one page for the phone: read without a network, without a program, on paper too.
#pragma once

#include <QByteArray>

#include "places/coste.h"
#include "schedule/mappa_viaggio.h"
#include "trips/meta.h"

namespace cronovia {

/// What a page is made from.
struct DatiPagina {
    const Meta& meta;
    const Cronovia& cronovia;
    std::span<const Tappa> tappe;               ///< from which it was computed
    std::span<const PosizioneTappa> posizioni;  ///< of the stages; without any there are no maps
    const Coste& coste;                         ///< empty ones leave the way alone on the maps
};

/// The page of a trip and its schedule as HTML in UTF-8: the trip in short with its map, then a card for each day with
/// its 24 hours, its map, its stages and stops, the guide's entries, what was noted and what is late. It refers to
/// nothing outside itself. A `Failure` without a start date or without rows.
QByteArray PaginaTelefono(const DatiPagina& dati);

}  // namespace cronovia
