#include "ui/scambio/schermo_scambio.h"

#include <utility>

#include "app/comandi_scambio.h"

namespace cronovia {

SchermoScambio::SchermoScambio(Postazione& postazione, Esegui esegui)
    : postazione_(postazione), esegui_(std::move(esegui)), riquadro_(new FrmExport) {
    const auto comanda = [this](const std::function<void(TavoloScambio&)>& comando) {
        esegui_([&] { comandi::SulloScambio(postazione_, comando); });
    };
    connect(riquadro_, &FrmExport::Trasferisce, this, [comanda](int griglia, int riga) {
        comanda([&](TavoloScambio& tavolo) { tavolo.TrasferisceMeta(griglia, riga); });
    });
    connect(riquadro_, &FrmExport::TrasferisceTutte, this,
            [comanda](int griglia) { comanda([&](TavoloScambio& tavolo) { tavolo.TrasferisceTutte(griglia); }); });
    connect(riquadro_, &FrmExport::ImExp, this, [this] {
        esegui_([this] { comandi::ImExp(postazione_); });
        if (!postazione_.Su<schermata::Scambio>()) Q_EMIT Chiuso();
    });
    connect(riquadro_, &FrmExport::Fine, this, [this] {
        esegui_([this] { comandi::FineScambio(postazione_); });
        Q_EMIT Chiuso();
    });
}

void SchermoScambio::Mostra() {
    const auto* scambio = postazione_.Su<schermata::Scambio>();
    if (scambio != nullptr) riquadro_->Mostra(scambio->tavolo, postazione_.InCorsa());
    riquadro_->setVisible(scambio != nullptr);
}

void SchermoScambio::Fuoco() {
    if (const auto* scambio = postazione_.Su<schermata::Scambio>()) {
        riquadro_->FuocoSullaScelta(scambio->tavolo.Modo());
    }
}

}  // namespace cronovia
