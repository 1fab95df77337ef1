// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/copia/schermo_copia.h"

#include <utility>

#include "app/comandi_copia.h"

namespace cronovia {

SchermoCopia::SchermoCopia(Postazione& postazione, Azioni& azioni, QWidget& inserimento, Esegui esegui)
    : postazione_(postazione),
      azioni_(azioni),
      inserimento_(inserimento),
      esegui_(std::move(esegui)),
      lista_(new FrmLista),
      tratto_(new FrmTratto(azioni)) {
    lista_->hide();
    tratto_->hide();
    Collega();
}

void SchermoCopia::Collega() {
    connect(lista_, &FrmLista::Cliccata, this, [this](int riga) {
        const auto* copia = postazione_.Su<schermata::Copia>();
        if (copia != nullptr && !copia->tavolo.Tappe()) Scegli(riga);
    });
    connect(lista_, &FrmLista::Corrente, this,
            [this](int riga) { Comanda([riga](TavoloCopia& copia) { copia.SelezionaRiga(riga); }); });
}

bool SchermoCopia::FuocoDopo(Comando comando, bool appenaAperto) {
    const bool assegna = comando == Comando::AssegnaInizio || comando == Comando::AssegnaFine;
    if (!postazione_.Su<schermata::Copia>() || !(appenaAperto || assegna)) return false;
    lista_->Fuoco();
    return true;
}

void SchermoCopia::Comanda(const std::function<void(TavoloCopia&)>& comando) {
    if (postazione_.Su<schermata::Copia>()) esegui_([&] { comandi::SullaCopia(postazione_, comando); });
}

void SchermoCopia::Raccogli() {
    if (auto* copia = postazione_.Su<schermata::Copia>()) copia->conSoste = tratto_->ConSoste();
}

void SchermoCopia::Scegli(int riga) {
    Comanda([riga](TavoloCopia& copia) { copia.ScegliMeta(riga); });
    lista_->Fuoco();
}

void SchermoCopia::Mostra() {
    const auto* copia = postazione_.Su<schermata::Copia>();
    const bool tratto = copia != nullptr && copia->tavolo.Tappe();
    if (copia != nullptr) {
        lista_->Mostra(copia->tavolo);
        tratto_->Mostra(copia->tavolo);
    } else {
        tratto_->Azzera();  // for the next time
    }
    lista_->setVisible(copia != nullptr);
    tratto_->setVisible(tratto);
    inserimento_.setVisible(postazione_.InInserimento() && !tratto);
    inserimento_.setEnabled(!tratto);
}

// Enter chooses the trip that the keyboard is on, Escape closes the lists.
bool SchermoCopia::Tasto(const QKeyEvent& tasto) {
    const auto* copia = postazione_.Su<schermata::Copia>();
    if (copia == nullptr) return false;
    if (tasto.key() == Qt::Key_Escape) {
        azioni_.Di(Comando::RinunciaCopia).trigger();
        return true;
    }
    const bool invio = tasto.key() == Qt::Key_Return || tasto.key() == Qt::Key_Enter;
    if (!invio || !lista_->ConFuoco()) return false;
    if (!copia->tavolo.Tappe()) Scegli(lista_->Riga());
    return true;
}

}  // namespace cronovia
