// SPDX-License-Identifier: GPL-3.0-or-later
#include "trips/prezzi.h"

#include "calendar/digitati.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

struct Forma {
    std::optional<int> PrezziViaggio::*valore;
    int decimali;
    int minimo;
    int massimo;
    const char16_t* nome;
    const char16_t* esempio;
};

constexpr std::array<Forma, kPrezziViaggio> kForme = {{
    {&PrezziViaggio::kmLitro, 2, 50, 99'99, u"il consumo in km con un litro (da 0,5 a 99,99)", u"9,5"},
    {&PrezziViaggio::carburante, 3, 0, 99'999, u"il prezzo di un litro in euro (fino a 99,999)", u"1,859"},
    {&PrezziViaggio::pedaggio, 3, 0, 9'999, u"il pedaggio di un km in euro (fino a 9,999)", u"0,078"},
    {&PrezziViaggio::notte, 2, 0, 9999'99, u"il prezzo di una notte in euro (fino a 9.999,99)", u"25,00"},
}};

}  // namespace

std::array<QString, kPrezziViaggio> TestiDeiPrezzi(const PrezziViaggio& prezzi) {
    std::array<QString, kPrezziViaggio> testi;
    for (std::size_t i = 0; i < kForme.size(); ++i) {
        const Forma& forma = kForme[i];
        const std::optional<int>& valore = prezzi.*forma.valore;
        if (valore) testi[i] = TestoDecimale(*valore, forma.decimali, forma.valore == &PrezziViaggio::notte ? 2 : 1);
    }
    return testi;
}

PrezziLetti LeggiPrezzi(std::span<const QString> testi) {
    PrezziLetti letti;
    for (std::size_t i = 0; i < kForme.size() && i < testi.size(); ++i) {
        if (testi[i].trimmed().isEmpty()) continue;
        const Forma& forma = kForme[i];
        const bool euro = forma.valore != &PrezziViaggio::kmLitro;
        const std::optional<int> valore = (euro ? &LeggiEuro : &LeggiDecimale)(testi[i], forma.decimali);
        if (valore && *valore >= forma.minimo && *valore <= forma.massimo) {
            letti.prezzi.*forma.valore = valore;
        } else {
            if (!letti.rifiutato) letti.rifiutato = i;
            ++letti.rifiutati;
        }
    }
    return letti;
}

QString MessaggioPrezzo(std::size_t quale, const QString& testo) {
    const Forma& forma = kForme.at(quale);
    return u"«%1» non va bene: indica %2, per esempio %3."_s.arg(testo.trimmed(), QString::fromUtf16(forma.nome),
                                                                 QString::fromUtf16(forma.esempio));
}

}  // namespace cronovia
