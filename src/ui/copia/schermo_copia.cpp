#include "ui/copia/schermo_copia.h"

#include <QKeyEvent>
#include <utility>

namespace cronovia {

SchermoCopia::SchermoCopia(Scrivania& scrivania, QWidget& inserimento, Esegui esegui)
    : scrivania_(scrivania),
      inserimento_(inserimento),
      esegui_(std::move(esegui)),
      lista_(new FrmLista),
      percorso_(new FrmPercorso) {
    lista_->hide();
    percorso_->hide();
    Collega();
}

void SchermoCopia::Collega() {
    connect(lista_, &FrmLista::Cliccata, this, [this](int riga) {
        if (scrivania_.Copia() && !scrivania_.Copia()->Tappe()) Scegli(riga);
    });
    connect(lista_, &FrmLista::Corrente, this,
            [this](int riga) { Comanda([riga](CopiaPercorso& copia) { copia.SelezionaRiga(riga); }); });
    connect(percorso_, &FrmPercorso::Assegna, this, [this](int estremo) {
        Comanda([estremo](CopiaPercorso& copia) { copia.Assegna(static_cast<std::size_t>(estremo)); });
        lista_->Fuoco();
    });
    connect(percorso_, &FrmPercorso::Esegui, this,
            [this] { Chiude([this] { scrivania_.InserisciPercorso(percorso_->ConSoste()); }); });
    connect(percorso_, &FrmPercorso::Rinuncia, this,
            [this] { Chiude([this] { scrivania_.RinunciaDuplicaItinerario(); }); });
}

void SchermoCopia::Apri() {
    percorso_->Azzera();
    esegui_([this] { scrivania_.Duplica(); });
    if (scrivania_.Copia()) lista_->Fuoco();
}

void SchermoCopia::Comanda(const std::function<void(CopiaPercorso&)>& comando) {
    if (scrivania_.Copia()) esegui_([&] { scrivania_.SullaCopia(comando); });
}

// A command that may close the lists.
void SchermoCopia::Chiude(const std::function<void()>& comando) {
    esegui_(comando);
    if (!scrivania_.Copia()) Q_EMIT Chiusa();
}

void SchermoCopia::Scegli(int riga) {
    Comanda([riga](CopiaPercorso& copia) { copia.ScegliMeta(riga); });
    lista_->Fuoco();
}

void SchermoCopia::Mostra() {
    const std::optional<CopiaPercorso>& copia = scrivania_.Copia();
    const bool tratto = copia && copia->Tappe();
    if (copia) {
        lista_->Mostra(*copia);
        percorso_->Mostra(*copia);
    }
    lista_->setVisible(copia.has_value());
    percorso_->setVisible(tratto);
    inserimento_.setVisible(scrivania_.InserimentoVisibile() && !tratto);
    inserimento_.setEnabled(!tratto);
}

// Enter chooses the trip that the keyboard is on, Escape closes the lists.
bool SchermoCopia::Tasto(const QKeyEvent& tasto) {
    const std::optional<CopiaPercorso>& copia = scrivania_.Copia();
    if (!copia) return false;
    if (tasto.key() == Qt::Key_Escape) {
        Chiude([this] { scrivania_.RinunciaDuplicaItinerario(); });
        return true;
    }
    const bool invio = tasto.key() == Qt::Key_Return || tasto.key() == Qt::Key_Enter;
    if (!invio || !lista_->ConFuoco()) return false;
    if (!copia->Tappe()) Scegli(lista_->Riga());
    return true;
}

}  // namespace cronovia
