// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/costi.h"

#include <QStringList>
#include <algorithm>
#include <array>

#include "calendar/digitati.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

bool ConPrezzi(const Cronovia& cronovia) {
    if (cronovia.prezzi != PrezziViaggio()) return true;
    return std::any_of(cronovia.tabella.righe.begin(), cronovia.tabella.righe.end(), [](const RigaCalcolo& riga) {
        const VincoliTappa& v = riga.tappa.vincoli;
        return v && (v->prezzoTraghetto || v->prezzoNotte || v->prezzoIngresso);
    });
}

const Tappa& TappaDi(const Cronovia& cronovia, const RigaCronovia& riga) {
    return cronovia.tabella.righe[static_cast<std::size_t>(riga.tappa)].tappa;
}

// To the nearest whole cent.
int Arrotonda(std::int64_t numero, std::int64_t divisore) {
    return static_cast<int>((numero * 2 + divisore) / (divisore * 2));
}

int Carburante(std::int64_t km, const PrezziViaggio& prezzi) {
    if (!prezzi.kmLitro || !prezzi.carburante) return 0;
    // Thousandths of a euro to cents, and hundredths of a kilometre per litre to whole ones.
    return Arrotonda(km * 100 * *prezzi.carburante, std::int64_t{*prezzi.kmLitro} * 10);
}

int Pedaggi(const std::optional<int>& millesimi, std::int64_t km) {
    return millesimi ? Arrotonda(km * *millesimi, 10) : 0;
}

// Ferry and tickets of a stage count once: at its first row, and at its last one.
class Spese {
  public:
    Spese(const Cronovia& cronovia, std::vector<Giornata>& giornate) : cronovia_(cronovia), giornate_(giornate) {}

    void Calcola() {
        for (Giornata& giornata : giornate_) {
            giornata.costi = Costi();
            DelleRighe(giornata);
        }
        Notti();
    }

  private:
    void DelleRighe(Giornata& giornata) const {
        std::int64_t km = 0;
        std::int64_t autostrada = 0;
        for (const int posizione : giornata.righe) {
            const auto i = static_cast<std::size_t>(posizione);
            const RigaCronovia& riga = cronovia_.righe[i];
            const Tappa& tappa = TappaDi(cronovia_, riga);
            if (riga.genere == GenereRiga::Marcia) {
                km += riga.km;
                if (tappa.TipoEffettivo() == TipoStrada::Autostrada) autostrada += riga.km;
            }
            const bool prima = i == 0 || cronovia_.righe[i - 1].tappa != riga.tappa;
            const bool ultima = i + 1 == cronovia_.righe.size() || cronovia_.righe[i + 1].tappa != riga.tappa;
            const auto aggiungi = [](const std::optional<Prezzo>& prezzo, int& voce) {
                if (prezzo) voce += prezzo->CentesimiDiEuro();
            };
            if (prima && tappa.vincoli) aggiungi(tappa.vincoli->prezzoTraghetto, giornata.costi->traghetti);
            if (ultima && tappa.vincoli) aggiungi(tappa.vincoli->prezzoIngresso, giornata.costi->ingressi);
        }
        giornata.costi->carburante = Carburante(km, cronovia_.prezzi);
        giornata.costi->pedaggi = Pedaggi(cronovia_.prezzi.pedaggio, autostrada);
    }

    // Where the last thing of the day happens; a day without any is spent where the one before ended.
    void Notti() {
        const NumeroGiorno inizio = giornate_.front().data;
        std::vector<int> ultime(giornate_.size(), -1);
        for (const Fascia& fascia : cronovia_.fasce) {
            ultime.at(static_cast<std::size_t>(fascia.data - inizio)) = fascia.riga;
        }
        int riga = 0;
        for (std::size_t i = 0; i < giornate_.size(); ++i) {
            if (ultime[i] >= 0) riga = ultime[i];
            const RigaCronovia& dove = cronovia_.righe[static_cast<std::size_t>(riga)];
            const VincoliTappa& vincoli = TappaDi(cronovia_, dove).vincoli;
            if (giornate_[i].ultima || giornate_[i].notteInTraghetto) continue;
            const bool sua = !dove.verso && vincoli && vincoli->prezzoNotte;
            giornate_[i].costi->notti =
                sua ? vincoli->prezzoNotte->CentesimiDiEuro() : cronovia_.prezzi.notte.value_or(0);
        }
    }

    const Cronovia& cronovia_;
    std::vector<Giornata>& giornate_;
};

}  // namespace

Costi& Costi::operator+=(const Costi& altri) {
    carburante += altri.carburante;
    pedaggi += altri.pedaggi;
    notti += altri.notti;
    traghetti += altri.traghetti;
    ingressi += altri.ingressi;
    return *this;
}

void MettiCosti(const Cronovia& cronovia, std::vector<Giornata>& giornate) {
    if (ConPrezzi(cronovia)) Spese(cronovia, giornate).Calcola();
}

std::optional<Costi> CostiDelViaggio(const std::vector<Giornata>& giornate) {
    if (giornate.empty() || !giornate.front().costi) return std::nullopt;
    Costi totale;
    for (const Giornata& giornata : giornate) totale += giornata.costi.value_or(Costi());
    return totale;
}

QString TestoCosti(const Costi& costi) {
    QStringList parti;
    for (const auto& [nome, centesimi] :
         {std::pair{u"carburante"_s, costi.carburante}, std::pair{u"pedaggi"_s, costi.pedaggi},
          std::pair{u"notti"_s, costi.notti}, std::pair{u"traghetti"_s, costi.traghetti},
          std::pair{u"ingressi"_s, costi.ingressi}}) {
        if (centesimi > 0) parti += nome + u' ' + TestoEuro(centesimi);
    }
    const QString totale = u"Costi: "_s + TestoEuro(costi.Totale());
    return parti.isEmpty() ? totale : totale + u" ("_s + parti.join(u", "_s) + u')';
}

}  // namespace cronovia
