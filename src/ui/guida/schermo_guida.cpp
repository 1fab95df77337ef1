// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/guida/schermo_guida.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <utility>

#include "app/comandi_guida.h"
#include "ui/comuni/controlli.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kCaratteriLocalita = 22;

}  // namespace

SchermoGuida::SchermoGuida(Postazione& postazione, Azioni& azioni, VistaGriglia& griglia, ElencoScelta& elenco,
                           Esegui esegui)
    : postazione_(postazione),
      azioni_(azioni),
      griglia_(griglia),
      elenco_(elenco),
      esegui_(std::move(esegui)),
      riquadro_(new FrmGuida(azioni)) {
    riquadro_->hide();
    Collega();
}

void SchermoGuida::Collega() {
    connect(&griglia_, &VistaGriglia::RigaCorrente, this, [this](int riga) {
        if (!CampiCambiati()) return VaiAllaRiga(riga + 1);
        griglia_.DopoIlMouse([this, riga] {
            VaiAllaRiga(riga + 1);
            if (CampiCambiati() || !griglia_.hasFocus()) Fuoco();
        });
    });
    connect(&griglia_, &QTableView::clicked, this, &SchermoGuida::Fuoco);
    connect(&elenco_, &ElencoScelta::Scelta, this, [this](const QVariant& riga) {
        if (!Tavolo()) return;
        VaiAllaRiga(riga.toInt());
        Fuoco();
    });
    connect(&elenco_, &ElencoScelta::Rinuncia, this, &SchermoGuida::ChiudiElenco);
}

const TavoloGuida* SchermoGuida::Tavolo() const {
    const auto* guida = postazione_.Su<schermata::Guida>();
    return guida == nullptr ? nullptr : guida->tavolo.get();
}

void SchermoGuida::Fuoco() {
    if (!Tavolo()) return;
    CampiCambiati() ? FuocoSulCampoMancante() : riquadro_->FuocoSullaDescrizione();
}

bool SchermoGuida::FuocoDopo(Comando comando, bool appenaAperto) {
    if (!Tavolo() || postazione_.StampaAperta()) return false;
    switch (comando) {
        case Comando::CercaInGuida:
            elenco_.setFocus();
            return true;
        case Comando::SalvaRigaGuida:
        case Comando::CancellaRigaGuida:
        case Comando::FineGuida:
        case Comando::RinunciaStampaGuida:
        case Comando::AvviaStampa:
            Fuoco();
            return true;
        default:
            if (appenaAperto) Fuoco();
            return appenaAperto;
    }
}

void SchermoGuida::FuocoSulCampoMancante() {
    const auto difetto = DifettoDellaVoce(Tavolo()->Tipi(), riquadro_->Campi());
    riquadro_->FuocoSulCampo(difetto ? difetto->campo : guida::Descrizione);
}

void SchermoGuida::VaiAllaRiga(int riga) {
    if (Tavolo()) esegui_([&] { comandi::VaiAllaRigaGuida(postazione_, riga); });
}

void SchermoGuida::Raccogli() {
    if (auto* guida = postazione_.Su<schermata::Guida>(); guida != nullptr && mostrato_) {
        guida->tavolo->Scrivi(riquadro_->Campi());
    }
}

bool SchermoGuida::CampiCambiati() const { return mostrato_ && riquadro_->Campi() != mostrato_->campi; }

bool SchermoGuida::Mostra(int righeMinime) {
    const TavoloGuida* tavolo = Tavolo();
    riquadro_->setVisible(tavolo != nullptr);
    if (tavolo == nullptr) {
        mostrato_.reset();
        return false;
    }
    const int cima = griglia_.verticalScrollBar()->value();
    const bool prima = griglia_.model() != &modello_;
    if (modello_.Mostra(tavolo->Elenco(), righeMinime) && !prima) griglia_.verticalScrollBar()->setValue(cima);
    if (prima) griglia_.Mostra(VistaGriglia::Righe::Guida, modello_);
    griglia_.SelezionaRiga(tavolo->RigaCorrente() - 1);
    // What is being typed stays, unless another row has come.
    const bool nuovo = !mostrato_ || mostrato_->riga != tavolo->RigaCorrente() ||
                       mostrato_->elenco != tavolo->Elenco() || tavolo->Scritti() != riquadro_->Campi();
    if (nuovo) {
        riquadro_->MostraTipi(tavolo->Tipi());
        riquadro_->Mostra(tavolo->Corrente().localita, tavolo->Scritti());
        mostrato_ = {tavolo->RigaCorrente(), tavolo->Elenco(), tavolo->Campi()};
    }
    MostraElenco(*tavolo);
    Abilita();
    return true;
}

// Beside a list to choose from, and beside the choices of the printout, nothing else can be used.
void SchermoGuida::Abilita() {
    const bool libero = !ConElenco() && !postazione_.StampaAperta();
    griglia_.setEnabled(libero);
    Blocca(*riquadro_, !libero);
}

// The localities are listed over it.
bool SchermoGuida::ConElenco() const {
    const auto* guida = postazione_.Su<schermata::Guida>();
    return guida != nullptr && guida->elencoLocalita;
}

void SchermoGuida::MostraElenco(const TavoloGuida& tavolo) {
    elenco_.Mostra(ConElenco(), [&] {
        std::vector<VoceScelta> voci;
        int numero = 0;
        for (const RigaGuida& riga : *tavolo.Elenco()) {
            ++numero;
            if (riga.voce) continue;
            const bool corrente = riga.localita == tavolo.Corrente().localita;
            voci.push_back(VoceLocalita(riga.localita, kCaratteriLocalita, numero, corrente));
        }
        return voci;
    });
}

void SchermoGuida::ChiudiElenco() {
    if (!Tavolo()) return;
    esegui_([this] { comandi::ChiudiElencoGuida(postazione_); });
    riquadro_->FuocoSullaDescrizione();
}

// Enter saves what was typed and leaves otherwise; Escape goes back one step.
bool SchermoGuida::Tasto(const QKeyEvent& tasto) {
    const TavoloGuida* tavolo = Tavolo();
    if (tavolo == nullptr) return false;
    const bool invio = tasto.key() == Qt::Key_Return || tasto.key() == Qt::Key_Enter;
    const bool esc = tasto.key() == Qt::Key_Escape;
    if (!invio && !esc) return false;
    if (postazione_.StampaAperta()) return false;
    if (esc && ConElenco()) {
        ChiudiElenco();
    } else if (ConElenco()) {
        return true;
    } else if (auto* pulsante = qobject_cast<QPushButton*>(riquadro_->window()->focusWidget()); invio && pulsante) {
        pulsante->click();
    } else if (invio && !riquadro_->isAncestorOf(riquadro_->window()->focusWidget())) {
        riquadro_->FuocoSullaDescrizione();  // in the grid, or in a field of the trip
    } else if (invio && CampiCambiati()) {
        azioni_.Pulsante(Comando::SalvaRigaGuida).click();
    } else if (esc && CampiCambiati()) {
        VaiAllaRiga(tavolo->RigaCorrente());
        Fuoco();
    } else {
        azioni_.Pulsante(Comando::FineGuida).click();
    }
    return true;
}

}  // namespace cronovia
