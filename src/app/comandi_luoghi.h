// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that tell where localities lie.
#pragma once

#include "app/postazione.h"
#include "places/posizione.h"

namespace cronovia::comandi {

/// Gives a locality its position, for all trips; takes away what a person said of it, so that it is looked up again.
void MettiLuogo(Postazione& p, const QString& localita, const Posizione& posizione);
void DimenticaLuogo(Postazione& p, const QString& localita);

}  // namespace cronovia::comandi
