// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/celle.h"

#include <QRegularExpression>

#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

QString InCella(const QString& testo) {
    static const QRegularExpression formula(u"^\\s*[=+@-]"_s);
    // Numbers with signs, and what the schedule itself writes.
    static const QRegularExpression innocua(u"^([+-]?\\d+([.,]\\d+)*|\\+ Riposo \\d+''( Notte)?)$"_s);
    const QString cella = Visibile(testo);
    const bool guardata = formula.match(cella).hasMatch() && !innocua.match(cella).hasMatch();
    return guardata ? u'\'' + cella : cella;
}

QString TabellaHtml(const QString& testo) {
    QString html = u"<table>\n"_s;
    for (const QString& riga : testo.split(u'\n', Qt::SkipEmptyParts)) {
        html += u"<tr>"_s;
        for (const QString& cella : riga.split(u'\t')) html += u"<td>"_s + cella.toHtmlEscaped() + u"</td>"_s;
        html += u"</tr>\n"_s;
    }
    return html + u"</table>\n"_s;
}

}  // namespace cronovia
