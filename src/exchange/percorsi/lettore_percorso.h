// SPDX-License-Identifier: GPL-3.0-or-later
// Route planners' exports: tables of driving instructions as tab-separated text, in two layouts, told by their headers.
#pragma once

#include <memory>

#include "exchange/percorsi/campi_percorso.h"
#include "exchange/percorsi/tappa_in_corso.h"

namespace cronovia {

/// Takes the lines behind the header one after the other and yields stages.
class LettorePercorso {
  public:
    LettorePercorso() = default;
    LettorePercorso(const LettorePercorso&) = delete;
    LettorePercorso& operator=(const LettorePercorso&) = delete;
    virtual ~LettorePercorso() = default;

    /// Takes the next line; its stage, when it ends one, goes to the destination.
    virtual void Leggi(const CampiPercorso& colonne) = 0;
};

/// The reader of a list of instructions with clock times; nothing when the line is not the header of one.
std::unique_ptr<LettorePercorso> LettoreIstruzioni(const CampiPercorso& intestazione, DestinazioneTappe destinazione);

/// The reader of a list of localities with directions; nothing when the line is not the header of one.
std::unique_ptr<LettorePercorso> LettoreLocalita(const CampiPercorso& intestazione, DestinazioneTappe destinazione);

}  // namespace cronovia
