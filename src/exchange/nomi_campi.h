// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of the tables in the words of people.
#pragma once

#include <QString>

#include "store/schema.h"

namespace cronovia {

/// What people call a field of a trip: "data d'inizio".
QString NomeCampoMeta(mete::Field campo);

/// Values of a field of the three tables that travel, cut to its width: "località accorciate a 30 caratteri (mète)".
QString CampoAccorciato(Table tabella, int campo);

}  // namespace cronovia
