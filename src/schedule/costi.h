// SPDX-License-Identifier: GPL-3.0-or-later
// What a journey costs.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "schedule/giornate.h"

namespace cronovia {

/// Works out what each day costs and writes it there; nothing changes when neither trip nor stages have a price. Fuel
/// counts for the kilometres that are driven on the day, toll for those on motorways; ferries and tickets on the day on
/// which they end, nights where they are spent: not on a ferry, nor behind the last day. A stage's night price stands
/// in the place of the trip's.
void MettiCosti(const Cronovia& cronovia, std::vector<Giornata>& giornate);

/// All days together; nothing when nothing has a price.
std::optional<Costi> CostiDelViaggio(const std::vector<Giornata>& giornate);

/// "Costi: 1.234,50 € (carburante 300,00 €, pedaggi 45,20 €, notti 125,00 €)", without what costs nothing.
QString TestoCosti(const Costi& costi);

}  // namespace cronovia
