// SPDX-License-Identifier: GPL-3.0-or-later
// Export: trips with their stages, and the whole city guide, as an exchange file.
#pragma once

#include <QString>
#include <span>
#include <vector>

#include "interaction/progress.h"
#include "store/archive.h"
#include "trips/mete.h"

namespace cronovia {

/// What to export and whereto.
struct RichiestaExport {
    Archive& archive;
    QString path;
    std::vector<QString> codici;  ///< of the trips, in the file's order; none for all, in the order of their names
    bool sovrascrivi = false;     ///< an existing file may be replaced
    bool saltaMancanti = false;   ///< codes of trips that are no more are passed over, as long as one is left
};

/// What an export did.
struct EsitoExport {
    QString path;
    bool interrotta = false;  ///< the person stopped it: no file was written, all that follows is 0
    qint64 mete = 0;
    qint64 tappe = 0;
    qint64 voci = 0;                 ///< of the city guide
    qint64 caratteriSostituiti = 0;  ///< that the file cannot hold and that travel as another letter
};

/// Writes the file, whole or not at all. A `Failure` when the file exists and may not be replaced, when it cannot be
/// written, when a code is unknown, or when there is no trip. An archive is never replaced.
EsitoExport EsportaMete(const RichiestaExport& richiesta, Progress& progress);

/// The name that a file with these trips is proposed under: "CAPO NORD.iei", or "CAPO NORD e altre 2.iei". What a name
/// of a file cannot hold on every system is "-". "Mete.iei" without any trip.
QString NomeFileExport(std::span<const MetaInElenco> mete);

/// The text of the closing box.
QString TestoEsito(const EsitoExport& esito);

}  // namespace cronovia
