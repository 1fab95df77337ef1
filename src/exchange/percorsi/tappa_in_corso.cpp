// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/percorsi/tappa_in_corso.h"

#include <algorithm>
#include <utility>

#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString NomeLocalita(QStringView testo) {
    QStringView nome = testo.trimmed();
    constexpr QStringView kVicinoA = u"vicino a";
    const bool vicino = nome.startsWith(kVicinoA, Qt::CaseInsensitive);
    if (vicino && (nome.size() == kVicinoA.size() || nome[kVicinoA.size()] == u' ')) nome = nome.mid(kVicinoA.size());
    return Maiuscolo(nome.trimmed().left(TappaInCorso::kMassimoNome).trimmed());
}

}  // namespace

void TappaInCorso::Percorre(const QString& strada, int km) {
    std::vector<StradaLetta>& strade = tappa_.strade;
    const QString nome = strada.left(kMassimoNome).trimmed();
    const bool nota = std::any_of(strade.begin(), strade.end(), [&](const StradaLetta& s) { return s.nome == nome; });
    if (!nota && strade.size() < kMassimoStrade) strade.push_back({nome, km});
}

void TappaInCorso::Avanza(int km) {
    if (km < kmRiga_) kmBase_ += kmRiga_;
    kmRiga_ = km;
}

bool TappaInCorso::Nuova(QStringView localita) const {
    const QString nome = NomeLocalita(localita);
    return !nome.isEmpty() && nome != tappa_.localita;
}

// The place stays in the stage under way: it is where that one begins.
void TappaInCorso::Arriva(QStringView localita) {
    tappa_.localita = NomeLocalita(localita);
    tappa_.km = static_cast<int>(std::clamp<std::int64_t>(KmDallUltimaTappa(), 0, kMassimoKm));
    destinazione_(tappa_);
    tappa_ = {tappa_.localita, {}, false, 0};
    kmUltimaTappa_ = kmBase_ + kmRiga_;
    alVia_ = false;
}

}  // namespace cronovia
