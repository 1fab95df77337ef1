// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/date.h"

#include <algorithm>
#include <cmath>

#include "calendar/testo.h"

namespace cronovia {

namespace {

int Floor(double valore) { return static_cast<int>(std::floor(valore)); }

// The number that so many digits make, when it is one within the limits.
std::optional<int> Parte(QStringView testo, int cifre, int minimo, int massimo) {
    if (testo.size() != cifre || !std::all_of(testo.begin(), testo.end(), Cifra)) return std::nullopt;
    const int numero = ValoreNumerico(testo);
    return numero >= minimo && numero <= massimo ? std::optional(numero) : std::nullopt;
}

}  // namespace

QString TestoGma(const Gma& gma) { return Zero(gma.giorno, 2) + Zero(gma.mese, 2) + Zero(gma.anno, 4); }

NumeroGiorno NumeroDelGiorno(const Gma& gma) {
    int numero = gma.giorno + Floor(30.57 * gma.mese) + Floor(365.25 * gma.anno - 395.25);
    if (gma.mese > 2) numero -= gma.anno % 4 == 0 ? 1 : 2;
    return NumeroGiorno(numero);
}

Gma GmaDelGiorno(NumeroGiorno giorno) {
    const int n = giorno.Numero();
    int anno = Floor(n / 365.26) + 1;  // 365.26 on purpose: at worst one year too low, mended below
    int resto = n - Floor(365.25 * anno - 395.25);
    const int correzione = anno % 4 == 0 ? 1 : 2;
    if (resto > 91 - correzione) resto += correzione;
    int mese = Floor(resto / 30.57);
    const int giornoDelMese = resto - Floor(30.57 * mese);
    if (mese > 12) {
        mese -= 12;
        anno += 1;
    }
    return {giornoDelMese, mese, anno};
}

QString DataMemorizzata(NumeroGiorno giorno) { return TestoGma(GmaDelGiorno(giorno)); }

QString TestoData(NumeroGiorno giorno) {
    const Gma gma = GmaDelGiorno(giorno);
    return ConNumeri(u"00/00/0000", {gma.giorno, gma.mese, gma.anno});
}

int GiorniMese(int anno, int mese) {
    switch (mese) {
        case 1:
        case 3:
        case 5:
        case 7:
        case 8:
        case 10:
        case 12:
            return 31;
        case 4:
        case 6:
        case 9:
        case 11:
            return 30;
        case 2:
            return (anno % 4 == 0 && anno % 100 != 0) || anno % 400 == 0 ? 29 : 28;
        default:
            return 28;
    }
}

QString GiornoSettimana(NumeroGiorno giorno) {
    const int indice = ((giorno.Numero() % 7) + 7) % 7;
    return QStringView(u"SabDomLunMarMerGioVen").mid(3 * indice, 3).toString();
}

std::optional<NumeroGiorno> LeggiData(QStringView data) {
    if (data.size() != 8) return std::nullopt;
    const PartiData parti = LeggiPartiData(data);
    if (!parti.giorno || *parti.giorno != ValoreNumerico(data.left(2))) return std::nullopt;
    return parti.Giorno();
}

std::optional<NumeroGiorno> PartiData::Giorno() const {
    if (!giorno || !mese || !anno) return std::nullopt;
    return NumeroDelGiorno({*giorno, *mese, *anno});
}

PartiData LeggiPartiData(QStringView data) {
    PartiData parti;
    parti.mese = Parte(data.mid(2, 2), 2, 1, 12);
    parti.anno = Parte(data.mid(4), 4, kPrimoGiorno.anno, kUltimoGiorno.anno);
    parti.giorno = Parte(data.left(2), 2, 0, 99);
    if (parti.giorno) {
        constexpr int kBisestile = 2000;
        const int ultimo = GiorniMese(parti.anno.value_or(kBisestile), parti.mese.value_or(1));
        parti.giorno = std::clamp(*parti.giorno, 1, ultimo);
    }
    return parti;
}

}  // namespace cronovia
