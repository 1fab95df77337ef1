// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/orologio_indietro.h"

namespace cronovia {

namespace {

// More rounds than this find no rest: a timetable whose meals leave no time for driving.
constexpr int kMassimoGiri = 8;

}  // namespace

OrologioIndietro::OrologioIndietro(Istante da, const OrarioCorretto& orario) : ora_(da), p_(orario.Parametri()) {
    GuardaPasti();
}

void OrologioIndietro::GuardaPasti() {
    cenaFatta_ = ora_.ora > p_.oraCena;
    pranzoFatto_ = ora_.ora > p_.oraPranzo;
}

void OrologioIndietro::PastiENotti() {
    bool mosso = true;
    for (int giro = 0; mosso && giro < kMassimoGiri; ++giro) {
        mosso = Pasto(p_.oraCena, p_.durataCena, cenaFatta_);
        mosso = Pasto(p_.oraPranzo, p_.durataPranzo, pranzoFatto_) || mosso;
        mosso = Notte() || mosso;
    }
}

bool OrologioIndietro::Pasto(Centesimi pasto, Centesimi durata, bool& fatto) {
    if (!fatto || ora_.ora >= pasto + durata) return false;
    ora_.ora -= durata;
    fatto = false;
    return true;
}

bool OrologioIndietro::Notte() {
    if (ora_.ora >= p_.oraColazione) return false;
    ora_.ora = p_.oraNotte - (p_.oraColazione - ora_.ora);
    ora_.data += -1;
    cenaFatta_ = true;
    pranzoFatto_ = true;
    return true;
}

void OrologioIndietro::Salpa(const TraghettoAOrario& traghetto) {
    const Istante ultima = ora_ + (0_cent - traghetto.Navigazione());
    Istante partenza = traghetto.Partenza().Il(ultima.data);
    if (partenza > ultima) {
        partenza.data += -1;
        if (traghetto.Partenza().Data()) partenza = ultima;
    }
    AlMolo(partenza + (0_cent - traghetto.Imbarco()));
}

void OrologioIndietro::Attraversa(const TraghettoAOrario& traghetto) {
    AlMolo(ora_ + (0_cent - traghetto.Navigazione() - traghetto.Imbarco()));
}

// Nobody drives to the quay by night: one is there the evening before.
void OrologioIndietro::AlMolo(Istante entro) {
    ora_ = entro;
    if (ora_.ora < p_.oraColazione) ora_ = {ora_.data - 1, p_.oraNotte};
    if (ora_.ora > p_.oraNotte) ora_.ora = p_.oraNotte;
    GuardaPasti();
}

}  // namespace cronovia
