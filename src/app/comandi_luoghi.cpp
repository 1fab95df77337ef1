// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_luoghi.h"

#include "places/confermate.h"

namespace cronovia::comandi {

using namespace Qt::StringLiterals;

void MettiLuogo(Postazione& p, const QString& localita, const Posizione& posizione) {
    p.MentreScrive(u"La posizione non è stata salvata."_s,
                   [&] { ConfermaPosizione(p.sessione.Archivio(), localita, posizione); });
}

void DimenticaLuogo(Postazione& p, const QString& localita) {
    p.MentreScrive(u"La posizione non è stata tolta."_s, [&] { DimenticaPosizione(p.sessione.Archivio(), localita); });
}

}  // namespace cronovia::comandi
