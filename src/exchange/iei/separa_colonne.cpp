// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/iei/separa_colonne.h"

#include <algorithm>
#include <array>
#include <optional>

namespace cronovia {

namespace {

constexpr std::array<char, 8> kSeparatori = {'\xFF', '\xFE', '\xFD', '\xFC', '\t', ',', ';', '!'};

std::optional<char> Separatore(QByteArrayView riga) {
    const auto* trovato =
        std::find_if(kSeparatori.begin(), kSeparatori.end(), [&](char c) { return riga.contains(c); });
    if (trovato == kSeparatori.end()) return std::nullopt;
    return *trovato;
}

bool DaTogliere(char c) {
    const auto valore = static_cast<unsigned char>(c);
    return c == '"' || (valore < 0x20 && c != '\t');
}

QByteArrayView SenzaBlank(QByteArrayView testo) {
    while (testo.startsWith(' ')) testo = testo.sliced(1);
    while (testo.endsWith(' ')) testo.chop(1);
    return testo;
}

int ContaValori(QByteArrayView resto, char separatore) {
    const auto separatori = static_cast<int>(std::count(resto.begin(), resto.end(), separatore));
    return resto.isEmpty() || resto.endsWith(separatore) ? separatori : separatori + 1;
}

}  // namespace

Colonne SeparaColonne(QByteArrayView riga) {
    Colonne colonne;
    const std::optional<char> separatore = Separatore(riga);
    colonne.riga = riga.toByteArray();
    colonne.riga.removeIf(DaTogliere);
    colonne.tolti = static_cast<int>(riga.size() - colonne.riga.size());

    QByteArrayView resto = colonne.riga;
    while (!resto.isEmpty() && colonne.valori.size() < Colonne::kMassimo) {
        const qsizetype fine = separatore ? resto.indexOf(*separatore) : -1;
        colonne.valori.push_back(SenzaBlank(fine < 0 ? resto : resto.first(fine)));
        resto = fine < 0 ? QByteArrayView() : resto.sliced(fine + 1);
    }
    if (separatore) colonne.inPiu = ContaValori(resto, *separatore);
    return colonne;
}

}  // namespace cronovia
