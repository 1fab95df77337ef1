// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_copia.h"

#include <algorithm>
#include <utility>

#include "app/comandi_inserimento.h"
#include "app/niente_perso.h"

namespace cronovia::comandi {

using namespace Qt::StringLiterals;

void Duplica(Postazione& p) {
    if (!TappaNonPersa(p)) return;
    const RigheItinerario& righe = p.documento.Righe();
    int riga = std::min(p.documento.RigaCorrente(), NumeroTappe(righe));
    while (riga > 1 && righe[static_cast<std::size_t>(riga - 1)].localita.isEmpty()) --riga;
    SelezionaRiga(p, riga);
    p.Prova([&] {
        TavoloCopia tavolo(p.sessione);
        const auto* inserimento = p.Su<schermata::Inserimento>();
        p.schermata = schermata::Copia{std::move(tavolo), inserimento ? *inserimento : schermata::Inserimento()};
    });
}

void SullaCopia(Postazione& p, const std::function<void(TavoloCopia&)>& comando) {
    auto* copia = p.Su<schermata::Copia>();
    if (copia == nullptr) return;
    p.Prova([&] { comando(copia->tavolo); });
    if (copia->tavolo.Mete().empty()) RinunciaDuplicaItinerario(p);
}

void AssegnaInizio(Postazione& p) {
    SullaCopia(p, [](TavoloCopia& tavolo) { tavolo.Assegna(0); });
}

void AssegnaFine(Postazione& p) {
    SullaCopia(p, [](TavoloCopia& tavolo) { tavolo.Assegna(1); });
}

void InserisciTratto(Postazione& p) {
    auto* copia = p.Su<schermata::Copia>();
    const std::optional<Tratto> tratto = copia ? copia->tavolo.Scelto() : std::nullopt;
    if (!tratto || !BoxConferma(p.volti.interazione, Operazione::InserimentoTratto)) return;
    ItinerarioConTratto esito =
        CopiaTratto(p.documento.Righe(), p.documento.RigaCorrente(), *copia->tavolo.Tappe(), *tratto, copia->conSoste);
    if (!Modifica(p, u"copia di un percorso"_s, std::move(esito.righe), esito.rigaCorrente)) return;
    p.schermata = NuovoInserimento(p.documento);
}

void RinunciaDuplicaItinerario(Postazione& p) {
    if (auto* copia = p.Su<schermata::Copia>()) p.schermata = schermata::Inserimento{copia->da};
}

}  // namespace cronovia::comandi
