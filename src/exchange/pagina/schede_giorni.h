// SPDX-License-Identifier: GPL-3.0-or-later
// The cards of the phone page, one for each day.
#pragma once

#include <vector>

#include "exchange/pagina/pagina_telefono.h"
#include "exchange/pagina/scrittore_html.h"
#include "schedule/strisce.h"

namespace cronovia {

/// The identifier of a day's card on the page.
QString AncoraGiornata(const Giornata& giornata);

/// Writes the cards in the order of the days. What the guide tells of a stop, and what was noted, stands where it is
/// met first.
void ScriviSchede(const DatiPagina& dati, const std::vector<Giornata>& giornate, const MappaViaggio& mappa,
                  ScrittoreHtml& html);

}  // namespace cronovia
