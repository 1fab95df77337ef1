// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/uscita.h"

#include <algorithm>

#include "calendar/testo.h"
#include "files/celle.h"

namespace cronovia {

namespace {

// Noncharacters of Unicode, which no text has: what stands out lies between them.
constexpr QChar kInizioRilievo = char16_t(0xFDD0);
constexpr QChar kInizioErrore = char16_t(0xFDD1);
constexpr QChar kFineRilievo = char16_t(0xFDD2);

void RigaTsv(QStringList testi, QTextStream& uscita) {
    for (QString& testo : testi) testo = InCella(testo);
    uscita << testi.join(u'\t') << '\n';
}

}  // namespace

QString Rilievo(const QString& testo) { return kInizioRilievo + testo + kFineRilievo; }
QString Errore(const QString& testo) { return kInizioErrore + testo + kFineRilievo; }

QString ConRilievi(QString testo, bool colori) {
    testo.replace(kInizioRilievo, colori ? QStringLiteral("\x1b[1m") : QString());
    testo.replace(kInizioErrore, colori ? QStringLiteral("\x1b[31m") : QString());
    return testo.replace(kFineRilievo, colori ? QStringLiteral("\x1b[0m") : QString());
}

std::vector<int> LarghezzeColonne(const TabellaTesti& tabella) {
    std::vector<int> larghezze(static_cast<std::size_t>(tabella.intestazioni.size()), 0);
    for (const QStringList& riga : tabella.righe) {
        for (std::size_t i = 0; i < larghezze.size(); ++i) {
            larghezze[i] = std::max(larghezze[i], static_cast<int>(riga.at(static_cast<qsizetype>(i)).size()));
        }
    }
    for (std::size_t i = 0; i < larghezze.size(); ++i) {
        const auto intestazione = static_cast<int>(tabella.intestazioni.at(static_cast<qsizetype>(i)).size());
        if (larghezze[i] > 0) larghezze[i] = std::max(larghezze[i], intestazione);
    }
    return larghezze;
}

QString RigaAllineata(const QStringList& testi, const std::vector<int>& larghezze, const QList<int>& aDestra) {
    QString riga;
    for (int i = 0; i < testi.size(); ++i) {
        const int larghezza = larghezze[static_cast<std::size_t>(i)];
        if (larghezza == 0) continue;
        if (!riga.isEmpty()) riga += QStringView(u"  ");
        const QString testo = Visibile(testi.at(i));
        riga += aDestra.contains(i) ? testo.rightJustified(larghezza) : testo.leftJustified(larghezza);
    }
    while (riga.endsWith(u' ')) riga.chop(1);
    return riga;
}

void ScriviAllineata(const TabellaTesti& tabella, QTextStream& uscita) {
    const std::vector<int> larghezze = LarghezzeColonne(tabella);
    uscita << Rilievo(RigaAllineata(tabella.intestazioni, larghezze, tabella.aDestra)) << '\n';
    for (const QStringList& riga : tabella.righe) uscita << RigaAllineata(riga, larghezze, tabella.aDestra) << '\n';
}

void ScriviTsv(const TabellaTesti& tabella, QTextStream& uscita) {
    RigaTsv(tabella.intestazioni, uscita);
    for (const QStringList& riga : tabella.righe) RigaTsv(riga, uscita);
}

}  // namespace cronovia
