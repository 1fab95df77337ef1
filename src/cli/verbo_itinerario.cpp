// SPDX-License-Identifier: GPL-3.0-or-later
// itinerario.
#include <QMap>
#include <algorithm>
#include <utility>

#include "cli/griglia_testi.h"
#include "cli/json.h"
#include "cli/verbi.h"
#include "itinerary/celle_tappa.h"
#include "itinerary/itinerari.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The trip and its rows as they are stored, from one moment of the archive.
std::pair<MetaAperta, std::vector<Record>> Leggi(Sessione& sessione, const QString& codice) {
    const ReadSnapshot momento(sessione.Archivio());
    MetaAperta aperta = sessione.ApriMeta(codice);
    std::vector<Record> record = RecordDellItinerario(sessione.Archivio(), aperta.meta.codice);
    return {std::move(aperta), std::move(record)};
}

std::vector<RigaGriglia> RigheDellItinerario(const MetaAperta& aperta) {
    std::vector<RigaGriglia> righe;
    for (std::size_t i = 0; i < aperta.tappe.size(); ++i) {
        righe.push_back(TestiDellaTappa(static_cast<int>(i) + 1, aperta.tappe[i], aperta.riepilogo.tappe[i]));
    }
    return righe;
}

// For other programs kilometres are numbers; which of them are a guess, and what others set for the stages, stands
// behind the grid's columns, in as many as are needed.
TabellaTesti ConAggiunte(TabellaTesti tabella, std::span<const Tappa> tappe) {
    std::vector<CelleTappa> celle;
    celle.reserve(tappe.size());
    for (const Tappa& tappa : tappe) {
        if (tappa.kmStimati) tabella.righe[celle.size()][static_cast<int>(Colonna::Km)] = QString::number(tappa.km);
        celle.push_back(CelleDellaTappa(tappa));
    }
    for (int cella = cella::KmStimati; cella < kCelle; ++cella) {
        if (std::none_of(celle.begin(), celle.end(), [&](const CelleTappa& c) { return c.contains(cella); })) continue;
        tabella.intestazioni += NomiDellaCella(cella).first();
        for (std::size_t i = 0; i < celle.size(); ++i) tabella.righe[i] += celle[i].value(cella);
    }
    return tabella;
}

// The stored rows as objects; a stage's has among its members what others set for it, and kilometres that are a guess.
void ScriviTappe(const std::vector<Record>& record, std::span<const Tappa> tappe, ScrittoreJson& json) {
    json.ApreArray();
    auto tappa = tappe.begin();
    for (const Record& riga : record) {
        QMap<QString, QString> membri;
        const std::vector<FieldDefinition>& campi = Definition(Table::Itinerari).fields;
        for (std::size_t i = 0; i < campi.size(); ++i) membri[campi[i].name] = riga.values[i].trimmed();
        if (!riga[itinerari::Localita].trimmed().isEmpty() && tappa != tappe.end()) {
            if (tappa->kmStimati) membri[NomiDellaCella(cella::KmStimati).first()] = QString::number(tappa->km);
            const std::vector<QString> valori = ValoriDeiVincoli((tappa++)->vincoli.Valore());
            for (std::size_t i = kPrimoDato; i < valori.size(); ++i) {
                if (!valori[i].isEmpty()) membri[Definition(Table::Vincoli).fields[i].name] = valori[i];
            }
        }
        ScriviOggetto(membri, json);
    }
    json.ChiudeArray();
}

void ScriviTesto(const MetaAperta& aperta, TabellaTesti tabella, const TestiTotali& totali, QTextStream& uscita) {
    uscita << TitoloMeta(aperta.meta) << "\n\n";
    if (tabella.righe.empty()) {
        uscita << SenzaTappe();
        return;
    }
    for (const Colonna colonna : {Colonna::Numero, Colonna::Km, Colonna::KmProgressivi, Colonna::Sosta}) {
        tabella.aDestra += static_cast<int>(colonna);
    }
    ScriviAllineata(tabella, uscita);
    uscita << '\n' << RigaTotali(totali) << '\n';
    uscita << u"Giorni di sola guida: %1.\n"_s.arg(aperta.riepilogo.giorniMinimi);
}

}  // namespace

void EseguiItinerario(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    Sessione sessione = apri();
    const auto [aperta, record] = Leggi(sessione, richiesta.argomenti.first());
    const std::vector<RigaGriglia> righe = RigheDellItinerario(aperta);
    const TestiTotali totali = Testi(aperta.riepilogo.totali, aperta.riepilogo.guidaGiorno);
    const TabellaTesti tabella = TestiDellaGriglia(Intestazioni(Vista::Itinerario), righe);
    if (richiesta.formato == Formato::Testo) {
        ScriviTesto(aperta, tabella, totali, uscita);
    } else if (richiesta.formato == Formato::Tsv) {
        ScriviTsv(ConAggiunte(tabella, aperta.tappe), uscita);
    } else {
        ScrittoreJson json(uscita);
        json.ApreOggetto();
        json.Nome(u"giorni_minimi");
        json.Numero(aperta.riepilogo.giorniMinimi);
        json.Nome(u"righe");
        ScriviRighe(righe, json);
        json.Nome(u"tappe");
        ScriviTappe(record, aperta.tappe, json);
        json.Nome(u"totali");
        ScriviTotali(totali, json);
        json.ChiudeOggetto();
    }
}

}  // namespace cronovia
