// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/stampa/comando_stampa.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QVBoxLayout>
#include <utility>

#include "app/cartella_dati.h"
#include "app/comandi_cronovia.h"
#include "app/impostazioni.h"
#include "print/moduli.h"
#include "print/stampa_tutto.h"
#include "print/tabella_testo.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"
#include "ui/stampa/stampanti.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QFrame* NuovoStampaInCorso() {
    auto* riquadro = new QFrame;
    riquadro->setObjectName(u"frmStampaInCorso"_s);
    riquadro->setFrameShape(QFrame::StyledPanel);
    riquadro->setAutoFillBackground(true);
    QLabel* attesa = NuovaScritta(u"Preparazione moduli in corso... attendere..."_s);
    attesa->setObjectName(u"lblStampaInCorso"_s);
    auto* layout = Spaziato(new QVBoxLayout(riquadro), Spazi::Dialogo);
    layout->addWidget(attesa);
    layout->addWidget(NuovaScritta(u"L'attesa dipende dal sistema."_s));
    riquadro->hide();
    return riquadro;
}

}  // namespace

std::function<void(const Stampato&)> ChiediUscita(const Ambiente& ambiente, const QString& stampante, bool suFile,
                                                  const QString& titolo) {
    if (!suFile) {
        return [&ambiente, stampante](const Stampato& documento) {
            StampaSuStampante(documento, stampante, ambiente.stampanti, ambiente.interazione, ambiente.avanzamento);
        };
    }
    const QString path = ChiediFilePdf(ambiente.finestra, titolo);
    if (path.isEmpty()) {
        ambiente.interazione.Show({u"Nessun file scelto: niente è stato stampato."_s, {}, Icon::None});
        return {};
    }
    return [&ambiente, path](const Stampato& documento) {
        RifiutaFileTabella(path, ambiente.postazione.sessione.Cartella());
        StampaSuFile(documento, path, ambiente.avanzamento);
    };
}

PieDiPagina PiedeDiOggi(const Postazione& postazione) {
    return {postazione.volti.adesso().date(), QCoreApplication::applicationName(),
            LeggiImpostazioni(postazione.sessione.Cartella()).carta.misura};
}

ComandoStampa::ComandoStampa(Ambiente ambiente, Azioni& azioni, FrmSelStampa& stampante, QGridLayout& area)
    : QObject(&ambiente.finestra),
      ambiente_(std::move(ambiente)),
      azioni_(azioni),
      opzioni_(new FrmStampa(azioni)),
      stampante_(stampante),
      inCorso_(NuovoStampaInCorso()) {
    for (QWidget* riquadro : {static_cast<QWidget*>(opzioni_), static_cast<QWidget*>(inCorso_)}) {
        area.addWidget(riquadro, 0, 0, Qt::AlignCenter);
    }
    connect(opzioni_, &FrmStampa::Cambiata, this, [this] { ambiente_.esegui([] {}); });  // what else can be done now
}

void ComandoStampa::Raccogli() {
    if (auto* stampa = ambiente_.postazione.Su<schermata::Stampa>()) stampa->pagine = opzioni_->Pagine();
}

void ComandoStampa::Mostra() {
    using schermata::PassoStampa;
    const auto* stampa = ambiente_.postazione.Su<schermata::Stampa>();
    opzioni_->Mostra(stampa != nullptr && stampa->passo != PassoStampa::InCorso,
                     stampa != nullptr && stampa->passo == PassoStampa::Scelte);
}

bool ComandoStampa::FuocoDopo(Comando comando, bool appenaAperto) {
    if (!ambiente_.postazione.Su<schermata::Stampa>() || !(appenaAperto || comando == Comando::Stampa)) return false;
    opzioni_->Fuoco();
    return true;
}

// Escape goes back one step.
bool ComandoStampa::Tasto(const QKeyEvent& tasto) {
    const auto* stampa = ambiente_.postazione.Su<schermata::Stampa>();
    if (tasto.key() != Qt::Key_Escape || stampa == nullptr) return false;
    const bool scelte = stampa->passo == schermata::PassoStampa::Scelte;
    azioni_.Di(scelte ? Comando::RinunciaStampa : Comando::RinunciaStampante).trigger();
    return true;
}

void ComandoStampa::MostraAnteprima() {
    const Stampato documento = StampaLeScelte(Dati(), PiedeDiOggi(ambiente_.postazione),
                                              {opzioni_->Tabella(), opzioni_->Giornate()}, ambiente_.avanzamento);
    cronovia::MostraAnteprima(documento, ambiente_.finestra, ambiente_.interazione);
}

// Without a file, printing to a file has not begun.
void ComandoStampa::Stampa() {
    const QString titolo = u"Cronovia "_s + ambiente_.postazione.documento.Campi().localita;
    const auto uscita =
        ChiediUscita(ambiente_, stampante_.Scelta(), stampante_.SceltoFilePdf() && opzioni_->Pagine(), titolo);
    if (uscita) EseguiStampa(uscita);
}

void ComandoStampa::EseguiStampa(const std::function<void(const Stampato&)>& stampa) {
    const DatiStampa dati = Dati();
    comandi::StampaInCorso(ambiente_.postazione);
    StampaTutto({dati,
                 PiedeDiOggi(ambiente_.postazione),
                 ambiente_.postazione.sessione.Cartella(),
                 {opzioni_->Tabella(), opzioni_->Giornate()},
                 opzioni_->Moduli(),
                 stampa,
                 [&] { AvviaModuli(dati); }},
                ambiente_.interazione, ambiente_.avanzamento);
    comandi::FineStampa(ambiente_.postazione);
}

void ComandoStampa::AvviaModuli(const DatiStampa& dati) {
    struct Cartello {
        explicit Cartello(QWidget& riquadro) : riquadro_(riquadro) {
            riquadro.show();
            riquadro.raise();
            QCoreApplication::processEvents();
        }
        Cartello(const Cartello&) = delete;
        Cartello& operator=(const Cartello&) = delete;
        ~Cartello() { riquadro_.hide(); }
        QWidget& riquadro_;
    } const cartello(*inCorso_);
    cronovia::AvviaModuli(dati, {QCoreApplication::applicationDirPath(), ambiente_.postazione.sessione.Cartella()});
}

DatiStampa ComandoStampa::Dati() const {
    Postazione& postazione = ambiente_.postazione;
    const Documento& documento = postazione.documento;
    const Cronovia& cronovia = *documento.Calcolata();
    DatiStampa dati = PreparaStampa(documento.Campi(), cronovia);
    if (!opzioni_->ConMappa()) return dati;
    const std::vector<PosizioneTappa>& posizioni =
        postazione.luoghi.Posizioni(postazione.sessione.Archivio(), documento.Righe(), documento.Campi().nazione);
    dati.mappa =
        PreparaMappa(dati, cronovia, documento.Righe(), posizioni, LeggiCoste(FileDelProgramma(u"coste.dat"_s)));
    return dati;
}

}  // namespace cronovia
