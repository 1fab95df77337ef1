// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/ora_fissa.h"

#include <algorithm>
#include <cmath>

#include "calendar/durata.h"
#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// "hhmm" and "hh:mm" have no blanks and no signs.
bool SoloCifre(QStringView testo) { return !testo.isEmpty() && std::all_of(testo.begin(), testo.end(), Cifra); }

}  // namespace

Centesimi operator-(Istante a, Istante b) {
    return kGiornoOrologio * static_cast<float>(a.data - b.data) + a.ora - b.ora;
}

Istante operator+(Istante a, Centesimi tempo) {
    a.ora += tempo;
    const int giorni = static_cast<int>(std::floor(a.ora.Valore() / kGiornoOrologio.Valore()));
    a.data += giorni;
    a.ora -= kGiornoOrologio * static_cast<float>(giorni);
    return a;
}

std::optional<OraFissa> OraFissa::Da(int minuti, std::optional<NumeroGiorno> data) {
    if (minuti < 0 || minuti >= kMinutiDelGiorno) return std::nullopt;
    if (data && (*data < NumeroDelGiorno(kPrimoGiorno) || *data > NumeroDelGiorno(kUltimoGiorno))) return std::nullopt;
    return OraFissa(minuti, data);
}

Centesimi OraFissa::Ora() const { return InCentesimi({0, 0, minuti_}, kGiornoOrologio); }

OraFissa OraFissa::SenzaData() const { return {minuti_, std::nullopt}; }

std::optional<int> LeggiMinuti(QStringView testo) {
    const qsizetype duePunti = testo.indexOf(u':');
    if (duePunti < 0 && testo.size() != 4) return std::nullopt;
    const QStringView ore = duePunti < 0 ? testo.first(2) : testo.first(duePunti);
    const QStringView minuti = testo.last(testo.size() - (duePunti < 0 ? 2 : duePunti + 1));
    if (!SoloCifre(ore) || ore.size() > 2 || !SoloCifre(minuti) || minuti.size() != 2) return std::nullopt;
    if (ValoreNumerico(minuti) >= 60) return std::nullopt;
    return ValoreNumerico(ore) * 60 + ValoreNumerico(minuti);
}

QString TestoMinutiMemorizzati(int minuti) { return Zero(minuti / 60, 2) + Zero(minuti % 60, 2); }

QString TestoMinuti(int minuti) {
    return QString::number(minuti / 60).rightJustified(2, u'0') + u':' + Zero(minuti % 60, 2);
}

QString TestoOreLunghe(Centesimi tempo) {
    const Durata durata = InDurata(tempo, kGiornoOrologio);
    return TestoMinuti((durata.giorni * 24 + durata.ore) * 60 + durata.minuti);
}

std::optional<NumeroGiorno> LeggiDataScritta(QStringView testo) {
    if (testo.size() == 8 && SoloCifre(testo)) return LeggiData(testo);
    if (testo.size() != 10 || testo[2] != u'/' || testo[5] != u'/') return std::nullopt;
    return LeggiDataScritta(testo.toString().remove(u'/'));
}

QString Testo(const OraFissa& ora) {
    QString orario = TestoMinuti(ora.Minuti());
    if (!ora.Data()) return orario;
    return GiornoSettimana(*ora.Data()).toLower() + u' ' + TestoData(*ora.Data()) + u' ' + orario;
}

}  // namespace cronovia
