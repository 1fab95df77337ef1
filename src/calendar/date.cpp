#include "calendar/date.h"

#include <algorithm>
#include <cmath>

#include "calendar/testo.h"

namespace cronovia {

namespace {

int Floor(double valore) { return static_cast<int>(std::floor(valore)); }

}  // namespace

Gma LeggiGma(QStringView data) {
    return {ValoreNumerico(data.mid(0, 2)), ValoreNumerico(data.mid(2, 2)), ValoreNumerico(data.mid(4))};
}

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
    return Zero(gma.giorno, 2) + u'/' + Zero(gma.mese, 2) + u'/' + Zero(gma.anno, 4);
}

QString TestoGiornoMese(NumeroGiorno giorno) { return TestoData(giorno).left(5); }

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

QString GiornoSettimana(QStringView data) {
    if (data.size() != 8) return {};
    return GiornoSettimana(NumeroDelGiorno(LeggiGma(data)));
}

QString GiornoSettimana(NumeroGiorno giorno) {
    const int indice = ((giorno.Numero() % 7) + 7) % 7;
    return QStringView(u"SabDomLunMarMerGioVen").mid(3 * indice, 3).toString();
}

std::optional<NumeroGiorno> LeggiData(QStringView data) {
    const bool soloCifre = std::all_of(data.begin(), data.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (data.size() != 8 || !soloCifre) return std::nullopt;
    const Gma gma = LeggiGma(data);
    if (gma.anno < 1901 || gma.anno > 2099 || gma.mese < 1 || gma.mese > 12) return std::nullopt;
    if (gma.giorno < 1 || gma.giorno > GiorniMese(gma.anno, gma.mese)) return std::nullopt;
    return NumeroDelGiorno(gma);
}

}  // namespace cronovia
