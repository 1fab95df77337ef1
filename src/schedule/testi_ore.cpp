// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/testi_ore.h"

#include "calendar/durata.h"
#include "calendar/ora_fissa.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

const Tappa& TappaDi(const Cronovia& cronovia, int tappa) {
    return cronovia.tabella.righe[static_cast<std::size_t>(tappa)].tappa;
}

QString ConOre(const QString& nome, Centesimi tempo) { return nome + u' ' + TestoOreLunghe(tempo); }

// Of the hour as it was set: on a day of its own, or on any.
QString QualeOra(const EsitoOra& ora, const Vincoli& vincoli) {
    const auto scritta = [](const QString& senzaData, const QString& conData, const OraFissa& fissa) {
        return (fissa.Data() ? conData : senzaData) + u' ' + Testo(fissa);
    };
    switch (ora.genere) {
        case GenereOra::Partenza:
            return scritta(u"Traghetto delle"_s, u"Traghetto di"_s, vincoli.traghetto->Partenza());
        case GenereOra::NonPrima:
            return scritta(u"Non prima delle"_s, u"Non prima di"_s, *vincoli.arrivo->NonPrima());
        case GenereOra::NonDopo:
            break;
    }
    return scritta(u"Non dopo le"_s, u"Non dopo"_s, *vincoli.arrivo->NonDopo());
}

}  // namespace

QString TestoBreve(const EsitoOra& ora) {
    if (ora.ritardo > 0_cent && !ora.perso) return ConOre(u"ritardo"_s, ora.ritardo);
    if (ora.attesa > 0_cent) return ConOre(u"attesa"_s, ora.attesa);
    return ConOre(u"margine"_s, ora.margine.value_or(0_cent));
}

QString Testo(const EsitoOra& ora, const Cronovia& cronovia) {
    QString testo = QualeOra(ora, *TappaDi(cronovia, ora.tappa).vincoli.operator->());
    if (ora.perso) testo += ConOre(u" perso per"_s, ora.ritardo);
    if (ora.ritardo > 0_cent) testo += u", in ritardo da "_s + TappaDi(cronovia, ora.daTappa).localita;
    if (ora.margine && ora.attesa > 0_cent) testo += ConOre(u", margine"_s, *ora.margine);
    return testo;
}

QString TestoBreve(const EsitoScadenza& scadenza) {
    if (scadenza.margine >= 0_cent) return ConOre(u"margine"_s, scadenza.margine);
    return ConOre(u"ritardo"_s, 0_cent - scadenza.margine);
}

QString Testo(const EsitoScadenza& scadenza, const Cronovia& cronovia) {
    const QString ora = TestoOrologio(scadenza.entro.ora);
    const QString entro =
        u"A casa entro %1 %2 %3: "_s.arg(GiornoSettimana(scadenza.entro.data).toLower(), TestoData(scadenza.entro.data),
                                         ora.isEmpty() ? u"00:00"_s : ora);
    if (scadenza.margine >= 0_cent) return entro + TestoBreve(scadenza);
    return entro + TestoBreve(scadenza) + u", da "_s + TappaDi(cronovia, scadenza.daTappa).localita;
}

}  // namespace cronovia
