// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/testo.h"

#include <algorithm>
#include <limits>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr std::int64_t kMassimo = std::numeric_limits<int>::max();

void ScriviCifre(int valore, QChar* inizio, QChar* fine) {
    for (; fine != inizio; valore /= 10) *--fine = QChar(u'0' + valore % 10);
}

// The characters that turn the direction of what follows them, and the ends of lines and paragraphs.
bool Capovolge(char16_t c) { return (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069); }
bool VaACapo(char16_t c) { return (c >= u'\n' && c <= u'\r') || c == 0x85 || c == 0x2028 || c == 0x2029; }

QChar SegnoVisibile(QChar c) {
    if (!Invisibile(c)) return c;
    return c == u'\t' || VaACapo(c.unicode()) ? QChar(u' ') : QChar(QChar::ReplacementCharacter);
}

}  // namespace

bool Cifra(QChar c) { return c >= u'0' && c <= u'9'; }

bool HaCaratteriDiControllo(QStringView testo) {
    return std::any_of(testo.begin(), testo.end(), [](QChar c) { return c.category() == QChar::Other_Control; });
}

bool Invisibile(QChar c) {
    const char16_t codice = c.unicode();
    return codice < 0x20 || (codice >= 0x7F && codice < 0xA0) || Capovolge(codice) || VaACapo(codice);
}

QString Visibile(QString testo) {
    for (QChar& c : testo) c = SegnoVisibile(c);
    return testo;
}

QString VisibileARighe(QString testo) {
    testo.replace(u"\r\n"_s, u"\n"_s);
    for (QChar& c : testo) {
        if (c != u'\n') c = SegnoVisibile(c);
    }
    return testo;
}

QString Accorciato(const QString& testo, qsizetype massimo) {
    return testo.size() <= massimo ? testo : testo.left(massimo - 1) + u'…';
}

QString Zero(int valore, int lunghezza) {
    if (valore < 0) return RiempiPrima(QString::number(valore), lunghezza, u'0');
    QString cifre(lunghezza, Qt::Uninitialized);
    ScriviCifre(valore, cifre.begin(), cifre.end());
    return cifre;
}

QString ConNumeri(QStringView forma, std::initializer_list<int> numeri) {
    QString testo = forma.toString();
    QChar* inizio = testo.begin();
    for (const int numero : numeri) {
        inizio = std::find(inizio, testo.end(), u'0');
        QChar* fine = std::find_if(inizio, testo.end(), [](QChar c) { return c != u'0'; });
        if (numero < 0) {
            const QString cifre = Zero(numero, static_cast<int>(fine - inizio));
            std::copy(cifre.begin(), cifre.end(), inizio);
        } else {
            ScriviCifre(numero, inizio, fine);
        }
        inizio = fine;
    }
    return testo;
}

QString RiempiDopo(QStringView testo, int lunghezza, QChar riempimento) {
    return (testo.toString() + QString(lunghezza, riempimento)).left(lunghezza);
}

QString RiempiPrima(QStringView testo, int lunghezza, QChar riempimento) {
    QString pieno(lunghezza, riempimento);
    const QStringView fine = testo.last(std::min<qsizetype>(testo.size(), lunghezza));
    std::copy(fine.begin(), fine.end(), pieno.end() - fine.size());
    return pieno;
}

QString Maiuscolo(QStringView testo) {
    QString maiuscolo = testo.toString();
    for (QChar& c : maiuscolo) c = c.toUpper();
    return maiuscolo;
}

QString PrimoMaiuscolo(QStringView testo) {
    QString risultato = Maiuscolo(testo.trimmed());
    bool dentro = false;
    for (QChar& c : risultato) {
        if (dentro) c = c.toLower();
        dentro = c.isLetter() || c.isMark();
    }
    return risultato;
}

QString ComeModello(QStringView testo) {
    QString modello = testo.toString();
    for (QChar& c : modello) {
        if (QStringView(u"'\"=\\><").contains(c)) c = u'?';
    }
    return modello;
}

int ValoreNumerico(QStringView testo) {
    std::int64_t valore = 0;
    bool negativo = false;
    bool iniziato = false;
    for (const QChar c : testo) {
        if (c == u' ') continue;
        if (Cifra(c)) {
            valore = std::min(kMassimo, valore * 10 + (c.unicode() - u'0'));
        } else if (!iniziato && (c == u'-' || c == u'+')) {
            negativo = c == u'-';
        } else {
            break;
        }
        iniziato = true;
    }
    return static_cast<int>(negativo ? -valore : valore);
}

QString Raggruppa(std::int64_t numero) {
    QString cifre = QString::number(numero);
    const qsizetype inizio = numero < 0 ? 1 : 0;
    for (qsizetype indice = cifre.size() - 3; indice > inizio; indice -= 3) cifre.insert(indice, u'.');
    return cifre;
}

QString RaggruppaNonZero(std::int64_t numero) { return numero == 0 ? QString() : Raggruppa(numero); }

}  // namespace cronovia
