// SPDX-License-Identifier: GPL-3.0-or-later
// parametri.
#include <QMap>

#include "calendar/testo.h"
#include "cli/json.h"
#include "cli/verbi.h"
#include "trips/dati_meta.h"
#include "trips/mete.h"
#include "trips/orario.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

void ScriviDati(const std::vector<DatoMeta>& dati, Formato formato, QTextStream& uscita) {
    if (formato == Formato::Json) {
        QMap<QString, QString> membri;
        for (const DatoMeta& dato : dati) membri[dato.nome] = dato.valore;
        ScrittoreJson json(uscita);
        return ScriviOggetto(membri, json);
    }
    TabellaTesti tabella{{u"Nome"_s, u"Valore"_s}, {}, {}};
    for (const DatoMeta& dato : dati) tabella.righe.push_back({dato.nome, dato.valore});
    formato == Formato::Tsv ? ScriviTsv(tabella, uscita) : ScriviAllineata(tabella, uscita);
}

Meta ConIDati(Meta meta, const std::vector<DatoNominato>& dati) {
    for (const DatoNominato& dato : dati) meta = ConDato(std::move(meta), {dato.nome, dato.valore});
    return meta;
}

// Hours that disagree are put in order, as they are in the window.
Meta ConOrariInOrdine(Meta meta, const Meta& prima, QTextStream& uscita) {
    if (meta.parametri == prima.parametri) return meta;
    const std::vector<DatoMeta> detti = DatiDellaMeta(meta);
    meta.parametri = InOrdine(meta.parametri);
    const std::vector<DatoMeta> corretti = DatiDellaMeta(meta);
    for (std::size_t i = 0; i < detti.size(); ++i) {
        if (detti[i].valore == corretti[i].valore) continue;
        uscita << u"%1 diventa %2, perché gli orari del giorno siano in ordine.\n"_s.arg(detti[i].nome,
                                                                                         corretti[i].valore);
    }
    return meta;
}

void CambiaDati(Sessione& sessione, const Richiesta& richiesta, const std::vector<DatoNominato>& dati,
                QTextStream& uscita) {
    Transaction transaction(sessione.Archivio());
    const MetaAperta aperta = sessione.ApriMeta(richiesta.argomenti.first());
    Meta meta = ConOrariInOrdine(ConIDati(aperta.memorizzata, dati), aperta.memorizzata, uscita);
    SalvaMeta(sessione.Archivio(), meta, {false, meta.codice});
    const int minimi = sessione.ApriMeta(meta.codice).riepilogo.giorniMinimi;
    transaction.Commit();
    uscita << u"Parametri di %1: cambiati.\n"_s.arg(meta.localita);
    if (meta.giorniAdeguamento > 0 && meta.giorniAdeguamento < minimi) {
        uscita << u"I giorni di sola guida sono %1: il viaggio ne dura almeno altrettanti.\n"_s.arg(minimi);
    }
}

}  // namespace

void EseguiParametri(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    const std::vector<DatoNominato> dati = DatiNominati(richiesta.argomenti, 1);
    Sessione sessione = apri();
    if (!dati.empty()) return CambiaDati(sessione, richiesta, dati, uscita);
    ScriviDati(DatiDellaMeta(sessione.ApriMeta(richiesta.argomenti.first()).memorizzata), richiesta.formato, uscita);
}

}  // namespace cronovia
