// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viaggio/schermo_viaggio.h"

#include <QHBoxLayout>
#include <utility>

#include "app/comandi_viaggio.h"
#include "calendar/testo.h"
#include "schedule/testi_ore.h"
#include "ui/comuni/controlli.h"
#include "ui/comuni/spazi.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Columns of the list of trips, in characters.
constexpr int kColonneLocalita = 31;
constexpr int kColonneNazione = 19;

QString RigaElenco(const QString& localita, const QString& nazione, const QString& partenza) {
    return RiempiDopo(localita, kColonneLocalita, u' ') + RiempiDopo(nazione, kColonneNazione, u' ') + partenza;
}

QString TestoInElenco(const MetaInElenco& meta) {
    return RigaElenco(Visibile(meta.localita), Visibile(meta.nazione),
                      meta.dataInizio ? TestoData(*meta.dataInizio) : QString());
}

}  // namespace

SchermoViaggio::SchermoViaggio(Postazione& postazione, Azioni& azioni, Esegui esegui)
    : postazione_(postazione),
      esegui_(std::move(esegui)),
      periodo_(new FrmMetePeriodo(postazione.volti.adesso().date().year())),
      velocita_(new FrmMeteVelocita),
      tempi_(new FrmMeteTempi(azioni)),
      cmbRicerca_(new ElencoScelta(u"cmbRicerca"_s, u"Mète memorizzate"_s)) {
    cmbRicerca_->Intesta(RigaElenco(u"Mèta"_s, u"Nazione"_s, u"Partenza"_s));
    auto* layout = Spaziato(new QHBoxLayout(this), Spazi::Riga);
    layout->addWidget(periodo_, 1);
    layout->addWidget(velocita_);
    layout->addWidget(tempi_);
    for (QLineEdit* casella : findChildren<QLineEdit*>()) LasciaAnnullare(*casella);
    Collega();
}

void SchermoViaggio::Collega() {
    connect(periodo_, &FrmMetePeriodo::Cambiata, this, &SchermoViaggio::Cambiata);
    connect(velocita_, &FrmMeteVelocita::Cambiata, this, &SchermoViaggio::Cambiata);
    connect(tempi_, &FrmMeteTempi::Cambiata, this, &SchermoViaggio::Cambiata);
    connect(periodo_, &FrmMetePeriodo::InizioCambiato, this,
            [this] { esegui_([this] { postazione_.documento.CorreggiOrari(); }); });
    connect(periodo_, &FrmMetePeriodo::AnnoRifiutato, this, [this] {
        esegui_([this] { postazione_.Mostra(MessaggioData()); });
        periodo_->FuocoSullAnno();
    });
    connect(tempi_, &FrmMeteTempi::OrarioLasciato, this,
            [this] { esegui_([this] { postazione_.documento.OrdinaOrari(); }); });
    connect(cmbRicerca_, &ElencoScelta::Scelta, this, [this](const QVariant& codice) {
        esegui_([&] { comandi::ScegliMeta(postazione_, codice.toString()); });
        if (!postazione_.Su<schermata::ElencoMete>()) Q_EMIT ElencoChiuso();
    });
    connect(cmbRicerca_, &ElencoScelta::Rinuncia, this, [this] {
        esegui_([this] { comandi::ChiudiElencoMete(postazione_); });
        Q_EMIT ElencoChiuso();
    });
}

Meta SchermoViaggio::Letta() const {
    Meta meta = postazione_.documento.Campi();
    periodo_->Leggi(meta);
    velocita_->Leggi(meta.parametri);
    tempi_->Leggi(meta.parametri);
    return meta;
}

// What the fields cannot show is no change: it stays until something is typed.
void SchermoViaggio::Raccogli() {
    const Meta letta = Letta();
    if (letta == mostrata_) return;
    postazione_.documento.ImpostaCampi(letta);
    mostrata_ = letta;  // what was there before is a change again
}

bool SchermoViaggio::RifiutaIlCampo() { return periodo_->RifiutaAnno(); }

bool SchermoViaggio::ConcludiIlCampo() {
    if (!tempi_->OrarioInCorso()) return false;
    const ParametriViaggio prima = postazione_.documento.Campi().parametri;
    postazione_.documento.OrdinaOrari();
    return postazione_.documento.Campi().parametri != prima;
}

bool SchermoViaggio::FuocoDopo(Comando comando, bool appenaAperto) {
    const auto* viaggio = postazione_.Su<schermata::Viaggio>();
    if (viaggio != nullptr && viaggio->fase == schermata::Viaggio::Fase::Nuova && comando == Comando::Nuovo) {
        periodo_->FuocoSullaLocalita();
        return true;
    }
    if (!appenaAperto || !postazione_.Su<schermata::ElencoMete>()) return false;
    cmbRicerca_->setFocus();
    return true;
}

// Escape closes the list.
bool SchermoViaggio::Tasto(const QKeyEvent& tasto) {
    if (tasto.key() != Qt::Key_Escape || !postazione_.Su<schermata::ElencoMete>()) return false;
    Q_EMIT cmbRicerca_->Rinuncia();
    return true;
}

void SchermoViaggio::FuocoSulCampo(mete::Field campo) {
    switch (campo) {
        case mete::Localita:
            return periodo_->FuocoSullaLocalita();
        case mete::Nazione:
            return periodo_->FuocoSullaNazione();
        case mete::DataInizio:
            return periodo_->FuocoSullInizio();
        default:
            return velocita_->FuocoSullaMedia(static_cast<TipoStrada>(campo - mete::MediaAutostrada));
    }
}

void SchermoViaggio::Mostra(bool liberi) {
    const Documento& documento = postazione_.documento;
    const auto& cronovia = documento.Calcolata();
    const RiepilogoItinerario& riepilogo = documento.Riepilogo();
    const ParametriViaggio& parametri = documento.Campi().parametri;
    periodo_->Mostra(documento.Campi(), riepilogo);
    periodo_->MostraFine(cronovia ? Testi(cronovia->fine) : TestiFine());
    const bool entro = cronovia && cronovia->scadenza;
    periodo_->MostraScadenza(entro ? Testo(*cronovia->scadenza, *cronovia) : QString(),
                             entro && cronovia->scadenza->margine < 0_cent);
    velocita_->Mostra(parametri);
    velocita_->MostraTotali(cronovia ? Testi(cronovia->totali, cronovia->orario.GuidaGiorno())
                                     : Testi(riepilogo.totali, riepilogo.guidaGiorno));
    tempi_->Mostra(parametri);
    mostrata_ = Letta();
    for (QWidget* riquadro :
         {static_cast<QWidget*>(periodo_), static_cast<QWidget*>(velocita_), static_cast<QWidget*>(tempi_)}) {
        Blocca(*riquadro, !liberi);
    }
    MostraElenco();
}

void SchermoViaggio::MostraElenco() {
    const auto* elenco = postazione_.Su<schermata::ElencoMete>();
    cmbRicerca_->Mostra(elenco != nullptr, [&] {
        std::vector<VoceScelta> voci;
        for (const MetaInElenco& meta : elenco->mete) {
            voci.push_back({TestoInElenco(meta), meta.codice, meta.codice == postazione_.documento.Codice()});
        }
        return voci;
    });
}

}  // namespace cronovia
