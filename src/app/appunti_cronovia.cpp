// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/appunti_cronovia.h"

#include <QStringList>

#include "calendar/testo.h"
#include "files/celle.h"
#include "schedule/colonne.h"
#include "schedule/testi_giornata.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The visits of the guide are of the itinerary alone.
QString RigaDegliAppunti(const RigaGriglia& testi) {
    QStringList celle;
    for (std::size_t i = 0; i < kColonne; ++i) {
        if (static_cast<Colonna>(i) != Colonna::Guida) celle += InCella(testi[i]);
    }
    return celle.join(u'\t') + u'\n';
}

}  // namespace

QString TestoDelleRighe(const Cronovia& cronovia, std::span<const int> righe) {
    QString testo = RigaDegliAppunti(Intestazioni(Vista::Cronovia));
    for (const int riga : righe) testo += RigaDegliAppunti(TestiDellaRiga(cronovia, static_cast<std::size_t>(riga)));
    return testo;
}

QString TestoPerMessaggio(const Meta& meta, const Cronovia& cronovia, const std::vector<Giornata>& giornate) {
    QString testo = Visibile(meta.localita);
    if (!meta.nazione.isEmpty()) testo += u" (%1)"_s.arg(Visibile(meta.nazione));
    testo += u'\n';
    for (const Giornata& giornata : giornate) {
        testo += Visibile(TestoGiornata(giornata)) + u'\n';
        for (const QString& rinvio : TestiRinvii(giornata, cronovia)) testo += u"  "_s + Visibile(rinvio) + u'\n';
    }
    return testo;
}

}  // namespace cronovia
