// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/scambio/schermo_scambio.h"

#include <utility>

#include "app/comandi_scambio.h"

namespace cronovia {

SchermoScambio::SchermoScambio(Postazione& postazione, Azioni& azioni, Esegui esegui)
    : postazione_(postazione), esegui_(std::move(esegui)), riquadro_(new FrmExport(azioni)) {
    connect(riquadro_, &FrmExport::Trasferisce, this, [this](int griglia, int riga) {
        esegui_([&] {
            comandi::SulloScambio(postazione_, [&](TavoloScambio& tavolo) { tavolo.TrasferisceMeta(griglia, riga); });
        });
    });
}

void SchermoScambio::Mostra() {
    const auto* scambio = postazione_.Su<schermata::Scambio>();
    if (scambio != nullptr) riquadro_->Mostra(scambio->tavolo, postazione_.InCorsa());
    riquadro_->setVisible(scambio != nullptr);
}

bool SchermoScambio::FuocoDopo(Comando /*comando*/, bool appenaAperto) {
    if (!appenaAperto || !postazione_.Su<schermata::Scambio>()) return false;
    Fuoco();
    return true;
}

void SchermoScambio::Fuoco() {
    if (const auto* scambio = postazione_.Su<schermata::Scambio>()) {
        riquadro_->FuocoSullaScelta(scambio->tavolo.Modo());
    }
}

}  // namespace cronovia
