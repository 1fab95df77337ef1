// SPDX-License-Identifier: GPL-3.0-or-later
// luoghi.
#include <algorithm>

#include "app/cartella_dati.h"
#include "cli/griglia_testi.h"
#include "cli/json.h"
#include "cli/verbi.h"
#include "interaction/failure.h"
#include "itinerary/posizioni.h"
#include "places/nomi.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDecimaliGradi = 5;

// The locality of the trip that was meant, as its itinerary names it.
QString LocalitaDelViaggio(const MetaAperta& aperta, const QString& scritta) {
    const QString cercata = NomePiegato(scritta);
    const auto trovata = std::find_if(aperta.tappe.begin(), aperta.tappe.end(),
                                      [&](const Tappa& t) { return NomePiegato(t.localita) == cercata; });
    if (trovata != aperta.tappe.end()) return trovata->localita;
    throw Failure(u"La località «%1» non è nell'itinerario della mèta %2."_s.arg(scritta, aperta.meta.codice));
}

// The arguments behind the code, as one position.
Posizione PosizioneRichiesta(const QStringList& argomenti) {
    if (argomenti.isEmpty()) throw WrongUsage(u"Con --conferma servono latitudine e longitudine."_s);
    const auto letta =
        argomenti.size() == 2 ? LeggiPosizione(argomenti[0], argomenti[1]) : LeggiPosizione(argomenti[0]);
    if (letta) return *letta;
    throw WrongUsage(u"«%1» non è una posizione. Vale per esempio: 44.4056 8.9463"_s.arg(argomenti.join(u' ')));
}

// What is to be changed; returns what the person is told, nothing when nothing was asked.
QString Cambia(Sessione& sessione, const Richiesta& richiesta, const std::optional<Posizione>& posizione) {
    const MetaAperta aperta = sessione.ApriMeta(richiesta.argomenti.first());
    if (posizione) {
        const QString localita = LocalitaDelViaggio(aperta, richiesta.opzioni.value(u"conferma"_s));
        ConfermaPosizione(sessione.Archivio(), localita, *posizione);
        return u"Posizione di %1 confermata: %2."_s.arg(localita, Testo(*posizione));
    }
    const QString localita = LocalitaDelViaggio(aperta, richiesta.opzioni.value(u"dimentica"_s));
    if (DimenticaPosizione(sessione.Archivio(), localita)) return u"Posizione di %1 dimenticata."_s.arg(localita);
    throw Failure(u"Nessuno aveva confermato la posizione di %1."_s.arg(localita));
}

void ScriviLuoghi(const std::vector<Tappa>& tappe, const std::vector<PosizioneTappa>& posizioni, ScrittoreJson& json) {
    json.ApreArray();
    for (std::size_t i = 0; i < tappe.size(); ++i) {
        const std::optional<Posizione>& dove = posizioni[i].posizione;
        const auto gradi = [&](QStringView nome, double valore) {
            json.Nome(nome);
            dove ? json.Decimale(valore, kDecimaliGradi) : json.Nullo();
        };
        json.ApreOggetto();
        json.Nome(u"fonte");
        json.Testo(Testo(posizioni[i].fonte));
        gradi(u"latitudine", dove.value_or(Posizione()).latitudine);
        json.Nome(u"localita");
        json.Testo(tappe[i].localita);
        gradi(u"longitudine", dove.value_or(Posizione()).longitudine);
        json.ChiudeOggetto();
    }
    json.ChiudeArray();
}

TabellaTesti TabellaDeiLuoghi(const std::vector<Tappa>& tappe, const std::vector<PosizioneTappa>& posizioni) {
    TabellaTesti tabella{{u"Num."_s, u"Tappa"_s, u"Latitudine"_s, u"Longitudine"_s, u"Fonte"_s}, {}, {0, 2, 3}};
    for (std::size_t i = 0; i < tappe.size(); ++i) {
        const std::optional<Posizione>& dove = posizioni[i].posizione;
        tabella.righe.push_back({QString::number(i + 1), tappe[i].localita,
                                 dove ? TestoGradi(dove->latitudine) : QString(),
                                 dove ? TestoGradi(dove->longitudine) : QString(), Testo(posizioni[i].fonte)});
    }
    return tabella;
}

// "Confermate: 1; dal repertorio: 20; …".
QString Conteggio(const std::vector<PosizioneTappa>& posizioni) {
    const auto quante = [&](FontePosizione fonte) {
        return QString::number(std::count_if(posizioni.begin(), posizioni.end(),
                                             [&](const PosizioneTappa& p) { return p.fonte == fonte; }));
    };
    return u"Confermate: %1; dal repertorio: %2; interpolate: %3; sconosciute: %4."_s.arg(
        quante(FontePosizione::Confermata), quante(FontePosizione::Repertorio), quante(FontePosizione::Interpolata),
        quante(FontePosizione::Sconosciuta));
}

}  // namespace

void EseguiLuoghi(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    const bool conferma = richiesta.opzioni.contains(u"conferma"_s);
    const bool dimentica = richiesta.opzioni.contains(u"dimentica"_s);
    const QStringList coordinate = richiesta.argomenti.sliced(1);
    if (conferma && dimentica) throw WrongUsage(u"Si può confermare o dimenticare, non tutte e due."_s);
    if (!conferma && !coordinate.isEmpty()) throw WrongUsage(u"Una posizione si indica con --conferma LOCALITÀ."_s);
    const auto posizione = conferma ? std::optional(PosizioneRichiesta(coordinate)) : std::nullopt;
    Sessione sessione = apri();
    const QString cambiato = conferma || dimentica ? Cambia(sessione, richiesta, posizione) : QString();
    if (!cambiato.isEmpty() && richiesta.formato == Formato::Testo) {
        uscita << cambiato << '\n';
        return;
    }
    const auto [aperta, guida, confermate] = sessione.LeggiMeta(richiesta.argomenti.first(), LeggeAnche::Posizioni);
    Gazzettino gazzettino(FileDelProgramma(u"luoghi.dat"_s));
    const std::vector<PosizioneTappa> posizioni =
        PosizioniDelViaggio(confermate, gazzettino, aperta.tappe, aperta.meta.nazione);
    if (richiesta.formato == Formato::Json) {
        ScrittoreJson json(uscita);
        return ScriviLuoghi(aperta.tappe, posizioni, json);
    }
    const TabellaTesti tabella = TabellaDeiLuoghi(aperta.tappe, posizioni);
    if (richiesta.formato == Formato::Tsv) return ScriviTsv(tabella, uscita);
    uscita << TitoloMeta(aperta.meta) << "\n\n";
    if (tabella.righe.empty()) {
        uscita << SenzaTappe();
        return;
    }
    ScriviAllineata(tabella, uscita);
    uscita << '\n' << Conteggio(posizioni) << '\n';
    if (!gazzettino.Disponibile()) {
        uscita << u"Il repertorio dei luoghi (luoghi.dat) non si trova: reinstalla il programma.\n"_s;
    }
}

}  // namespace cronovia
