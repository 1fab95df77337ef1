// SPDX-License-Identifier: GPL-3.0-or-later
// How the phone page looks, and the little that it does by itself.
#pragma once

#include <QString>

namespace cronovia {

/// Style sheet of the page: a phone in the hand, a wide window, paper; light and dark.
QString StilePagina();

/// Finds today's card and goes there; nothing on the page needs it.
QString ProgrammaPagina();

/// The patterns with which the bars of the days are filled, as SVG definitions.
QString TramePagina();

}  // namespace cronovia
