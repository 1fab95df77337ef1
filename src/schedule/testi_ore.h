// SPDX-License-Identifier: GPL-3.0-or-later
// The words for hours that others set, the same in the window, on paper and on the command line.
#pragma once

#include <QString>

#include "schedule/riga_cronovia.h"

namespace cronovia {

/// What comes of an hour: "attesa 01:10", "ritardo 00:25", "margine 00:30".
QString TestoBreve(const EsitoOra& ora);

/// Which hour it is, and what else comes of it: "Traghetto delle 22:00, margine 00:30", "Non dopo le 15:00, in ritardo
/// da SIENA".
QString Testo(const EsitoOra& ora, const Cronovia& cronovia);

/// How it stands to when one has to be home: "margine 00:45", "ritardo 02:10".
QString TestoBreve(const EsitoScadenza& scadenza);

/// "A casa entro dom 11/07/2027 20:00: margine 00:45", "... : ritardo 02:10, da SIENA".
QString Testo(const EsitoScadenza& scadenza, const Cronovia& cronovia);

}  // namespace cronovia
