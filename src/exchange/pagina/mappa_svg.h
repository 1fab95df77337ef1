// SPDX-License-Identifier: GPL-3.0-or-later
// The maps of the phone page.
#pragma once

#include "exchange/pagina/scrittore_html.h"
#include "places/coste.h"
#include "schedule/mappa_viaggio.h"

namespace cronovia {

/// Draws the whole journey, with the numbers of its days, or one day with the names of its places, as SVG with the
/// coasts and borders around it; nothing where no place of it is known. Widths are of the screen's pixels.
void ScriviMappa(const MappaViaggio& mappa, const Coste& coste, ScrittoreHtml& html);
void ScriviMappa(const MappaViaggio& mappa, const Coste& coste, int giornata, ScrittoreHtml& html);

}  // namespace cronovia
