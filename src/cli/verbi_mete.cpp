// SPDX-License-Identifier: GPL-3.0-or-later
// elenca, nuova.
#include <QDateTime>
#include <QRegularExpression>
#include <algorithm>

#include "calendar/date.h"
#include "calendar/durata.h"
#include "calendar/testo.h"
#include "cli/json.h"
#include "cli/record_testi.h"
#include "cli/verbi.h"
#include "trips/mete.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

TabellaTesti TabellaDelleMete(std::vector<MetaInElenco> mete) {
    std::ranges::stable_sort(mete, {}, &MetaInElenco::codice);
    TabellaTesti tabella{{u"Codice"_s, u"Mèta"_s, u"Nazione"_s, u"Partenza"_s, u"Giorni"_s}, {}, {4}};
    for (const MetaInElenco& meta : mete) {
        const QString data =
            meta.dataInizio ? GiornoSettimana(*meta.dataInizio) + u' ' + TestoData(*meta.dataInizio) : QString();
        const QString ora = TestoOrario(meta.oraInizio);
        tabella.righe.push_back({meta.codice, meta.localita, meta.nazione,
                                 data + u' ' + ora.left(2) + u':' + ora.right(2),
                                 RaggruppaNonZero(meta.giorniAdeguamento)});
    }
    return tabella;
}

QDateTime LeggiInizio(const QString& testo) {
    static const QRegularExpression forma(u"^(\\d{1,2})/(\\d{1,2})/(\\d{4}) +(\\d{1,2}):(\\d{2})$"_s);
    const QRegularExpressionMatch parti = forma.match(testo.trimmed());
    const auto numero = [&](int gruppo) { return parti.captured(gruppo).toInt(); };
    const QTime ora(numero(4), numero(5));
    const bool data = LeggiData(TestoGma({numero(1), numero(2), numero(3)})).has_value();
    if (!data && ora.isValid() && QDate::isValid(numero(3), numero(2), numero(1))) throw WrongUsage(MessaggioData());
    if (!parti.hasMatch() || !data || !ora.isValid()) {
        throw WrongUsage(u"L'inizio «%1» non è una data con ora: scrivila come \"05/06/2027 08:30\"."_s.arg(testo));
    }
    return {QDate(numero(3), numero(2), numero(1)), ora};
}

}  // namespace

void EseguiElenca(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    Sessione sessione = apri();
    if (richiesta.formato == Formato::Testo) {
        const std::vector<MetaInElenco> mete = ElencoMete(sessione.Archivio());
        if (mete.empty()) {
            uscita << u"Nessuna mèta nel database!\n"_s;
        } else {
            ScriviAllineata(TabellaDelleMete(mete), uscita);
        }
        return;
    }
    const std::vector<Record> record = sessione.Archivio().Select({Table::MeteVandro, {}}, {mete::CodiceMeta});
    if (richiesta.formato == Formato::Json) {
        ScrittoreJson json(uscita);
        ScriviRecord(Table::MeteVandro, record, json);
    } else {
        ScriviTsv(TestiDeiRecord(Table::MeteVandro, record), uscita);
    }
}

void EseguiNuova(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    const QDateTime inizio = richiesta.opzioni.contains(u"inizio"_s) ? LeggiInizio(richiesta.opzioni.value(u"inizio"_s))
                                                                     : InizioProposto(QDateTime::currentDateTime());
    RifiutaCaratteriDiControllo(u"La località"_s, richiesta.argomenti.at(0));
    RifiutaCaratteriDiControllo(u"La nazione"_s, richiesta.argomenti.at(1));
    uscita << apri().NuovaMeta(richiesta.argomenti.at(0), richiesta.argomenti.at(1), inizio) << '\n';
}

}  // namespace cronovia
