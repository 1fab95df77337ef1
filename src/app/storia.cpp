// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/storia.h"

#include <algorithm>
#include <utility>

namespace cronovia {

namespace {

void Togli(std::vector<Passo>& passi, Ambito ambito) {
    std::erase_if(passi, [ambito](const Passo& passo) { return passo.ambito == ambito; });
}

}  // namespace

bool Storia::Valido(const Passo& passo) const { return !passo.archivio || passo.archivio->own == proprie_(); }

const Passo* Storia::Prossimo(const std::vector<Passo>& passi, Ambito ambito) const {
    const auto ultimo =
        std::find_if(passi.rbegin(), passi.rend(), [&](const Passo& p) { return p.ambito == ambito && Valido(p); });
    return ultimo == passi.rend() ? nullptr : &*ultimo;
}

// The step is in neither list while it works, which may add and forget others.
void Storia::Sposta(std::vector<Passo>& da, std::vector<Passo>& a, Ambito ambito) const {
    const Passo* prossimo = Prossimo(da, ambito);
    if (prossimo == nullptr) return;
    const Passo passo = *prossimo;
    da.erase(da.begin() + (prossimo - da.data()));
    try {
        if (std::optional<Passo> inverso = passo.disfa(passo)) a.push_back(std::move(*inverso));
    } catch (const PassoPerduto&) {
        throw;
    } catch (...) {
        da.push_back(passo);
        throw;
    }
}

void Storia::Ricorda(Passo passo) {
    Togli(annullati_, passo.ambito);
    fatti_.push_back(std::move(passo));
}

void Storia::Dimentica(Ambito ambito) {
    Togli(fatti_, ambito);
    Togli(annullati_, ambito);
}

void Storia::ArchivioSostituito() {
    std::erase_if(fatti_, [](const Passo& passo) { return passo.archivio.has_value(); });
}

const Passo* Storia::DaAnnullare(Ambito ambito) const { return Prossimo(fatti_, ambito); }
const Passo* Storia::DaRipetere(Ambito ambito) const { return Prossimo(annullati_, ambito); }

void Storia::Annulla(Ambito ambito) { Sposta(fatti_, annullati_, ambito); }
void Storia::Ripeti(Ambito ambito) { Sposta(annullati_, fatti_, ambito); }

void Storia::SegueArchivio(const Archive::Mark& prima, const Archive::Mark& adesso) {
    for (Passo& passo : fatti_) {
        if (passo.archivio == prima) passo.archivio = adesso;
    }
}

}  // namespace cronovia
