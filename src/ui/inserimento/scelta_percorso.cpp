// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/inserimento/scelta_percorso.h"

#include <QFileDialog>

namespace cronovia {

using namespace Qt::StringLiterals;

QString ScegliFilePercorso(QWidget& finestra) {
    // What people see of the filter is the part before its patterns, in which some platforms tell letters' case apart.
    return QFileDialog::getOpenFileName(&finestra, u"Import del percorso"_s, {},
                                        u"File Excel salvato in modalità testo (*.TXT) (*.txt *.TXT *.Txt);;"
                                        "Percorsi di navigatori (GPX, KML, KMZ, ITN, GeoJSON) (*.gpx *.GPX *.kml "
                                        "*.KML *.kmz *.KMZ *.itn *.ITN *.geojson *.json)"_s,
                                        nullptr, QFileDialog::HideNameFilterDetails);
}

}  // namespace cronovia
