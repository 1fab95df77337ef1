// SPDX-License-Identifier: GPL-3.0-or-later
// giornate.
#include "app/cartella_dati.h"
#include "calendar/digitati.h"
#include "calendar/testo.h"
#include "cli/griglia_testi.h"
#include "cli/json.h"
#include "cli/opzioni_calcolo.h"
#include "cli/verbi.h"
#include "schedule/sole_giornate.h"
#include "schedule/testi_giornata.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// "04:10", midnight and no time at all too.
QString OreEMinuti(Centesimi tempo) {
    const Durata durata = InDurata(tempo, kGiornoOrologio);
    return ConNumeri(u"00:00", {durata.giorni * 24 + durata.ore, durata.minuti});
}

QString Momento(const std::optional<Centesimi>& ora) { return ora ? OreEMinuti(*ora) : QString(); }

QString SeOccupato(Centesimi tempo) { return tempo > 0_cent ? OreEMinuti(tempo) : QString(); }

// Meals on the way, rests and waits.
QString Pause(const Giornata& giornata) {
    QStringList pause;
    if (giornata.pranzo) pause += u"pranzo"_s;
    if (giornata.cena) pause += u"cena"_s;
    if (giornata.riposi > 0) pause += u"riposi %1"_s.arg(giornata.riposi);
    if (giornata.attesa > 0_cent) pause += u"attesa "_s + OreEMinuti(giornata.attesa);
    if (giornata.riposo) pause += u"giorno di riposo"_s;
    return pause.join(u", "_s);
}

TabellaTesti TabellaDelleGiornate(const std::vector<Giornata>& giornate, const std::vector<SoleGiornata>& soli,
                                  const Cronovia& cronovia) {
    TabellaTesti tabella{{u"Giorno"_s, u"Gs"_s, u"Data"_s, u"Km."_s, u"Guida"_s, u"Visite"_s, u"Traghetti"_s,
                          u"Partenza"_s, u"Arrivo"_s, u"Pause"_s, u"Notte"_s, u"Rinvii"_s},
                         {},
                         {0, 3}};
    for (std::size_t i = 0; i < giornate.size(); ++i) {
        const Giornata& g = giornate[i];
        tabella.righe.push_back({QString::number(g.numero), GiornoSettimana(g.data), TestoData(g.data),
                                 RaggruppaNonZero(g.km), SeOccupato(g.guida), SeOccupato(g.visite),
                                 SeOccupato(g.traghetto), Momento(g.partenza), Momento(g.arrivo), Pause(g),
                                 LuogoDellaNotte(g), TestiRinvii(g, cronovia, soli[i]).join(u"; "_s)});
    }
    if (!CostiDelViaggio(giornate)) return tabella;
    tabella.intestazioni += u"Costi"_s;
    tabella.aDestra += static_cast<int>(tabella.intestazioni.size()) - 1;
    for (std::size_t i = 0; i < giornate.size(); ++i) {
        tabella.righe[i] += TestoEuro(giornate[i].costi.value_or(Costi()).Totale());
    }
    return tabella;
}

// "05:41"; before midnight or beyond it, where the Italian clock is on another day, as that clock shows it.
QString OraDelSole(const std::optional<int>& minuti) {
    const int nelGiorno = (minuti.value_or(0) % kMinutiDelGiorno + kMinutiDelGiorno) % kMinutiDelGiorno;
    return minuti ? ConNumeri(u"00:00", {nelGiorno / 60, nelGiorno % 60}) : QString();
}

