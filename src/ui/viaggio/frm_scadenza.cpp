// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viaggio/frm_scadenza.h"

#include "calendar/digitati.h"
#include "ui/comuni/modulo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

enum Valore { kData, kOra, kPrimoPrezzo };

std::vector<GruppoModulo> GruppiDellaScadenza() {
    const auto prezzo = [](int quale, const QString& nome, const QString& scritta, const QString& esempio) {
        return std::vector{CampoModulo{kPrimoPrezzo + quale, nome, scritta, 8, 8, scritta, esempio}};
    };
    return {{u"A casa entro"_s,
             {{{kData, u"txtRientroData"_s, u"Il giorno"_s, 10, 10, u"Giorno entro cui bisogna essere a casa"_s,
                u"gg/mm/aaaa"_s},
               {kOra, u"txtRientroOra"_s, u"alle ore"_s, 5, 6, u"Ora entro cui bisogna essere a casa"_s, u"hh:mm"_s}}}},
            {u"Costi"_s,
             {prezzo(0, u"txtKmLitro"_s, u"Consumo: km con un litro"_s, u"es. 9,5"_s),
              prezzo(1, u"txtPrezzoCarburante"_s, u"Carburante: euro al litro"_s, u"es. 1,859"_s),
              prezzo(2, u"txtPedaggioKm"_s, u"Pedaggio: euro per km di autostrada"_s, u"es. 0,078"_s),
              prezzo(3, u"txtPrezzoNotti"_s, u"Notte: euro per ogni notte"_s, u"es. 25,00"_s)}}};
}

struct ScadenzaLetta {
    Meta meta;
    std::optional<std::pair<int, QString>> difetto = {};
};

ScadenzaLetta LeggiScadenza(Meta meta, const std::vector<QString>& testi) {
    const QString& data = testi[kData];
    const QString& ora = testi[kOra];
    const std::optional<NumeroGiorno> giorno = LeggiDataDigitata(data);
    const std::optional<int> minuti = LeggiMinutiDigitati(ora);
    const auto rifiuto = [&](int campo, const QString& messaggio) {
        return ScadenzaLetta{meta, std::pair(campo, messaggio)};
    };
    meta.scadenza.reset();
    if (!data.isEmpty() || !ora.isEmpty()) {
        if (data.isEmpty()) return rifiuto(kData, u"Indica anche il giorno entro cui bisogna essere a casa."_s);
        if (!giorno) return rifiuto(kData, NonData(data));
        if (ora.isEmpty()) return rifiuto(kOra, u"Indica anche l'ora entro cui bisogna essere a casa."_s);
        const auto fissa = minuti ? OraFissa::Da(*minuti, giorno) : std::nullopt;
        if (!fissa) return rifiuto(kOra, NonOra(ora));
        if (meta.dataInizio && *giorno < *meta.dataInizio) {
            return rifiuto(kData, u"Il rientro viene prima della partenza, il %1."_s.arg(TestoData(*meta.dataInizio)));
        }
        meta.scadenza = Scadenza::Da(fissa);
    }
    const PrezziLetti letti = LeggiPrezzi(std::span(testi).subspan(kPrimoPrezzo));
    if (letti.rifiutato) {
        const auto quale = static_cast<int>(*letti.rifiutato);
        return rifiuto(kPrimoPrezzo + quale, MessaggioPrezzo(*letti.rifiutato, testi.at(*letti.rifiutato + 2)));
    }
    meta.prezzi = letti.prezzi;
    return {meta};
}

}  // namespace

std::optional<Meta> ChiediScadenza(QWidget& finestra, const Meta& meta) {
    std::vector<QString> valori(kPrimoPrezzo);
    if (meta.scadenza) {
        valori[kData] = TestoData(*meta.scadenza->Ora().Data());
        valori[kOra] = TestoMinuti(meta.scadenza->Ora().Minuti());
    }
    for (const QString& testo : TestiDeiPrezzi(meta.prezzi)) valori.push_back(testo);
    const auto difetto = [&](const std::vector<QString>& testi) { return LeggiScadenza(meta, testi).difetto; };
    const auto testi = ChiediModulo(
        finestra, {u"A casa entro, e costi del viaggio"_s, u"Tutto è facoltativo: lascia vuoto ciò che non ti serve."_s,
                   GruppiDellaScadenza(), valori, difetto});
    return testi ? std::optional(LeggiScadenza(meta, *testi).meta) : std::nullopt;
}

}  // namespace cronovia
