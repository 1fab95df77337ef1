#include "app/cronologia.h"

#include <utility>

namespace cronovia {

void Cronologia::Ricorda(const QString& nome, StatoItinerario prima) {
    fatti_.push_back({nome, std::move(prima)});
    annullati_.clear();
}

void Cronologia::Azzera() {
    fatti_.clear();
    annullati_.clear();
}

std::optional<QString> Cronologia::DaAnnullare() const {
    return fatti_.empty() ? std::nullopt : std::optional(fatti_.back().nome);
}

std::optional<QString> Cronologia::DaRipetere() const {
    return annullati_.empty() ? std::nullopt : std::optional(annullati_.back().nome);
}

std::optional<StatoItinerario> Cronologia::Annulla(StatoItinerario presente) {
    return Sposta(fatti_, annullati_, std::move(presente));
}

std::optional<StatoItinerario> Cronologia::Ripeti(StatoItinerario presente) {
    return Sposta(annullati_, fatti_, std::move(presente));
}

std::optional<StatoItinerario> Cronologia::Sposta(std::vector<Passo>& da, std::vector<Passo>& a,
                                                  StatoItinerario presente) {
    if (da.empty()) return std::nullopt;
    Passo passo = std::move(da.back());
    da.pop_back();
    a.push_back({passo.nome, std::move(presente)});
    return std::move(passo.stato);
}

}  // namespace cronovia
