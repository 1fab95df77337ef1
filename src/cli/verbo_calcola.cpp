// SPDX-License-Identifier: GPL-3.0-or-later
// calcola.
#include <algorithm>
#include <array>

#include "cli/griglia_testi.h"
#include "cli/json.h"
#include "cli/opzioni_calcolo.h"
#include "cli/verbi.h"
#include "print/tabella_testo.h"
#include "schedule/testi_giornata.h"
#include "schedule/testi_ore.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The columns under a day's heading: the hour first, the day itself left to the heading. Guide entries, whose texts are
// long, are no columns.
TabellaTesti ColonneDelGiorno(const std::vector<RigaGriglia>& righe, const Cronovia& cronovia) {
    const std::array<Colonna, 9> colonne = {Colonna::Ora,   Colonna::Tappa,         Colonna::NumeroStrada,
                                            Colonna::Km,    Colonna::KmProgressivi, Colonna::Tempo,
                                            Colonna::Sosta, Colonna::Note,          Colonna::LimiteRitorno};
    const auto scegli = [&](const RigaGriglia& testi) {
        QStringList scelti;
        for (const Colonna colonna : colonne) scelti += testi[colonna];
        return scelti;
    };
    TabellaTesti tabella{scegli(Intestazioni(Vista::Cronovia)), {}, {0, 3, 4, 6}};
    for (std::size_t i = 0; i < righe.size(); ++i) {
        const bool guida = cronovia.righe[i].genere == GenereRiga::Guida;
        tabella.righe.push_back(scegli(guida ? RigaGriglia() : righe[i]));
    }
    return tabella;
}

// The hour of a guide entry is at most the mark of a rest that follows.
QString RigaDellaGuida(const RigaGriglia& riga, int rientro) {
    const QString& tempo = riga[Colonna::Sosta];
    return riga[Colonna::Ora].trimmed().leftJustified(rientro) + riga[Colonna::Tappa] + u" ("_s + riga[Colonna::Note] +
           (tempo.isEmpty() ? QString() : u", "_s + tempo) + u')';
}

void ScriviGiorni(const Meta& meta, const Cronovia& cronovia, QTextStream& uscita) {
    std::vector<RigaGriglia> righe;
    for (std::size_t i = 0; i < cronovia.righe.size(); ++i) righe.push_back(TestiMostrati(cronovia, i));
    const TabellaTesti tabella = ColonneDelGiorno(righe, cronovia);
    const std::vector<int> larghezze = LarghezzeColonne(tabella);
    for (const Giornata& giornata : Giornate(cronovia, *meta.dataInizio)) {
        uscita << '\n' << Rilievo(RigaGiornata(giornata, cronovia)) << '\n';
        if (giornata.numero == 1) uscita << RigaAllineata(tabella.intestazioni, larghezze, tabella.aDestra) << '\n';
        for (const int riga : giornata.righe) {
            const auto i = static_cast<std::size_t>(riga);
            const bool guida = cronovia.righe[i].genere == GenereRiga::Guida;
            uscita << (guida ? RigaDellaGuida(righe[i], larghezze.front() + 3)
                             : RigaAllineata(tabella.righe[i], larghezze, tabella.aDestra))
                   << '\n';
        }
    }
}

void ScriviTesto(const Meta& meta, const EsitoCalcolo& esito, QTextStream& uscita) {
    const Cronovia& cronovia = *esito.cronovia;
    uscita << TitoloMeta(meta) << '\n';
    if (cronovia.righe.empty()) uscita << '\n' << SenzaTappe();
    ScriviGiorni(meta, cronovia, uscita);
    uscita << '\n';
    ScriviTotaliEFine(esito, uscita);
    ScriviCosti(Giornate(cronovia, *meta.dataInizio), uscita);
    if (cronovia.fine) {
        if (std::any_of(cronovia.righe.begin(), cronovia.righe.end(),
                        [](const RigaCronovia& riga) { return riga.riposoDopo; })) {
            uscita << u"Ore: * seguono uno o più giorni di riposo.\n"_s;
        }
        uscita << u"Limite ritorno: > ultimo momento per proseguire senza soste, < per tornare indietro.\n"_s;
    }
    if (!esito.messaggio.isEmpty()) uscita << esito.messaggio << '\n';
}

QString Data(Istante momento) { return TestoData(momento.data); }
QString OraDi(Istante momento) { return TestoOreLunghe(momento.ora); }

const QString& LocalitaDi(const Cronovia& cronovia, int tappa) {
    return cronovia.tabella.righe[static_cast<std::size_t>(tappa)].tappa.localita;
}

void ScriviOra(const EsitoOra& ora, const Cronovia& cronovia, ScrittoreJson& json) {
    constexpr std::array<QStringView, 3> kGeneri = {u"partenza", u"non_prima", u"non_dopo"};
    const auto testo = [&](QStringView nome, const QString& valore) {
        json.Nome(nome);
        json.Testo(valore);
    };
    const bool inRitardo = ora.ritardo > 0_cent;
    json.ApreOggetto();
    testo(u"attesa", TestoOreLunghe(ora.attesa));
    if (inRitardo) testo(u"da", LocalitaDi(cronovia, ora.daTappa));
    testo(u"data", Data(ora.ora));
    testo(u"genere", kGeneri[static_cast<std::size_t>(ora.genere)].toString());
    testo(u"localita", LocalitaDi(cronovia, ora.tappa));
    if (ora.margine) testo(u"margine", TestoOreLunghe(*ora.margine));
    testo(u"ora", OraDi(ora.ora));
    json.Nome(u"perso");
    json.Logico(ora.perso);
    json.Nome(u"riga");
    json.Numero(ora.riga + 1);
    testo(u"ritardo", TestoOreLunghe(ora.ritardo));
    json.ChiudeOggetto();
}

