// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_guida.h"

#include <algorithm>

#include "app/niente_perso.h"

namespace cronovia::comandi {

void GuidaCitta(Postazione& p) {
    p.Prova([&] {
        if (LocalitaDellItinerario(p.sessione.Archivio(), p.documento.Codice()).nomi.empty()) {
            p.volti.interazione.Show(SenzaTappeMemorizzate());
            return;
        }
        p.schermata = schermata::Guida{std::make_unique<TavoloGuida>(p.sessione.Archivio(), p.volti.interazione,
                                                                     p.documento.Codice(), p.documento.Modifiche())};
    });
}

void SullaGuida(Postazione& p, const std::function<void(TavoloGuida&)>& comando) {
    auto* guida = p.Su<schermata::Guida>();
    if (guida == nullptr) return;
    p.Prova([&] { comando(*guida->tavolo); });
    if (!guida->tavolo->SenzaTappe()) return;
    p.volti.interazione.Show(SenzaTappeMemorizzate());
    FineGuida(p);
}

void VaiAllaRigaGuida(Postazione& p, int riga) {
    auto* guida = p.Su<schermata::Guida>();
    if (guida == nullptr) return;
    TavoloGuida& tavolo = *guida->tavolo;
    const auto ultima = static_cast<int>(tavolo.Elenco()->size());
    const RigaGuida meta = (*tavolo.Elenco())[static_cast<std::size_t>(std::clamp(riga, 1, ultima) - 1)];
    tavolo.ChiudiElenco();
    if (!VoceNonPersa(p)) return;
    SullaGuida(p, [&](TavoloGuida& t) { t.VaiAllaRiga(t.RigaDi(meta)); });
}

void SalvaRigaGuida(Postazione& p) {
    SullaGuida(p, [](TavoloGuida& tavolo) { tavolo.SalvaRiga(tavolo.Scritti()); });
}

void CercaInGuida(Postazione& p) {
    SullaGuida(p, [](TavoloGuida& tavolo) { tavolo.Cerca(); });
}

void StampaGuida(Postazione& p) {
    if (auto* guida = p.Su<schermata::Guida>()) guida->stampa = schermata::PassoStampa::Scelte;
}

void CancellaRigaGuida(Postazione& p) {
    if (VoceNonPersa(p)) SullaGuida(p, [](TavoloGuida& tavolo) { tavolo.CancellaRiga(); });
}

void FineGuida(Postazione& p) {
    if (!VoceNonPersa(p)) return;
    p.Prova([&] {
        if (!p.documento.Modificato()) return p.VaiAlViaggio();
        p.documento.RileggiVisite();  // what is typed in the trip's fields stays
        p.MettiSchermoDelViaggio();
    });
}

}  // namespace cronovia::comandi
