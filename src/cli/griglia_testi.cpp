// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/griglia_testi.h"

#include "calendar/date.h"
#include "calendar/digitati.h"
#include "calendar/durata.h"
#include "calendar/testo.h"
#include "schedule/testi_ore.h"

namespace cronovia {

using namespace Qt::StringLiterals;

TabellaTesti TestiDellaGriglia(const RigaGriglia& intestazioni, const std::vector<RigaGriglia>& righe) {
    TabellaTesti tabella;
    tabella.intestazioni = QStringList(intestazioni.begin(), intestazioni.end());
    tabella.righe.reserve(righe.size());
    for (const RigaGriglia& riga : righe) tabella.righe.emplace_back(riga.begin(), riga.end());
    return tabella;
}

void ScriviRighe(const std::vector<RigaGriglia>& righe, ScrittoreJson& json) {
    json.ApreArray();
    for (const RigaGriglia& riga : righe) json.Testi(riga);
    json.ChiudeArray();
}

QString TitoloMeta(const Meta& meta) {
    QString titolo = meta.localita;
    if (!meta.nazione.isEmpty()) titolo += u" (%1)"_s.arg(meta.nazione);
    if (!meta.dataInizio) return Visibile(titolo);
    const QString ora = TestoOrario(meta.oraInizio);
    return Visibile(titolo) + u", partenza %1 %2 ore %3:%4"_s.arg(GiornoSettimana(*meta.dataInizio),
                                                                  TestoData(*meta.dataInizio), ora.left(2),
                                                                  ora.right(2));
}

QString RigaTotali(const TestiTotali& totali) {
    if (totali.km.back().isEmpty()) return u"Totale: 0 km, traghetti: %1."_s.arg(totali.traghetti);
    QStringList parti;
    for (std::size_t i = 0; i < kTipiStrada; ++i) {
        if (totali.km[i].isEmpty()) continue;
        parti += u"%1 %2"_s.arg(NomeTipoStrada(static_cast<TipoStrada>(i)), totali.km[i]);
    }
    return u"Totale: %1 km (%2); guida %3 (gg:hh:mm); traghetti: %4."_s.arg(totali.km.back(), parti.join(u", "_s),
                                                                            totali.tempo.back(), totali.traghetti);
}

void ScriviTotaliEFine(const EsitoCalcolo& esito, QTextStream& uscita) {
    const Cronovia& cronovia = *esito.cronovia;
    uscita << RigaTotali(Testi(cronovia.totali, cronovia.orario.GuidaGiorno())) << '\n';
    if (!cronovia.fine) return;
    const TestiFine fine = Testi(cronovia.fine);
    uscita << u"Fine del viaggio: %1 %2/%3/%4 ore %5:%6, giorni: %7.\n"_s.arg(
        fine.giornoSettimana, fine.giorno, fine.mese, fine.anno, fine.ore, fine.minuti, fine.giorni);
    if (cronovia.scadenza) uscita << Testo(*cronovia.scadenza, cronovia) << ".\n";
}

void ScriviCosti(const std::vector<Giornata>& giornate, QTextStream& uscita) {
    if (const std::optional<Costi> costi = CostiDelViaggio(giornate)) uscita << TestoCosti(*costi) << ".\n";
}

void ScriviCosti(const Costi& costi, ScrittoreJson& json) {
    json.ApreOggetto();
    for (const auto& [nome, centesimi] :
         {std::pair{u"carburante", costi.carburante}, std::pair{u"ingressi", costi.ingressi},
          std::pair{u"notti", costi.notti}, std::pair{u"pedaggi", costi.pedaggi}, std::pair{u"totale", costi.Totale()},
          std::pair{u"traghetti", costi.traghetti}}) {
        json.Nome(nome);
        json.Testo(TestoDecimale(centesimi, 2, 2));
    }
    json.ChiudeOggetto();
}

QString SenzaTappe() { return u"L'itinerario non ha ancora tappe.\n"_s; }

}  // namespace cronovia
