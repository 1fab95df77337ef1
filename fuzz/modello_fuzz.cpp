// SPDX-License-Identifier: GPL-3.0-or-later
// Search patterns and texts made of anything, cut at the first zero. What must hold for each: a name finds itself, a
// pattern read backwards finds the text read backwards, and what is found lies in the stretches that are looked
// through.
#include <QList>
#include <algorithm>
#include <array>

#include "archivio_di_prova.h"
#include "store/name_pattern.h"

namespace {

using namespace cronovia;

QString AllIndietro(const QString& testo) {
    const QList<uint> lettere = testo.toUcs4();
    QString indietro;
    for (auto lettera = lettere.rbegin(); lettera != lettere.rend(); ++lettera) {
        indietro += QStringView(QChar::fromUcs4(*lettera));  // a text of its own would lose a mark of byte order
    }
    return indietro;
}

// The order of the stretches: ASCII letters of both cases are the same, all else goes by its bytes.
QByteArray Chiave(const QString& testo) {
    QByteArray chiave = testo.toUtf8();
    std::transform(chiave.begin(), chiave.end(), chiave.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 'a' - 'A') : c; });
    return chiave;
}

bool NeiTratti(const NamePattern& modello, const QString& testo) {
    const auto tratti = modello.Ranges();
    return tratti.empty() || std::any_of(tratti.begin(), tratti.end(), [&](const NamePattern::Range& tratto) {
               if (tratto.single) return Chiave(testo) == Chiave(tratto.from);
               return Chiave(testo) >= Chiave(tratto.from) && Chiave(testo) < Chiave(tratto.to);
           });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t quanti) {
    const QByteArray tutto(reinterpret_cast<const char*>(dati), static_cast<qsizetype>(quanti));
    const qsizetype taglio = tutto.indexOf('\0');
    const QString scritto = QString::fromUtf8(tutto.left(taglio));
    const QString testo = QString::fromUtf8(taglio < 0 ? QByteArray() : tutto.mid(taglio + 1));
    const std::array<NamePattern, 3> modelli{NamePattern(scritto), NamePattern::ForName(scritto),
                                             NamePattern(scritto).Then(NamePattern::Exactly(testo))};
    Pretendi(NamePattern::Exactly(testo).Matches(testo) && modelli[1].Matches(scritto));
    for (const NamePattern& modello : modelli) {
        for (const QString& provato : {scritto, testo, scritto + testo}) {
            const bool trovato = modello.Matches(provato);
            Pretendi(trovato == modello.Reversed().Matches(AllIndietro(provato)));
            Pretendi(!trovato || NeiTratti(modello, provato));
        }
    }
    return 0;
}
