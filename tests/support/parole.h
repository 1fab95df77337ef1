// SPDX-License-Identifier: GPL-3.0-or-later
// Scripts and transcripts: lines of words.
#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace cronovia::prova {

/// What was written with \n, \r, \t, \xNN (a character by its code), \" and \\.
inline QString Decodifica(const QString& parola) {
    using namespace Qt::StringLiterals;
    static const QRegularExpression segno(u"\\\\(x[0-9A-Fa-f]{2}|.)"_s);
    QString testo;
    qsizetype fine = 0;
    for (const auto& trovato : segno.globalMatch(parola)) {
        const QString che = trovato.captured(1);
        testo += parola.mid(fine, trovato.capturedStart() - fine);
        testo += che == u"n"_s     ? QString(u'\n')
                 : che == u"r"_s   ? QString(u'\r')
                 : che == u"t"_s   ? QString(u'\t')
                 : che.size() == 3 ? QString(QChar(che.mid(1).toUShort(nullptr, 16)))
                                   : che;
        fine = trovato.capturedEnd();
    }
    return testo + parola.mid(fine);
}

/// The words of a line; one in quotes may hold blanks and what `Decodifica` reads.
inline QStringList Parole(const QString& riga) {
    static const QRegularExpression parola(QStringLiteral("\"((?:[^\"\\\\]|\\\\.)*)\"|(\\S+)"));
    QStringList parole;
    for (const auto& trovata : parola.globalMatch(riga)) {
        parole += trovata.hasCaptured(2) ? trovata.captured(2) : Decodifica(trovata.captured(1));
    }
    return parole;
}

}  // namespace cronovia::prova
