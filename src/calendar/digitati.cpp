// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/digitati.h"

#include <QStringList>
#include <algorithm>

#include "calendar/ora_fissa.h"
#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

bool TutteCifre(QStringView testo) { return !testo.isEmpty() && std::all_of(testo.begin(), testo.end(), Cifra); }

}  // namespace

std::optional<int> LeggiMinutiDigitati(const QString& testo) {
    QString ora = testo.trimmed().replace(u'.', u':');
    if (ora.size() <= 2 && TutteCifre(ora)) ora += u":00"_s;
    return LeggiMinuti(ora);
}

std::optional<NumeroGiorno> LeggiDataDigitata(const QString& testo) {
    QString data = testo.trimmed();
    if (data.size() == 8 && TutteCifre(data)) return LeggiDataScritta(data);
    const QStringList parti = data.replace(u'.', u'/').replace(u'-', u'/').split(u'/');
    if (parti.size() != 3 || !std::all_of(parti.begin(), parti.end(), TutteCifre)) return std::nullopt;
    const QString anno = parti[2].size() == 2 ? u"20"_s + parti[2] : parti[2];
    return LeggiDataScritta(parti[0].rightJustified(2, u'0') + parti[1].rightJustified(2, u'0') + anno);
}

std::optional<int> LeggiDecimale(const QString& testo, int decimali) {
    constexpr int kMassimoCifre = 9;
    QString numero = testo.trimmed();
    const qsizetype virgola = numero.indexOf(u',');
    const qsizetype punto = virgola >= 0 ? virgola : numero.indexOf(u'.');
    QString interi = punto < 0 ? numero : numero.first(punto);
    const QString cifre = punto < 0 ? QString() : numero.sliced(punto + 1);
    if (virgola >= 0 && interi.contains(u'.')) {  // a point before each three digits, and nowhere else
        const QStringList gruppi = interi.split(u'.');
        const auto intero = [](const QString& gruppo) { return gruppo.size() == 3; };
        if (!std::all_of(gruppi.begin() + 1, gruppi.end(), intero) || gruppi.first().isEmpty()) return std::nullopt;
        interi.remove(u'.');
    }
    if (!TutteCifre(interi) || cifre.size() > decimali || interi.size() + decimali > kMassimoCifre) return std::nullopt;
    if (punto >= 0 && !TutteCifre(cifre)) return std::nullopt;
    return ValoreNumerico(interi + cifre.leftJustified(decimali, u'0'));
}

std::optional<int> LeggiEuro(const QString& testo, int decimali) {
    constexpr QChar kEuro(u'\u20ac');
    QString somma = testo.trimmed();
    if (somma.endsWith(kEuro)) {
        somma.chop(1);
    } else if (somma.startsWith(kEuro)) {
        somma.remove(0, 1);
    }
    return LeggiDecimale(somma, decimali);
}

QString TestoDecimale(int numero, int decimali, int minimi) {
    int potenza = 1;
    for (int i = 0; i < decimali; ++i) potenza *= 10;
    QString cifre = Zero(numero % potenza, decimali);
    while (cifre.size() > minimi && cifre.endsWith(u'0')) cifre.chop(1);
    const QString interi = Raggruppa(numero / potenza);
    return cifre.isEmpty() ? interi : interi + u',' + cifre;
}

QString TestoEuro(int centesimi) { return TestoDecimale(centesimi, 2, 2) + u" €"_s; }

QString NonOra(const QString& testo) {
    return u"«%1» non è un'ora: scrivi ore e minuti, per esempio 22:00."_s.arg(testo.trimmed());
}

QString NonData(const QString& testo) {
    return u"«%1» non è una data: scrivi giorno, mese e anno, per esempio 28/06/2027."_s.arg(testo.trimmed());
}

}  // namespace cronovia
