// SPDX-License-Identifier: GPL-3.0-or-later
// The data files of the earlier release join the archive.
#pragma once

#include <QDateTime>
#include <QString>
#include <vector>

#include "interaction/progress.h"
#include "store/archive.h"

namespace cronovia {

/// What to convert.
struct RichiestaConversione {
    Archive& archive;
    QString cartella;  ///< of the old files; their copies stay in a folder in it
    QDateTime adesso;  ///< names that folder
};

/// What a conversion did.
struct EsitoConversione {
    bool interrotta = false;  ///< the person stopped it: nothing was converted, all that follows is empty
    qint64 mete = 0;
    qint64 tappe = 0;
    qint64 voci = 0;          ///< of the city guide
    qint64 guasti = 0;        ///< records left out as they cannot be read
    qint64 cancellati = 0;    ///< trips left out as the earlier release had deleted them
    qint64 tappeSaltate = 0;  ///< stages left out as they name no locality in capital letters
    /// A field of a trip that could not be read and got its default.
    struct CampoSostituito {
        QString meta;   ///< its destination
        QString campo;  ///< in the words of people
    };
    std::vector<CampoSostituito> campiSostituiti;
    /// A stored trip in whose place one of the same number came, or one that is none of the old files but got stages
    /// from one of them.
    struct MetaSostituita {
        QString codice;
        QString prima;
        QString adesso;  ///< the destination that came, or whose stages it has now
    };
    std::vector<MetaSostituita> meteSostituite;
    qint64 vociSostituite = 0;  ///< stored entries of the guide in whose place others of the same name came
    QString copiaDatabase;      ///< name of the copy in the folder of the copies; when a trip or an entry was replaced
    /// A file that the person should look after, and why.
    struct FileLasciato {
        QString nome;
        QString perche;
    };
    std::vector<FileLasciato> lasciati;  ///< not converted, or not removed, or missing
    QString cartellaCopie;               ///< path of the folder with the copies of the old files
};

/// Trips, stages and guide entries are added, or change those stored under the same code, sequence, locality and
/// description; nothing else goes. Whole or not at all; before a stored trip or entry changes, the database is copied.
/// A field of a trip that cannot be read gets its default, a record that ends too early is passed over. The guide gets
/// its nine standard types. The files converted are removed at the very end, that of the trips last. A `Failure` when
/// there is no file of trips, or when that or the guide's is not what it should be.
EsitoConversione ConvertiVecchiFile(const RichiestaConversione& richiesta, Progress& progress);

/// The text of the closing box.
QString TestoEsito(const EsitoConversione& esito);

}  // namespace cronovia
