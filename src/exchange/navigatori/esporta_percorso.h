// SPDX-License-Identifier: GPL-3.0-or-later
// Export of a trip's way for navigators: one file, or one for each day.
#pragma once

#include <QString>
#include <QStringList>
#include <span>
#include <utility>
#include <vector>

#include "exchange/navigatori/scrittori_percorso.h"
#include "guide/guida_citta.h"
#include "itinerary/posizioni.h"

namespace cronovia {

/// What is to be written, and where.
struct RichiestaEsportaPercorso {
    const Archive& archive;  ///< no file of which is ever replaced
    LettoreGuida& guida;     ///< of the stages' localities
    QString path;            ///< of the file, or with days of the folder, which is made where there is none
    FormatoPercorso formato = FormatoPercorso::Gpx;
    bool sovrascrivi = false;  ///< a file that is there is replaced, else refused
    QString nome;              ///< of the trip
    std::span<const Tappa> tappe;
    std::span<const PosizioneTappa> posizioni;  ///< as many as the stages
    /// First and last stage of each day, from 0, with the place where the day begins; none for one file of all.
    std::vector<std::pair<int, int>> giorni = {};
};

/// What was written, and what was not.
struct EsitoEsportaPercorso {
    QStringList file;      ///< those written
    int punti = 0;         ///< stages in them
    int guida = 0;         ///< entries of the guide
    QStringList lasciate;  ///< localities left out, since nobody knows where they lie
};

/// Only places that are known or confirmed are written: a navigator is led to no guess. Days without two of them get
/// no file. A `Failure`, and no file, when nothing is known, when a file may not be replaced or cannot be written.
EsitoEsportaPercorso EsportaPercorso(const RichiestaEsportaPercorso& richiesta);

/// What the person is told, in lines.
QString TestoEsito(const EsitoEsportaPercorso& esito);

}  // namespace cronovia
