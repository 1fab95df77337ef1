// SPDX-License-Identifier: GPL-3.0-or-later
// confronta.
#include "calendar/testo.h"
#include "cli/griglia_testi.h"
#include "cli/json.h"
#include "cli/verbi.h"
#include "schedule/alternative.h"
#include "schedule/testi_giornata.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

void ScriviAlternativa(const Alternativa& a, ScrittoreJson& json) {
    const auto testo = [&](QStringView nome, const QString& valore) {
        json.Nome(nome);
        json.Testo(valore);
    };
    json.ApreOggetto();
    json.Nome(u"attuale");
    json.Logico(a.attuale);
    testo(u"fine", TestiAlternativa(a).at(3));
    json.Nome(u"giorni");
    json.Numero(a.giorni);
    json.Nome(u"giorni_voluti");
    json.Numero(a.voluti);
    testo(u"guida_massima", TestoOreBrevi(a.guidaMassima));
    if (a.ritardo) testo(u"ritardo", TestoOreBrevi(*a.ritardo));
    json.Nome(u"soste");
    json.Numero(static_cast<int>(a.soste));
    if (a.visite) {
        json.Nome(u"visite_percento");
        json.Numero(*a.visite);
    }
    json.ChiudeOggetto();
}

}  // namespace

void EseguiConfronta(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    Sessione sessione = apri();
    auto [aperta, guida, senza] = sessione.LeggiMeta(richiesta.argomenti.first());
    const auto alternative = Alternative(aperta.meta, aperta.orario, aperta.tappe, guida, *richiesta.avanzamento);
    if (!alternative) return;
    if (richiesta.formato == Formato::Json) {
        ScrittoreJson json(uscita);
        json.ApreArray();
        for (const Alternativa& alternativa : *alternative) ScriviAlternativa(alternativa, json);
        json.ChiudeArray();
        return;
    }
    TabellaTesti tabella{IntestazioniAlternative(), {}, {4, 5}};
    for (const Alternativa& alternativa : *alternative) tabella.righe.push_back(TestiAlternativa(alternativa));
    if (richiesta.formato == Formato::Tsv) return ScriviTsv(tabella, uscita);
    uscita << TitoloMeta(aperta.meta) << "\n\n";
    if (aperta.tappe.empty()) {
        uscita << SenzaTappe();
        return;
    }
    ScriviAllineata(tabella, uscita);
}

}  // namespace cronovia
