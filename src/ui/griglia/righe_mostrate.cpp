// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/griglia/righe_mostrate.h"

#include <algorithm>

namespace cronovia {

RigheMostrate::RigheMostrate(const std::vector<Giornata>& giornate, const RigheMostrate& prima) {
    giorni_.resize(giornate.size());
    int riga = 0;
    for (std::size_t i = 0; i < giornate.size(); ++i) {
        giorni_[i].prima = riga;
        giorni_[i].righe = static_cast<int>(giornate[i].righe.size());
        giorni_[i].chiusa = i < prima.giorni_.size() && prima.giorni_[i].chiusa;
        riga += giorni_[i].righe;
    }
    Numera();
}

void RigheMostrate::Numera() {
    numero_ = 0;
    for (Giorno& giorno : giorni_) {
        giorno.linea = numero_;
        numero_ += 1 + (giorno.chiusa ? 0 : giorno.righe);
    }
}

int RigheMostrate::GiornataDi(int griglia) const {
    const auto dopo = std::upper_bound(giorni_.begin(), giorni_.end(), griglia,
                                       [](int riga, const Giorno& giorno) { return riga < giorno.linea; });
    return static_cast<int>(dopo - giorni_.begin()) - 1;
}

std::optional<int> RigheMostrate::Linea(int griglia) const {
    const int giornata = GiornataDi(griglia);
    return DoveLinea(giornata) == griglia ? std::optional(giornata) : std::nullopt;
}

std::optional<int> RigheMostrate::Riga(int griglia) const {
    const Giorno& giorno = Di(GiornataDi(griglia));
    return griglia == giorno.linea ? std::nullopt : std::optional(giorno.prima + griglia - giorno.linea - 1);
}

int RigheMostrate::DoveRiga(int riga) const {
    const auto dopo = std::upper_bound(giorni_.begin(), giorni_.end(), riga,
                                       [](int cercata, const Giorno& giorno) { return cercata < giorno.prima; });
    const Giorno& giorno = *(dopo - 1);
    return giorno.chiusa ? giorno.linea : giorno.linea + 1 + riga - giorno.prima;
}

void RigheMostrate::Chiudi(int giornata, bool chiusa) {
    giorni_[static_cast<std::size_t>(giornata)].chiusa = chiusa;
    Numera();
}

}  // namespace cronovia
