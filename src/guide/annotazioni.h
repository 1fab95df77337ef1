// SPDX-License-Identifier: GPL-3.0-or-later
// The verbs that change the city guide, and how a change is taken back.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "guide/guida_citta.h"
#include "store/archive.h"

namespace cronovia {

/// What a person says of something in the guide.
struct CampiVoce {
    QString descrizione;
    QString tipo;  ///< description of its type
    int ore = 0;   ///< of the visit; with the minutes 0 when it has no time
    int minuti = 0;

    friend bool operator==(const CampiVoce&, const CampiVoce&) = default;
};

/// The fields of an entry.
CampiVoce CampiDellaVoce(const VoceGuida& voce);

/// Why the fields cannot become an entry, and the one that it is about.
struct DifettoVoce {
    guida::Field campo = guida::Descrizione;
    QString messaggio;
};

/// The first reason: without description or with one too wide for its field, without a known type, a visit without its
/// time.
std::optional<DifettoVoce> DifettoDellaVoce(const std::vector<TipoGuida>& tipi, const CampiVoce& campi);

/// The values of one entry before and after a change; nothing where there is none.
struct ModificaGuida {
    std::optional<Record> prima;
    std::optional<Record> dopo;
};

/// Puts the fields in the place of the entry that a row shows, under the locality of that row; adds them when the row
/// shows none, or one that is there no more. Of several entries alike in locality, type, description and time, the one
/// that was added first is changed. A `Failure` with the reason of `DifettoDellaVoce` when they cannot become an entry,
/// or when the name of the locality is too wide for its field.
ModificaGuida SalvaVoce(Archive& archive, const QString& localita, const std::optional<VoceGuida>& mostrata,
                        const std::vector<TipoGuida>& tipi, const CampiVoce& campi);

/// Deletes the entry of a matching locality that is shown, the first of several alike; nothing when it is there no
/// more.
std::optional<ModificaGuida> CancellaVoce(Archive& archive, const NamePattern& localita, const VoceGuida& mostrata);

/// Takes a change back and returns the change that this was, which can be taken back in its turn; nothing, and nothing
/// done, when the entry that the change left is no longer there as it was.
std::optional<ModificaGuida> Annulla(Archive& archive, const ModificaGuida& modifica);

}  // namespace cronovia
