// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/pagina/scrittore_html.h"

#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

void ScrittoreHtml::Etichetta(const QString& nome, Attributi attributi) {
    html_ += u'<' + nome;
    for (const Attributo& attributo : attributi) {
        html_ += u' ';
        html_ += attributo.first;
        html_ += u"=\""_s + Visibile(attributo.second).toHtmlEscaped() + u'"';
    }
    html_ += u'>';
}

void ScrittoreHtml::Apre(const QString& nome, Attributi attributi) {
    Etichetta(nome, attributi);
    aperti_ += nome;
}

void ScrittoreHtml::Chiude() { html_ += u"</"_s + aperti_.takeLast() + u">\n"_s; }

void ScrittoreHtml::Elemento(const QString& nome, const QString& testo, Attributi attributi) {
    Apre(nome, attributi);
    Testo(testo);
    Chiude();
}

void ScrittoreHtml::Vuoto(const QString& nome, Attributi attributi) { Etichetta(nome, attributi); }

void ScrittoreHtml::Testo(const QString& testo) { html_ += Visibile(testo).toHtmlEscaped(); }

}  // namespace cronovia
