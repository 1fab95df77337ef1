// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/strisce.h"

#include <algorithm>
#include <array>
#include <utility>

#include "schedule/testi_giornata.h"

namespace cronovia {

namespace {

// Colours that people with any kind of colour vision tell apart; their greys differ too, from dark to light: driving,
// rest, ferry, meals, visits, nights.
constexpr std::array<AspettoPezzo, kGeneriPezzo> kAspetti = {{
    {u"guida", Trama::Piena, 0x0B5A8F, 0x08395B},
    {u"visita", Trama::Diagonali, 0xF7D27A, 0x9A6A00},
    {u"traghetto", Trama::Orizzontali, 0x8CC9EE, 0x0B5A8F},
    {u"pranzo", Trama::Punti, 0x9FD8C3, 0x00654A},
    {u"cena", Trama::Punti, 0x9FD8C3, 0x00654A},
    {u"riposo", Trama::Piena, 0xC65A11, 0x7A3300},
    {u"notte", Trama::Controdiagonali, 0xE4E5EC, 0x84899F},
    {u"giorno di riposo", Trama::Incroci, 0xEBC9DC, 0x8E4A73},
    {u"attesa", Trama::Verticali, 0xFFFFFF, 0x6B6B6B},
}};

GenerePezzo PezzoPer(GenereFascia fascia) {
    switch (fascia) {
        case GenereFascia::Marcia:
            return GenerePezzo::Marcia;
        case GenereFascia::Visita:
            return GenerePezzo::Visita;
        case GenereFascia::Traghetto:
            return GenerePezzo::Traghetto;
        case GenereFascia::Pranzo:
            return GenerePezzo::Pranzo;
        case GenereFascia::Cena:
            return GenerePezzo::Cena;
        case GenereFascia::Attesa:
            return GenerePezzo::Attesa;
        case GenereFascia::Riposo:
            break;
    }
    return GenerePezzo::Riposo;
}

// Adds what is left of a time between the bars of a day, which are in order.
void RiempiFra(Centesimi da, Centesimi a, const PezzoDelGiorno& pezzo, StrisciaDelGiorno& striscia) {
    StrisciaDelGiorno nuovi;
    const auto aggiungi = [&](Centesimi fine) {
        if (fine <= da) return;
        nuovi.push_back(pezzo);
        nuovi.back().da = da;
        nuovi.back().a = fine;
    };
    for (const PezzoDelGiorno& altro : striscia) {
        if (altro.a <= da) continue;
        aggiungi(std::min(a, altro.da));
        da = std::max(da, altro.a);
    }
    aggiungi(a);
    striscia.insert(striscia.end(), nuovi.begin(), nuovi.end());
    std::sort(striscia.begin(), striscia.end(), [](const auto& x, const auto& y) { return x.da < y.da; });
}

class Disegno {
  public:
    Disegno(const Cronovia& cronovia, const std::vector<Giornata>& giornate)
        : cronovia_(cronovia), giornate_(giornate), strisce_(giornate.size()) {}

    void Fasce() {
        for (const Fascia& fascia : cronovia_.fasce) {
            const int giorno = fascia.data - giornate_.front().data;
            Aggiungi(giorno, fascia, fascia.da, std::min(fascia.a, kGiornoOrologio));
            Aggiungi(giorno + 1, fascia, 0_cent, fascia.a - kGiornoOrologio);
        }
    }

    void NottiERiposi() {
        const ParametriViaggio& p = cronovia_.orario.Parametri();
        for (std::size_t i = 0; i < giornate_.size(); ++i) {
            const Giornata& g = giornate_[i];
            const QString sera = LuogoDellaNotte(g);
            const auto riempi = [&](GenerePezzo genere, Centesimi da, Centesimi a, const QString& luogo) {
                RiempiFra(da, a, {genere, {}, {}, PezzoDelGiorno::kSenzaRiga, luogo}, strisce_[i]);
            };
            if (i > 0) riempi(GenerePezzo::Notte, 0_cent, p.oraColazione, LuogoDelRisveglio(strisce_[i]));
            if (g.riposo) riempi(GenerePezzo::GiornoDiRiposo, p.oraColazione, p.oraNotte, g.notte);
            if (!g.ultima) riempi(GenerePezzo::Notte, p.oraNotte, kGiornoOrologio, sera);
            mattina_ = sera;
        }
    }

    std::vector<StrisciaDelGiorno> Finito() { return std::move(strisce_); }

  private:
    // Who lands before breakfast goes on sleeping there.
    [[nodiscard]] QString LuogoDelRisveglio(const StrisciaDelGiorno& striscia) const {
        const bool sbarco =
            !striscia.empty() && striscia.front().genere == GenerePezzo::Traghetto && striscia.front().da == 0_cent;
        return sbarco ? striscia.front().luogo : mattina_;
    }

    void Aggiungi(int giorno, const Fascia& fascia, Centesimi da, Centesimi a) {
        if (a <= da || giorno >= static_cast<int>(strisce_.size())) return;
        strisce_[static_cast<std::size_t>(giorno)].push_back(
            {PezzoPer(fascia.genere), da, a, fascia.riga, LuogoDellaRiga(cronovia_, fascia.riga)});
    }

    const Cronovia& cronovia_;
    const std::vector<Giornata>& giornate_;
    std::vector<StrisciaDelGiorno> strisce_;
    QString mattina_;  // where the night of the day before is
};

}  // namespace

std::vector<StrisciaDelGiorno> Strisce(const Cronovia& cronovia, const std::vector<Giornata>& giornate) {
    if (giornate.empty()) return {};
    Disegno disegno(cronovia, giornate);
    disegno.Fasce();
    disegno.NottiERiposi();
    return disegno.Finito();
}

const AspettoPezzo& Aspetto(GenerePezzo genere) { return kAspetti[static_cast<std::size_t>(genere)]; }

}  // namespace cronovia
