// SPDX-License-Identifier: GPL-3.0-or-later
// The words for the days of a journey, the same in the window, on paper and on the command line.
#pragma once

#include <QString>
#include <QStringList>
#include <map>

#include "schedule/giornate.h"

namespace cronovia {

/// "4:10", also beyond 24 hours.
QString TestoOreBrevi(Centesimi tempo);

/// What a day holds, without what it has not: "Giorno 3 · lun 28/06 · 245 km · guida 4:10 · visite 3:30 · notte a
/// CASTELLANE"; on the last day where the journey ends. What it costs stands behind, when something has a price.
QString TestoGiornata(const Giornata& giornata);

/// "a CASTELLANE", "ad ARLES".
QString ALuogo(const QString& luogo);

/// Where the night is spent: "CASTELLANE", "verso GUBBIO", "in traghetto".
QString LuogoDellaNotte(const Giornata& giornata);

/// Why something is later: "sosta a CELLE rinviata a domani (arrivo 0:37 oltre l'orario)".
QString Testo(const Rinvio& rinvio, const Cronovia& cronovia);
QStringList TestiRinvii(const Giornata& giornata, const Cronovia& cronovia);

/// The reasons that are about rows of the schedule, about their stop or driving: by position, in order; several of a
/// row are lines of one text.
std::map<int, QString> MotiviDelleRighe(const Cronovia& cronovia);

/// The line above a day's rows: what it holds, and behind it the reasons of what is late or put off.
QString RigaGiornata(const Giornata& giornata, const Cronovia& cronovia);

}  // namespace cronovia
