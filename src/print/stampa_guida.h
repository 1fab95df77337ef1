// SPDX-License-Identifier: GPL-3.0-or-later
// The city guide on paper: names of localities, five to a line, or the entries of each.
#pragma once

#include <QString>
#include <vector>

#include "guide/guida_citta.h"
#include "interaction/progress.h"
#include "print/foglio.h"
#include "print/pagina.h"

namespace cronovia {

/// What of the guide is printed.
struct OpzioniStampaGuida {
    bool tutte = false;      ///< all localities of the guide; else those that the trip passes
    bool dettaglio = false;  ///< with their entries
};

/// A locality that the guide knows, with its entries: at least one.
struct LocalitaStampata {
    QString nome;  ///< as the guide has it
    VociGuida voci;
};

/// What the printout is made from: a snapshot.
struct DatiStampaGuida {
    OpzioniStampaGuida opzioni;
    QString destinazione;                    ///< of the trip; empty without one
    std::vector<LocalitaStampata> localita;  ///< in the order in which they are printed
};

/// The localities of a trip's stored itinerary in travel order, one that is passed twice twice; or all localities in
/// alphabetical order, each once and with its own entries alone.
DatiStampaGuida PreparaStampaGuida(Archive& archive, const QString& codiceMeta, const QString& destinazione,
                                   const OpzioniStampaGuida& opzioni);

/// The pages; none without localities. Texts too wide for their column become smaller, down to the sheet's floor.
Stampato StampaGuida(const DatiStampaGuida& dati, const PieDiPagina& piede, Progress& progress);

/// What is said when there are no localities.
QString NienteDaStampare(const OpzioniStampaGuida& opzioni);

}  // namespace cronovia
