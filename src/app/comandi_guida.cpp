#include "app/comandi_guida.h"

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

void FineGuida(Postazione& p) {
    p.Prova([&] { p.VaiAlViaggio(); });
}

}  // namespace cronovia::comandi
