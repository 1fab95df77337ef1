// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of a trip by their names, as people read and type them.
#pragma once

#include <QString>
#include <vector>

#include "trips/meta.h"

namespace cronovia {

/// A field of a trip: "OraPranzo" and "12:30".
struct DatoMeta {
    QString nome;
    QString valore;
};

/// All but the code, in the order of the table, then when one has to be home, and the prices: hours as "hh:mm", dates
/// as "dd/mm/yyyy".
std::vector<DatoMeta> DatiDellaMeta(const Meta& meta);

/// The trip with that field changed; its hours are not put in order. A `Failure` names the field, and what it can be,
/// when there is none of that name, or it cannot be that. Of the two fields of being home the day comes first, and
/// means its end until the hour is told; an empty text in either takes both away.
Meta ConDato(Meta meta, const DatoMeta& dato);

}  // namespace cronovia
