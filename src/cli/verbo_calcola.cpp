// calcola.
#include <algorithm>
#include <array>

#include "calendar/date.h"
#include "cli/griglia_testi.h"
#include "cli/json.h"
#include "cli/opzioni_calcolo.h"
#include "cli/verbi.h"
#include "print/tabella_testo.h"

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

void ScriviGiorni(const Meta& meta, const Cronovia& cronovia, const std::vector<RigaGriglia>& righe,
                  QTextStream& uscita) {
    const TabellaTesti tabella = ColonneDelGiorno(righe, cronovia);
    const std::vector<int> larghezze = LarghezzeColonne(tabella);
    const NumeroGiorno partenza = *meta.dataInizio;
    NumeroGiorno giorno = partenza - 1;
    for (std::size_t i = 0; i < cronovia.righe.size(); ++i) {
        const RigaCronovia& riga = cronovia.righe[i];
        const NumeroGiorno suo = ConMomento(riga.genere) ? riga.data : std::max(giorno, partenza);
        if (suo != giorno) {
            uscita << u"\nGiorno %1, %2 %3\n"_s.arg(QString::number(suo - partenza + 1), GiornoSettimana(suo),
                                                    TestoData(suo));
            if (giorno < partenza) uscita << RigaAllineata(tabella.intestazioni, larghezze, tabella.aDestra) << '\n';
            giorno = suo;
        }
        const bool guida = riga.genere == GenereRiga::Guida;
        uscita << (guida ? RigaDellaGuida(righe[i], larghezze.front() + 3)
                         : RigaAllineata(tabella.righe[i], larghezze, tabella.aDestra))
               << '\n';
    }
}

void ScriviTesto(const MetaAperta& aperta, const EsitoCalcolo& esito, const std::vector<RigaGriglia>& righe,
                 const TestiTotali& totali, QTextStream& uscita) {
    uscita << TitoloMeta(aperta.meta) << '\n';
    if (righe.empty()) uscita << u"\nL'itinerario non ha ancora tappe.\n"_s;
    ScriviGiorni(aperta.meta, *esito.cronovia, righe, uscita);
    const TestiFine fine = Testi(esito.cronovia->fine);
    uscita << '\n' << RigaTotali(totali) << '\n';
    if (esito.cronovia->fine) {
        uscita << u"Fine del viaggio: %1 %2/%3/%4 ore %5:%6, giorni: %7.\n"_s.arg(
            fine.giornoSettimana, fine.giorno, fine.mese, fine.anno, fine.ore, fine.minuti, fine.giorni);
        const auto& tutte = esito.cronovia->righe;
        if (std::any_of(tutte.begin(), tutte.end(), [](const RigaCronovia& riga) { return riga.riposoDopo; })) {
            uscita << u"Ore: * seguono uno o più giorni di riposo.\n"_s;
        }
        uscita << u"Limite ritorno: > ultimo momento per proseguire senza soste, < per tornare indietro.\n"_s;
    }
    if (!esito.messaggio.isEmpty()) uscita << esito.messaggio << '\n';
}

// Each row is written when its texts are made: a long trip is never held twice.
void ScriviJson(const Cronovia& cronovia, const EsitoCalcolo& esito, const TestiTotali& totali, QTextStream& uscita) {
    ScrittoreJson json(uscita);
    json.ApreOggetto();
    json.Nome(u"fine");
    json.Testi(Testi(cronovia.fine).Elenco());
    json.Nome(u"messaggio");
    json.Testo(esito.messaggio);
    json.Nome(u"righe");
    json.ApreArray();
    for (std::size_t i = 0; i < cronovia.righe.size(); ++i) json.Testi(TestiDellaRiga(cronovia, i));
    json.ChiudeArray();
    json.Nome(u"tentativi");
    json.Numero(esito.tentativi);
    json.Nome(u"totali");
    ScriviTotali(totali, json);
    json.ChiudeOggetto();
}

}  // namespace

void EseguiCalcola(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    const OpzioniCalcolo opzioni = LeggiOpzioniCalcolo(richiesta);
    Sessione sessione = apri();
    Progress progress;
    const auto [aperta, esito] = sessione.ApriECalcola(richiesta.argomenti.first(), opzioni, progress);
    const Cronovia& cronovia = *esito.cronovia;
    const TestiTotali totali = Testi(cronovia.totali, cronovia.orario.GuidaGiorno());
    const bool tabella = richiesta.opzioni.contains(u"tabella"_s);
    if (tabella) ScriviTabella(PreparaStampa(aperta.meta, cronovia), sessione.Cartella());
    if (richiesta.formato == Formato::Testo) {
        ScriviTesto(aperta, esito, TestiDellaCronovia(cronovia), totali, uscita);
        if (tabella) uscita << RigaTabellaScritta(sessione.Cartella());
    } else if (richiesta.formato == Formato::Tsv) {
        ScriviTsv(TestiDellaGriglia(Intestazioni(Vista::Cronovia), TestiDellaCronovia(cronovia)), uscita);
    } else {
        ScriviJson(cronovia, esito, totali, uscita);
    }
}

}  // namespace cronovia
