// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/annulla_import.h"

#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

void AnnullaImport(Archive& archive, const TracciaImport& traccia) {
    Transaction transaction(archive);
    if (archive.PresentMark() != traccia.stato) {
        throw Failure(u"L'importazione non si può più annullare: dopo di essa l'archivio è stato modificato."_s);
    }
    for (const TracciaImport::Righe& righe : traccia.aggiunte) {
        archive.DeleteRange(righe.tabella, righe.dopo, righe.ultima);
    }
    transaction.Commit();
}

OsservaAggiunte::OsservaAggiunte(Archive& archive) : archive_(archive) {
    std::vector<Table> tabelle = {Table::MeteVandro, Table::Itinerari, Table::GuidaCitta};
    tabelle.insert(tabelle.end(), TripTablesOnDemand().begin(), TripTablesOnDemand().end());
    for (const Table tabella : tabelle) {
        const std::int64_t ultima = archive.LastId(tabella);
        traccia_.aggiunte.push_back({tabella, ultima, ultima});
    }
}

TracciaImport OsservaAggiunte::Fine() {
    for (TracciaImport::Righe& righe : traccia_.aggiunte) righe.ultima = archive_.LastId(righe.tabella);
    traccia_.stato = archive_.PresentMark();
    return std::move(traccia_);
}

}  // namespace cronovia