void ScriviGiornata(const Giornata& giornata, const SoleGiornata& sole, const Cronovia& cronovia, ScrittoreJson& json) {
    const auto testo = [&](QStringView nome, const QString& valore) {
        json.Nome(nome);
        json.Testo(valore);
    };
    const auto numero = [&](QStringView nome, int valore) {
        json.Nome(nome);
        json.Numero(valore);
    };
    const auto seVero = [&](QStringView nome, bool valore) {
        json.Nome(nome);
        json.Logico(valore);
    };
    json.ApreOggetto();
    testo(u"alba", OraDelSole(sole.alba));
    testo(u"arrivo", Momento(giornata.arrivo));
    if (giornata.attesa > 0_cent) testo(u"attesa", OreEMinuti(giornata.attesa));
    seVero(u"cena", giornata.cena);
    if (giornata.costi) {
        json.Nome(u"costi");
        ScriviCosti(*giornata.costi, json);
    }
    testo(u"data", TestoData(giornata.data));
    testo(u"giorno_settimana", GiornoSettimana(giornata.data));
    testo(u"guida", OreEMinuti(giornata.guida));
    numero(u"km", giornata.km);
    testo(u"notte", giornata.notte);
    seVero(u"notte_in_traghetto", giornata.notteInTraghetto);
    numero(u"numero", giornata.numero);
    testo(u"partenza", Momento(giornata.partenza));
    seVero(u"pranzo", giornata.pranzo);
    numero(u"riposi", giornata.riposi);
    seVero(u"riposo", giornata.riposo);
    json.Nome(u"righe");
    json.ApreArray();
    for (const int riga : giornata.righe) json.Numero(riga + 1);
    json.ChiudeArray();
    json.Nome(u"rinvii");
    json.ApreArray();
    for (const QString& rinvio : TestiRinvii(giornata, cronovia, sole)) json.Testo(rinvio);
    json.ChiudeArray();
    testo(u"risveglio", giornata.risveglio);
    testo(u"traghetto", OreEMinuti(giornata.traghetto));
    testo(u"tramonto", OraDelSole(sole.tramonto));
    testo(u"visite", OreEMinuti(giornata.visite));
    json.Nome(u"voci");
    json.ApreArray();
    for (const int riga : giornata.righe) {
        const RigaCronovia& voce = cronovia.righe[static_cast<std::size_t>(riga)];
        if (voce.genere != GenereRiga::Guida) continue;
        const RigaCalcolo& tappa = cronovia.tabella.righe[static_cast<std::size_t>(voce.tappa)];
        json.Testo((*tappa.voci)[static_cast<std::size_t>(voce.voce)].descrizione);
    }
    json.ChiudeArray();
    json.ChiudeOggetto();
}

void ScriviTesto(const Meta& meta, const EsitoCalcolo& esito, const std::vector<Giornata>& giornate,
                 const TabellaTesti& tabella, QTextStream& uscita) {
    uscita << TitoloMeta(meta) << "\n\n";
    if (tabella.righe.empty()) {
        uscita << SenzaTappe();
    } else {
        ScriviAllineata(tabella, uscita);
    }
    uscita << '\n';
    ScriviTotaliEFine(esito, uscita);
    ScriviCosti(giornate, uscita);
    if (!esito.messaggio.isEmpty()) uscita << esito.messaggio << '\n';
}

}  // namespace

void EseguiGiornate(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    const bool pdf = richiesta.opzioni.contains(u"pdf"_s);
    for (const QString& opzione : {u"sovrascrivi"_s, u"mappa"_s}) {
        if (!pdf && richiesta.opzioni.contains(opzione)) {
            throw WrongUsage(u"L'opzione --%1 vale solo con --pdf."_s.arg(opzione));
        }
    }
    if (pdf) return richiesta.stampe.giornate(apri, richiesta, uscita);
    const OpzioniCalcolo opzioni = LeggiOpzioniCalcolo(richiesta);
    Sessione sessione = apri();
    Progress& progress = *richiesta.avanzamento;
    const auto [aperta, esito, confermate] =
        sessione.ApriECalcola(richiesta.argomenti.first(), opzioni, progress, LeggeAnche::Posizioni);
    const std::vector<Giornata> giornate = Giornate(*esito.cronovia, *aperta.meta.dataInizio);
    Gazzettino gazzettino(FileDelProgramma(u"luoghi.dat"_s));
    const std::vector<SoleGiornata> soli = SoleDelleGiornate(
        giornate, *esito.cronovia,
        PosizioniDelViaggio(confermate, gazzettino, TappeCalcolate(*esito.cronovia), aperta.meta.nazione));
    if (richiesta.formato == Formato::Json) {
        ScrittoreJson json(uscita);
        json.ApreArray();
        for (std::size_t i = 0; i < giornate.size(); ++i) ScriviGiornata(giornate[i], soli[i], *esito.cronovia, json);
        json.ChiudeArray();
        return;
    }
    const TabellaTesti tabella = TabellaDelleGiornate(giornate, soli, *esito.cronovia);
    if (richiesta.formato == Formato::Tsv) {
        ScriviTsv(tabella, uscita);
    } else {
        ScriviTesto(aperta.meta, esito, giornate, tabella, uscita);
    }
}

}  // namespace cronovia
