// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/rientro.h"

#include "calendar/durata.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// More rounds than this find no rest: a timetable whose meals leave no time for driving.
constexpr int kMassimoGiri = 8;

// A clock that runs backwards through driving, meals and nights.
class OrologioIndietro {
  public:
    OrologioIndietro(NumeroGiorno data, Centesimi ora, const OrarioCorretto& orario)
        : data_(data), ora_(ora), p_(orario.Parametri()) {
        GuardaPasti();
    }

    [[nodiscard]] NumeroGiorno Data() const { return data_; }
    [[nodiscard]] Centesimi Ora() const { return ora_; }

    void GuardaPasti() {
        cenaFatta_ = ora_ > p_.oraCena;
        pranzoFatto_ = ora_ > p_.oraPranzo;
    }

    void Guida(Centesimi tempo) { ora_ -= tempo; }

    void PastiENotti() {
        bool mosso = true;
        for (int giro = 0; mosso && giro < kMassimoGiri; ++giro) {
            mosso = Pasto(p_.oraCena, p_.durataCena, cenaFatta_);
            mosso = Pasto(p_.oraPranzo, p_.durataPranzo, pranzoFatto_) || mosso;
            mosso = Notte() || mosso;
        }
    }

  private:
    bool Pasto(Centesimi pasto, Centesimi durata, bool& fatto) {
        if (!fatto || ora_ >= pasto + durata) return false;
        ora_ -= durata;
        fatto = false;
        return true;
    }

    bool Notte() {
        if (ora_ >= p_.oraColazione) return false;
        ora_ = p_.oraNotte - (p_.oraColazione - ora_);
        data_ += -1;
        cenaFatta_ = true;
        pranzoFatto_ = true;
        return true;
    }

    NumeroGiorno data_;
    Centesimi ora_;
    const ParametriViaggio& p_;
    bool cenaFatta_ = false;
    bool pranzoFatto_ = false;
};

// The driving time as the row shows it, to the minute.
Centesimi TempoMostrato(const RigaCronovia& riga) { return ArrotondaAlMinuto(riga.tempo, kGiornoOrologio); }

// The hour as the row shows it: on the clock of its day, to the minute.
Centesimi OraMostrata(const RigaCronovia& riga) {
    Durata ora = InDurata(riga.ora, kGiornoOrologio);
    ora.giorni = 0;
    return InCentesimi(ora, kGiornoOrologio);
}

void SegnaProsecuzione(std::span<RigaCronovia> righe, OrologioIndietro& orologio) {
    righe.back().limite = LimiteRitorno{true, orologio.Data(), orologio.Ora()};
    bool guidato = false;  // rows below this one were driven
    for (auto riga = righe.rbegin(); riga != righe.rend(); ++riga) {
        const Centesimi tempo = TempoMostrato(*riga);
        if (tempo == 0_cent) continue;
        if (guidato) riga->limite = LimiteRitorno{true, orologio.Data(), orologio.Ora()};
        orologio.Guida(tempo);
        orologio.PastiENotti();
        guidato = true;
    }
}

void SegnaRitorno(std::span<RigaCronovia> righe, OrologioIndietro& orologio) {
    for (RigaCronovia& riga : righe.subspan(1)) {
        const Centesimi tempo = TempoMostrato(riga);
        if (tempo == 0_cent) continue;
        orologio.Guida(tempo);
        if (riga.limite) {
            const NumeroGiorno limite = riga.limite->data;
            if (limite > orologio.Data()) break;
            if (limite == orologio.Data() && orologio.Ora() <= OraMostrata(riga)) break;
        }
        orologio.PastiENotti();
        riga.limite = LimiteRitorno{false, orologio.Data(), orologio.Ora()};
    }
}

}  // namespace

void SegnaRientro(std::span<RigaCronovia> righe, NumeroGiorno data, Centesimi ora, const OrarioCorretto& orario,
                  Progress& progress) {
    if (righe.empty()) return;
    progress.Title(u"Calcolo del rientro rapido (prosecuzione)"_s);
    OrologioIndietro orologio(data, ora, orario);
    SegnaProsecuzione(righe, orologio);
    progress.Title(u"Calcolo del rientro rapido (ritorno)"_s);
    orologio.GuardaPasti();
    SegnaRitorno(righe, orologio);
}

}  // namespace cronovia