// The hours that others set, if there are any.
void ScriviOre(const Cronovia& cronovia, ScrittoreJson& json) {
    if (cronovia.ore.empty()) return;
    json.Nome(u"ore");
    json.ApreArray();
    for (const EsitoOra& ora : cronovia.ore) ScriviOra(ora, cronovia, json);
    json.ChiudeArray();
}

void ScriviScadenza(const Cronovia& cronovia, ScrittoreJson& json) {
    if (!cronovia.scadenza) return;
    const EsitoScadenza& scadenza = *cronovia.scadenza;
    const bool inRitardo = scadenza.margine < 0_cent;
    json.Nome(u"scadenza");
    json.ApreOggetto();
    if (inRitardo) {
        json.Nome(u"da");
        json.Testo(LocalitaDi(cronovia, scadenza.daTappa));
    }
    json.Nome(u"data");
    json.Testo(Data(scadenza.entro));
    if (!inRitardo) {
        json.Nome(u"margine");
        json.Testo(TestoOreLunghe(scadenza.margine));
    }
    json.Nome(u"ora");
    json.Testo(OraDi(scadenza.entro));
    if (inRitardo) {
        json.Nome(u"ritardo");
        json.Testo(TestoOreLunghe(0_cent - scadenza.margine));
    }
    json.ChiudeOggetto();
}

// When one has to be home is told as the hours of stages are, below the rows and without a number.
RigaGriglia RigaScadenza(const EsitoScadenza& scadenza, const Cronovia& cronovia) {
    RigaGriglia testi;
    testi[Colonna::Tappa] = TestoBreve(scadenza);
    testi[Colonna::GiornoSettimana] = GiornoSettimana(scadenza.entro.data);
    testi[Colonna::Data] = Data(scadenza.entro);
    testi[Colonna::Ora] = OraDi(scadenza.entro);
    testi[Colonna::Note] = u"A casa entro"_s;
    if (scadenza.margine < 0_cent)
        testi[Colonna::Note] += u", in ritardo da "_s + LocalitaDi(cronovia, scadenza.daTappa);
    return testi;
}

void ScriviTabellare(const Cronovia& cronovia, QTextStream& uscita) {
    std::vector<RigaGriglia> righe = TestiDellaCronovia(cronovia);
    if (cronovia.scadenza) righe.push_back(RigaScadenza(*cronovia.scadenza, cronovia));
    ScriviTsv(TestiDellaGriglia(Intestazioni(Vista::Cronovia), righe), uscita);
}

// Each row is written when its texts are made: a long trip is never held twice.
void ScriviJson(const Meta& meta, const EsitoCalcolo& esito, QTextStream& uscita) {
    const Cronovia& cronovia = *esito.cronovia;
    ScrittoreJson json(uscita);
    json.ApreOggetto();
    if (const std::optional<Costi> costi = CostiDelViaggio(Giornate(cronovia, *meta.dataInizio))) {
        json.Nome(u"costi");
        ScriviCosti(*costi, json);
    }
    json.Nome(u"fine");
    json.Testi(Testi(cronovia.fine).Elenco());
    json.Nome(u"messaggio");
    json.Testo(esito.messaggio);
    ScriviOre(cronovia, json);
    json.Nome(u"righe");
    json.ApreArray();
    for (std::size_t i = 0; i < cronovia.righe.size(); ++i) json.Testi(TestiDellaRiga(cronovia, i));
    json.ChiudeArray();
    ScriviScadenza(cronovia, json);
    json.Nome(u"tentativi");
    json.Numero(esito.tentativi);
    json.Nome(u"totali");
    ScriviTotali(Testi(cronovia.totali, cronovia.orario.GuidaGiorno()), json);
    json.ChiudeOggetto();
}

}  // namespace

void EseguiCalcola(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    const OpzioniCalcolo opzioni = LeggiOpzioniCalcolo(richiesta);
    const bool tabella = richiesta.opzioni.contains(u"tabella"_s);
    Sessione sessione = apri();
    if (tabella) sessione.RifiutaSeDanneggiato();
    Progress& progress = *richiesta.avanzamento;
    const auto [aperta, esito, senza] = sessione.ApriECalcola(richiesta.argomenti.first(), opzioni, progress);
    const Cronovia& cronovia = *esito.cronovia;
    if (tabella) ScriviTabella(PreparaStampa(aperta.meta, cronovia), sessione.Cartella());
    if (richiesta.formato == Formato::Testo) {
        ScriviTesto(aperta.meta, esito, uscita);
        if (tabella) uscita << RigaTabellaScritta(sessione.Cartella());
    } else if (richiesta.formato == Formato::Tsv) {
        ScriviTabellare(cronovia, uscita);
    } else {
        ScriviJson(aperta.meta, esito, uscita);
    }
}

}  // namespace cronovia
