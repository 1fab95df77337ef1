// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/inserimento/schermo_inserimento.h"

#include "app/comandi_inserimento.h"
#include "calendar/testo.h"
#include "itinerary/suggerimenti.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kColonneLocalita = 31;

}  // namespace

SchermoInserimento::SchermoInserimento(Postazione& postazione, Azioni& azioni, ElencoScelta& elenco, Esegui esegui)
    : postazione_(postazione),
      elenco_(elenco),
      esegui_(std::move(esegui)),
      riquadro_(new FrmInputBox(azioni)),
      area_(new QScrollArea) {
    area_->setWidget(riquadro_);
    area_->setWidgetResizable(true);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area_->setMinimumWidth(riquadro_->minimumSizeHint().width() + 20);
    area_->setObjectName(u"areaInserimento"_s);
    connect(riquadro_, &FrmInputBox::Cambiata, this, &SchermoInserimento::MostraSuggerimenti);
    connect(&elenco_, &ElencoScelta::Scelta, this, [this](QListWidgetItem* voce) {
        if (!postazione_.Su<schermata::Inserimento>()) return;
        esegui_([&] { comandi::ScegliTappa(postazione_, voce->data(Qt::UserRole).toInt()); });
        FuocoSullaTappa();
    });
}

void SchermoInserimento::Raccogli() {
    auto* inserimento = postazione_.Su<schermata::Inserimento>();
    if (inserimento == nullptr) return;
    inserimento->campi = riquadro_->Campi();
    MostraSuggerimenti();  // a speed may be another one
}

// What is being typed stays, unless another stage has come into its row.
void SchermoInserimento::Mostra() {
    const auto* inserimento = postazione_.Su<schermata::Inserimento>();
    MostraElenco(inserimento != nullptr && inserimento->elencoTappe);
    if (!postazione_.InInserimento()) {
        mostrati_.reset();
        return;
    }
    Mostrati adesso{postazione_.documento.RigaCorrente(), postazione_.documento.CampiCorrenti(),
                    comandi::KmProgressivi(postazione_)};
    const bool stessaRiga = mostrati_ && mostrati_->riga == adesso.riga && mostrati_->campi == adesso.campi;
    const bool appenaAperto = inserimento != nullptr && !mostrati_;
    if (!stessaRiga) riquadro_->Mostra(adesso.riga, appenaAperto ? inserimento->campi : adesso.campi);
    if (!stessaRiga || mostrati_->progressivi != adesso.progressivi) {
        riquadro_->MostraKmProgressivi(adesso.progressivi);
    }
    mostrati_ = std::move(adesso);
    MostraSuggerimenti();
}

void SchermoInserimento::MostraElenco(bool aperto) {
    if (postazione_.Su<schermata::Guida>()) return;  // it has the list
    if (aperto && !elenco_.isVisible()) {
        elenco_.clear();
        const RigheItinerario& righe = postazione_.documento.Righe();
        for (std::size_t i = 0; i < righe.size(); ++i) {
            if (righe[i].localita.isEmpty()) continue;
            const auto riga = static_cast<int>(i) + 1;
            auto* voce = new QListWidgetItem(
                RiempiDopo(Visibile(righe[i].localita), kColonneLocalita, u' ') + Zero(riga, 4), &elenco_);
            voce->setData(Qt::UserRole, riga);
            if (riga == postazione_.documento.RigaCorrente()) elenco_.setCurrentItem(voce);
        }
    }
    elenco_.setVisible(aperto);
}

void SchermoInserimento::MostraSuggerimenti() {
    const Documento& documento = postazione_.documento;
    CampiTappa campi = riquadro_->Campi();
    campi.km = comandi::KmInseriti(postazione_, campi);
    QStringList testi;
    for (const Suggerimento suggerimento : SuggerimentiTappa(
             campi, documento.RigaCorrente(), documento.Campi().parametri, documento.Riepilogo().guidaGiorno)) {
        testi += Testo(suggerimento);
    }
    riquadro_->MostraSuggerimenti(testi.join(u'\n'));
}

// A refused stage is put right where the refusal said.
void SchermoInserimento::FuocoDopoInserisce() {
    const auto* inserimento = postazione_.Su<schermata::Inserimento>();
    const bool rifiutata = inserimento != nullptr && !inserimento->appenaInserita;
    if (rifiutata && !inserimento->campi.localita.isEmpty()) return riquadro_->FuocoSuiKm();
    FuocoSullaTappa();
}

void SchermoInserimento::FuocoSullaTappa() {
    if (postazione_.InInserimento()) riquadro_->FuocoSullaTappa();
}

}  // namespace cronovia
