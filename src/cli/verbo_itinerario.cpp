// SPDX-License-Identifier: GPL-3.0-or-later
// itinerario.
#include <utility>

#include "cli/griglia_testi.h"
#include "cli/json.h"
#include "cli/verbi.h"
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
        ScriviTsv(tabella, uscita);
    } else {
        ScrittoreJson json(uscita);
        json.ApreOggetto();
        json.Nome(u"giorni_minimi");
        json.Numero(aperta.riepilogo.giorniMinimi);
        json.Nome(u"righe");
        ScriviRighe(righe, json);
        json.Nome(u"tappe");
        ScriviRecord(Table::Itinerari, record, json);
        json.Nome(u"totali");
        ScriviTotali(totali, json);
        json.ChiudeOggetto();
    }
}

}  // namespace cronovia
