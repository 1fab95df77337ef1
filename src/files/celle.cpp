// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/celle.h"

#include <QRegularExpression>
#include <utility>

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

bool SpezzaCelle::Aggiungi(QStringView riga) {
    if (dentro_) cella_ += u' ';
    for (qsizetype i = 0; i < riga.size(); ++i) {
        const QChar c = riga[i];
        const bool apice = virgolette_ && c == u'"';
        if (apice && dentro_ && i + 1 < riga.size() && riga[i + 1] == u'"') {
            cella_ += riga[++i];
        } else if (apice && (dentro_ || cella_.trimmed().isEmpty())) {
            dentro_ = !dentro_;
        } else if (c == separatore_ && !dentro_) {
            Chiudi();
        } else {
            cella_ += c;
        }
    }
    if (!dentro_) Chiudi();
    return !dentro_;
}

QStringList SpezzaCelle::Prendi() { return std::exchange(celle_, {}); }

void SpezzaCelle::Chiudi() { celle_ += std::exchange(cella_, {}).trimmed(); }

}  // namespace cronovia
