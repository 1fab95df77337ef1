// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/nomi_presenti.h"

namespace cronovia {

namespace {

// An index of its own costs as much as reading so many rows of a small table; a large one is worth it sooner.
constexpr std::int64_t kTroppeRighe = 200'000;

}  // namespace

NomiPresenti::NomiPresenti(Archive& archive, Table tabella, std::vector<int> campi)
    : archive_(archive), tabella_(tabella), campi_(std::move(campi)) {}

std::optional<std::int64_t> NomiPresenti::Trova(std::span<const NamePattern> prime, const QString& nome) {
    const auto trovata = Trova(prime, NamePattern::ForName(nome));
    return trovata ? trovata : Trova(prime, NamePattern::ForName(nome + u' '));
}

std::optional<std::int64_t> NomiPresenti::Trova(std::span<const NamePattern> prime, const NamePattern& ultimo) {
    if (indice_) {
        NamePattern modello = NamePattern::Exactly({});
        for (const NamePattern& primo : prime) {
            modello = modello.Then(primo).Then(NamePattern::Exactly(QString(NameIndex::kJoin)));
        }
        return indice_->Find(modello.Then(ultimo));
    }
    Search ricerca{tabella_, {}};
    for (std::size_t i = 0; i < prime.size(); ++i) ricerca.conditions.push_back({campi_[i], prime[i]});
    ricerca.conditions.push_back({campi_.back(), ultimo});
    const std::int64_t prima = archive_.RowsRead();
    const auto trovata = archive_.Find(ricerca);
    righeLette_ += archive_.RowsRead() - prima;
    if (righeLette_ > kTroppeRighe) indice_.emplace(archive_, tabella_, campi_);
    return trovata;
}

void NomiPresenti::Scritta(std::int64_t id, const std::vector<QString>& valori) {
    if (indice_) indice_->Add(id, valori);
}

}  // namespace cronovia
