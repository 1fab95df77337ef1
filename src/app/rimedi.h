// SPDX-License-Identifier: GPL-3.0-or-later
// What brings an archive back, with the questions before it: from the window, and when that cannot open at all.
#pragma once

#include <QDateTime>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "app/copie.h"
#include "interaction/failure.h"
#include "interaction/interaction.h"

namespace cronovia {

/// Path of the copy to be put back; nothing when the person does not want any.
using ScegliCopia = std::function<std::optional<QString>(const std::vector<CopiaInElenco>&)>;

/// For whom an archive is mended; what is referred to must outlive the call.
struct RichiestaRimedio {
    const QString& cartella;  ///< the data folder
    Interaction& interazione;
    const ScegliCopia& scegliCopia;  ///< called with one copy at least
    QDateTime adesso;                ///< names the file that the damaged archive is laid aside in
};

/// Puts a copy that the person chooses into the archive's place, after telling what would change; repairs it, after
/// telling what is saved. What to tell at the end; nothing when it was not done, which the person knows. A `Failure`
/// when it could not be done.
std::optional<QString> RipristinaChiedendo(const RichiestaRimedio& richiesta);
std::optional<QString> RiparaChiedendo(const RichiestaRimedio& richiesta);

/// What became of an offer to mend an archive.
enum class Rimedio {
    Nessuno,    ///< there is none to offer
    Rifiutato,  ///< the person knows what was wrong, and wanted none
    Fatto,      ///< and the archive can be opened
};

/// Tells why an archive cannot be opened, and offers what may help.
Rimedio OffreRimedio(const RichiestaRimedio& richiesta, const Failure& guasto);

}  // namespace cronovia
