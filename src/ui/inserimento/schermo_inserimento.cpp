// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/inserimento/schermo_inserimento.h"

#include <QShortcut>
#include <algorithm>

#include "app/comandi_inserimento.h"
#include "interaction/failure.h"
#include "itinerary/posizioni.h"
#include "itinerary/suggerimenti.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kColonneLocalita = 31;
constexpr int kProposte = 8;

// What only helps with typing is left out when the archive cannot be read: commands will tell.
template <typename Cerca>
auto SenzaFallire(Cerca&& cerca) -> decltype(cerca()) {
    try {
        return cerca();
    } catch (const Failure&) {
        return {};
    }
}

}  // namespace

SchermoInserimento::SchermoInserimento(Postazione& postazione, Azioni& azioni, VistaGriglia& griglia,
                                       ElencoScelta& elenco, Esegui esegui)
    : postazione_(postazione),
      azioni_(azioni),
      griglia_(griglia),
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
    proposte_ = new ProposteNomi(riquadro_->CasellaTappa(), *area_, [this](const QString& inizio) {
        return postazione_.InInserimento() ? SenzaFallire([&] {
            return postazione_.luoghi.Proposte(postazione_.sessione.Archivio(), postazione_.documento, inizio,
                                               kProposte);
        })
                                           : std::vector<PropostaNome>();
    });
    Collega();
}

void SchermoInserimento::Collega() {
    connect(riquadro_, &FrmInputBox::Cambiata, this, &SchermoInserimento::Raccogli);
    connect(&griglia_, &QTableView::clicked, this, &SchermoInserimento::FuocoSullaTappa);
    connect(&elenco_, &ElencoScelta::Scelta, this, [this](const QVariant& riga) {
        if (!postazione_.Su<schermata::Inserimento>()) return;
        esegui_([&] { comandi::ScegliTappa(postazione_, riga.toInt()); });
        FuocoSullaTappa();
    });
    connect(&elenco_, &ElencoScelta::Rinuncia, this, &SchermoInserimento::ChiudiElenco);
    SpostaDalNome();
}

// A click on a row leads to its name: from there too the row is moved, while nothing is typed.
void SchermoInserimento::SpostaDalNome() {
    for (const Comando comando : {Comando::SpostaSu, Comando::SpostaGiu}) {
        auto* tasto = new QShortcut(TastoDi(comando), &riquadro_->CasellaTappa());
        tasto->setContext(Qt::WidgetShortcut);
        connect(tasto, &QShortcut::activated, this, [this, comando] {
            const schermata::Inserimento* tappa = postazione_.TappaInScrittura();
            if (tappa != nullptr && tappa->campi == tappa->letti) azioni_.Di(comando).trigger();
        });
    }
}

void SchermoInserimento::Raccogli() {
    if (!postazione_.InInserimento()) return;
    postazione_.TappaInScrittura()->campi = riquadro_->Campi();
    MostraSuggerimenti();
}

void SchermoInserimento::Mostra() {
    MostraElenco();
    auto* inserimento = postazione_.InInserimento() ? postazione_.TappaInScrittura() : nullptr;
    if (inserimento == nullptr) return riquadro_->Mostra(0, {}, {});
    const bool intatti = inserimento->campi == inserimento->letti;
    riquadro_->Mostra(inserimento->riga, inserimento->campi, comandi::KmProgressivi(postazione_));
    inserimento->campi = riquadro_->Campi();
    if (intatti) inserimento->letti = inserimento->campi;
    MostraSuggerimenti();
}

void SchermoInserimento::MostraElenco() {
    if (postazione_.Su<schermata::Guida>()) return;  // it has the list
    const auto* inserimento = postazione_.Su<schermata::Inserimento>();
    elenco_.Mostra(inserimento != nullptr && inserimento->elencoTappe, [this] {
        std::vector<VoceScelta> voci;
        int riga = 0;
        for (const Tappa& tappa : postazione_.documento.Righe()) {
            ++riga;
            if (tappa.localita.isEmpty()) continue;
            const bool corrente = riga == postazione_.documento.RigaCorrente();
            voci.push_back(VoceLocalita(tappa.localita, kColonneLocalita, riga, corrente));
        }
        return voci;
    });
}

void SchermoInserimento::ChiudiElenco() {
    const auto* inserimento = postazione_.Su<schermata::Inserimento>();
    if (inserimento != nullptr && inserimento->elencoTappe) esegui_([this] { comandi::Fine(postazione_); });
}

