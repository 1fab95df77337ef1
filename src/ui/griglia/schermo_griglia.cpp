#include "ui/griglia/schermo_griglia.h"

#include <utility>

#include "app/comandi_inserimento.h"

namespace cronovia {

SchermoGriglia::SchermoGriglia(Postazione& postazione, Esegui esegui)
    : postazione_(postazione), esegui_(std::move(esegui)), vista_(new VistaGriglia) {
    vista_->setContextMenuPolicy(Qt::ActionsContextMenu);
    vista_->setModel(&modello_);
    Collega();
}

void SchermoGriglia::Collega() {
    connect(vista_, &VistaGriglia::Spostamento, this, [this](int righe) {
        esegui_([&] { comandi::SelezionaRiga(postazione_, postazione_.documento.RigaCorrente() + righe); });
        vista_->setFocus();
    });
    // However a row became the current one, commands act on it.
    connect(vista_, &VistaGriglia::RigaCorrente, this, [this](int riga) {
        if (postazione_.documento.Calcolata() || postazione_.Su<schermata::Guida>()) return;
        esegui_([&] { comandi::SelezionaRiga(postazione_, riga + 1); });
    });
}

void SchermoGriglia::Mostra() {
    const Documento& documento = postazione_.documento;
    const auto& cronovia = documento.Calcolata();
    vista_->MostraTappe(modello_);
    if (cronovia && !cronoviaInGriglia_) {
        modello_.MostraCronovia(*cronovia);
        DistendiGuida();
        vista_->SelezionaRiga(0);
    } else if (!cronovia) {
        vista_->clearSpans();
        modello_.MostraItinerario(documento.Righe(), documento.Riepilogo(), kRigheMinimeGriglia);
    }
    cronoviaInGriglia_ = cronovia.has_value();
    vista_->NascondiColonna(static_cast<int>(Colonna::Guida), cronovia.has_value());
    vista_->ImpostaSelezione(!cronovia);
    if (!cronovia) vista_->SelezionaRiga(documento.RigaCorrente() - 1);
    const auto* inserimento = postazione_.Su<schermata::Inserimento>();
    const bool conElenco =
        postazione_.Su<schermata::ElencoMete>() || (inserimento != nullptr && inserimento->elencoTappe);
    vista_->setEnabled(!conElenco && !postazione_.InCorsa());
}

// Guide entries have long texts and no road: theirs runs over the columns of the road.
void SchermoGriglia::DistendiGuida() {
    constexpr int kPrima = static_cast<int>(Colonna::Tappa);
    constexpr int kColonneDistese = static_cast<int>(Colonna::Sosta) - kPrima;
    vista_->clearSpans();
    for (int riga = 0; riga < modello_.rowCount(); ++riga) {
        if (modello_.SegnoDellaRiga(riga) == Segno::Guida) vista_->setSpan(riga, kPrima, 1, kColonneDistese);
    }
}

}  // namespace cronovia
