#include "ui/copia/schermo_copia.h"

#include <QKeyEvent>
#include <utility>

#include "app/comandi_copia.h"

namespace cronovia {

SchermoCopia::SchermoCopia(Postazione& postazione, QWidget& inserimento, Esegui esegui)
    : postazione_(postazione),
      inserimento_(inserimento),
      esegui_(std::move(esegui)),
      lista_(new FrmLista),
      tratto_(new FrmTratto) {
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
    connect(tratto_, &FrmTratto::Assegna, this, [this](int estremo) {
        Comanda([estremo](TavoloCopia& copia) { copia.Assegna(static_cast<std::size_t>(estremo)); });
        lista_->Fuoco();
    });
    connect(tratto_, &FrmTratto::Esegui, this,
            [this] { Chiude([this] { comandi::InserisciTratto(postazione_, tratto_->ConSoste()); }); });
    connect(tratto_, &FrmTratto::Rinuncia, this,
            [this] { Chiude([this] { comandi::RinunciaDuplicaItinerario(postazione_); }); });
}

void SchermoCopia::Fuoco() {
    if (aperto_) lista_->Fuoco();
}

void SchermoCopia::Comanda(const std::function<void(TavoloCopia&)>& comando) {
    if (aperto_) esegui_([&] { comandi::SullaCopia(postazione_, comando); });
}

// A command that may close the lists.
void SchermoCopia::Chiude(const std::function<void()>& comando) {
    esegui_(comando);
    if (!aperto_) Q_EMIT Chiusa();
}

void SchermoCopia::Scegli(int riga) {
    Comanda([riga](TavoloCopia& copia) { copia.ScegliMeta(riga); });
    lista_->Fuoco();
}

void SchermoCopia::Mostra() {
    const auto* copia = postazione_.Su<schermata::Copia>();
    const bool tratto = copia != nullptr && copia->tavolo.Tappe();
    if (copia != nullptr) {
        if (!aperto_) tratto_->Azzera();
        lista_->Mostra(copia->tavolo);
        tratto_->Mostra(copia->tavolo);
    }
    aperto_ = copia != nullptr;
    lista_->setVisible(aperto_);
    tratto_->setVisible(tratto);
    inserimento_.setVisible(postazione_.InInserimento() && !tratto);
    inserimento_.setEnabled(!tratto);
}

// Enter chooses the trip that the keyboard is on, Escape closes the lists.
bool SchermoCopia::Tasto(const QKeyEvent& tasto) {
    const auto* copia = postazione_.Su<schermata::Copia>();
    if (copia == nullptr) return false;
    if (tasto.key() == Qt::Key_Escape) {
        Chiude([this] { comandi::RinunciaDuplicaItinerario(postazione_); });
        return true;
    }
    const bool invio = tasto.key() == Qt::Key_Return || tasto.key() == Qt::Key_Enter;
    if (!invio || !lista_->ConFuoco()) return false;
    if (!copia->tavolo.Tappe()) Scegli(lista_->Riga());
    return true;
}

}  // namespace cronovia