void SchermoInserimento::MostraSuggerimenti() {
    if (!postazione_.InInserimento()) return;
    const Documento& documento = postazione_.documento;
    CampiTappa campi = riquadro_->Campi();
    const int digitati = campi.km;
    campi.km = comandi::KmInseriti(postazione_, campi);
    const auto posto = static_cast<std::size_t>(documento.RigaCorrente() - 1);
    const bool aOrario = posto < documento.Righe().size() && documento.Righe()[posto].vincoli.ConTraghetto();
    QStringList testi;
    if (const QString tratta = SuggerimentoProgressivi(digitati, campi.km); !tratta.isEmpty()) testi += tratta;
    for (const Suggerimento suggerimento : SuggerimentiTappa(
             campi, documento.RigaCorrente(), documento.Campi().parametri, documento.Riepilogo().guidaGiorno)) {
        const bool falso = aOrario && suggerimento == Suggerimento::TraghettoSenzaTempo;  // it has hours of its own
        if (!falso) testi += Testo(suggerimento);
    }
    const std::optional<double> diretta = Diretta(campi.localita);
    const bool traghetto = campi.numStrada.contains("TRAGH"_L1);
    riquadro_->MostraStima(diretta && !traghetto ? std::optional(KmStimati(*diretta, campi.tipo)) : std::nullopt);
    const QString distanza = diretta ? SuggerimentoDistanza(campi, *diretta) : QString();
    if (!distanza.isEmpty()) testi += distanza;
    if (riquadro_->KmStimati()) testi += u"Distanza stimata dalla linea d'aria: meglio controllarla."_s;
    riquadro_->MostraSuggerimenti(testi.join(u'\n'));
}

// From the stage above; asked anew when another place stands there, or in the field, or the archive was written to.
std::optional<double> SchermoInserimento::Diretta(const QString& localita) {
    const Documento& documento = postazione_.documento;
    const int riga = documento.RigaCorrente();
    const auto sopra = static_cast<std::size_t>(std::max(0, riga - 2));
    const QString da = riga > 1 && sopra < documento.Righe().size() ? documento.Righe()[sopra].localita : QString();
    const auto scritture = postazione_.sessione.Archivio().OwnChanges();
    if (da != diretta_.da || localita != diretta_.a || scritture != diretta_.scritture) {
        diretta_ = {da, localita, scritture, std::nullopt};
        diretta_.km = SenzaFallire(
            [&] { return postazione_.luoghi.Diretta(postazione_.sessione.Archivio(), documento, riga, localita); });
    }
    return diretta_.km;
}

bool SchermoInserimento::FuocoDopo(Comando comando, bool appenaAperto) {
    const auto* inserimento = postazione_.Su<schermata::Inserimento>();
    if (inserimento == nullptr) return false;
    switch (comando) {
        case Comando::Cerca:
            elenco_.setFocus();
            return true;
        case Comando::Inserisce:
            FuocoDopoInserisce();
            return true;
        case Comando::Itinerario:
        case Comando::Aggiunge:
        case Comando::Cancella:
        case Comando::Ritorno:
        case Comando::AltriPacchetti:
        case Comando::ImportaTratto:
        case Comando::Fine:
            FuocoSullaTappa();
            return true;
        default:
            if (appenaAperto) FuocoSullaTappa();
            return appenaAperto;
    }
}

// Enter writes the stage, unless it presses a button; Escape closes the list of places.
bool SchermoInserimento::Tasto(const QKeyEvent& tasto) {
    const auto* inserimento = postazione_.Su<schermata::Inserimento>();
    if (inserimento == nullptr) return false;
    if (tasto.key() == Qt::Key_Escape && inserimento->elencoTappe) {
        ChiudiElenco();
        return true;
    }
    const QWidget* fuoco = area_->window()->focusWidget();
    const bool invio = tasto.key() == Qt::Key_Return || tasto.key() == Qt::Key_Enter;
    const bool sullaTappa = area_->isAncestorOf(fuoco) || fuoco == &griglia_;
    if (!invio || !sullaTappa || qobject_cast<const QPushButton*>(fuoco) != nullptr) return false;
    azioni_.Pulsante(Comando::Inserisce).click();
    return true;
}

// A refused stage is put right where the refusal said.
void SchermoInserimento::FuocoDopoInserisce() {
    const auto* inserimento = postazione_.Su<schermata::Inserimento>();
    const bool rifiutata = inserimento != nullptr && !inserimento->appenaInserita;
    if (rifiutata && !inserimento->campi.localita.isEmpty()) return riquadro_->FuocoSuiKm();
    FuocoSullaTappa();
}

// What is being typed and would be refused is put right first.
void SchermoInserimento::FuocoSullaTappa() {
    if (!postazione_.InInserimento()) return;
    const schermata::Inserimento& inserimento = *postazione_.TappaInScrittura();
    CampiTappa campi = inserimento.campi;
    campi.km = comandi::KmInseriti(postazione_, campi);
    const bool conLuogo = inserimento.campi != inserimento.letti && !campi.localita.isEmpty();
    const bool daCorreggere = conLuogo && !ControllaTappa(campi, inserimento.riga).empty();
    daCorreggere ? riquadro_->FuocoSuiKm() : riquadro_->FuocoSullaTappa();
}

}  // namespace cronovia
