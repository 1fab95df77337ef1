// SPDX-License-Identifier: GPL-3.0-or-later
// Import: the trips of an exchange file, with their stages, and its city guide join the archive.
#pragma once

#include <QString>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "exchange/annulla_import.h"
#include "exchange/iei/lettore_iei.h"
#include "interaction/progress.h"
#include "store/archive.h"

class QIODevice;

namespace cronovia {

/// What to import.
struct RichiestaImport {
    Archive& archive;
    QString path;
    std::vector<QString> codici;  ///< of the trips to import, leading zeros left out or not; none for all of the file
    std::optional<StatoFile> stato = {};  ///< of the file when its trips were listed; another one is refused
};

/// What was added otherwise than it stood in the file.
struct Ritocchi {
    std::map<std::pair<Table, int>, qint64> accorciati;  ///< values cut to the width of their field, by its position
    qint64 dateCorrette = 0;                             ///< days outside their month, now its first or last one
    qint64 dateIlleggibili = 0;  ///< that are no date at all, or empty under their heading; stored as one blank
    qint64 sosteRifiutate = 0;   ///< that are no duration, negative ones among them; stored as one blank
    qint64 orariRifiutati = 0;   ///< hours that others set, prices and notes that cannot be; left out

    Ritocchi& operator+=(const Ritocchi& altri);
};

/// What an import did, and what it could not take as it stood.
struct EsitoImport {
    qint64 meteInserite = 0;
    QString ultimaMeta;  ///< the code that the last one of them got
    qint64 tappeInserite = 0;
    qint64 vociInserite = 0;  ///< city-guide entries
    qint64 meteScartate = 0;  ///< their destination was stored already; their stages are left out too
    qint64 vociScartate = 0;  ///< were stored already
    bool interrotta = false;  ///< the person stopped it: nothing was added, all else is 0

    Ritocchi ritocchi;
    qint64 codiciRipetuti = 0;    ///< trips with the code of one before them
    qint64 meteIncomplete = 0;    ///< trips without destination, or without a code of at most 20 characters
    qint64 tappeSenzaMeta = 0;    ///< stages of no trip of the file
    qint64 meteTroppoLunghe = 0;  ///< trips of more than 9,999 stages, or with one whose number is longer; left out
    ScartiLettura lettura;

    TracciaImport traccia;  ///< to take it back by
};

/// Adds what the archive has not yet, whole or not at all, after a copy of it was kept. A trip whose destination is
/// stored, by the rules of name matching, is left out with its stages; so is a guide entry whose locality and
/// description are stored, and one at whose locality no stage ends. Empty values and fields that the file lacks are
/// stored as one blank, values too wide for their field with the characters that fit. A date is put into its month, a
/// stop that is none is left out, and so is a trip whose stages cannot be numbered with four digits. Codes that are
/// taken, or that have not six digits, are replaced. A `Failure` when the file is no exchange file, when it changed
/// since its trips were listed, or when a code is not in it.
EsitoImport ImportaMete(const RichiestaImport& richiesta, Progress& progress);

/// The same from a device that can be read twice; without a state the path is only its name in messages.
EsitoImport ImportaMete(const RichiestaImport& richiesta, QIODevice& device, Progress& progress);

/// The text of the closing box.
QString TestoEsito(const EsitoImport& esito);

}  // namespace cronovia
