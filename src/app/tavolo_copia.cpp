// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/tavolo_copia.h"

#include <algorithm>

#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

TavoloCopia::TavoloCopia(Sessione& sessione) : sessione_(&sessione) {
    ElencaMete();
    if (mete_.empty()) throw Failure(u"Non trovate mète memorizzate"_s);
}

void TavoloCopia::ElencaMete() {
    mete_ = ElencoMete(sessione_->Archivio(), QualiMete::ConTappe);
    rigaCopia_ = std::clamp(rigaCopia_, 1, std::max(1, static_cast<int>(mete_.size())));
}

std::optional<Tratto> TavoloCopia::Scelto() const {
    if (!assegnate_[0] || !assegnate_[1]) return std::nullopt;
    return Tratto{*assegnate_[0], *assegnate_[1]};
}

void TavoloCopia::ScegliMeta(int riga) {
    if (riga < 1 || riga > std::ssize(mete_)) return;
    const MetaInElenco scelta = mete_.at(static_cast<std::size_t>(riga - 1));
    try {
        RigheItinerario tappe = sessione_->ApriMeta(scelta.codice).tappe;
        if (tappe.empty()) throw Failure(u"La mèta «%1» non ha più tappe memorizzate."_s.arg(scelta.localita));
        tappe_ = std::move(tappe);
    } catch (const Failure&) {
        ElencaMete();
        throw;
    }
    rigaCopia_ = 1;
}

void TavoloCopia::Aggiorna() {
    if (!tappe_) ElencaMete();
}

void TavoloCopia::SelezionaRiga(int riga) {
    rigaCopia_ = std::clamp(riga, 1, static_cast<int>(tappe_ ? tappe_->size() : mete_.size()));
}

}  // namespace cronovia
