#include "calendar/testo.h"

#include <algorithm>
#include <limits>

namespace cronovia {

namespace {

constexpr std::int64_t kMassimo = std::numeric_limits<int>::max();

}  // namespace

bool Cifra(QChar c) { return c >= u'0' && c <= u'9'; }

QString Zero(int valore, int lunghezza) {
    if (valore < 0) return AntStr(QString::number(valore), lunghezza, u'0');
    QString cifre(lunghezza, u'0');
    QChar* cifra = cifre.data() + lunghezza;
    for (; valore > 0 && cifra != cifre.data(); valore /= 10) *--cifra = QChar(u'0' + valore % 10);
    return cifre;
}

QString AggStr(QStringView testo, int lunghezza, QChar riempimento) {
    return (testo.toString() + QString(lunghezza, riempimento)).left(lunghezza);
}

QString AntStr(QStringView testo, int lunghezza, QChar riempimento) {
    return (QString(lunghezza, riempimento) + testo.toString()).right(lunghezza);
}

QString PrimoMaiuscolo(QStringView testo) {
    const QString maiuscolo = testo.trimmed().toString().toUpper();
    QString risultato = maiuscolo;
    for (qsizetype i = 1; i < maiuscolo.size(); ++i) {
        const QChar precedente = maiuscolo.at(i - 1);
        if (precedente.isLetter() || precedente.isMark()) risultato[i] = maiuscolo.at(i).toLower();
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
    for (qsizetype posto = cifre.size() - 3; posto > inizio; posto -= 3) cifre.insert(posto, u'.');
    return cifre;
}

QString RaggruppaNonZero(std::int64_t numero) { return numero == 0 ? QString() : Raggruppa(numero); }

}  // namespace cronovia
