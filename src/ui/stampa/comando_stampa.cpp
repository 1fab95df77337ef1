#include "ui/stampa/comando_stampa.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QVBoxLayout>
#include <utility>

#include "app/comandi_cronovia.h"
#include "print/moduli.h"
#include "print/stampa_tutto.h"
#include "print/tabella_testo.h"
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
    auto* layout = new QVBoxLayout(riquadro);
    layout->setContentsMargins(24, 18, 24, 18);
    layout->addWidget(attesa);
    layout->addWidget(NuovaScritta(u"L'attesa dipende dal sistema."_s));
    riquadro->hide();
    return riquadro;
}

}  // namespace

ComandoStampa::ComandoStampa(Ambiente ambiente, QGridLayout& area)
    : QObject(&ambiente.finestra),
      ambiente_(std::move(ambiente)),
      opzioni_(new FrmStampa),
      stampante_(new FrmSelStampa),
      inCorso_(NuovoStampaInCorso()) {
    for (QWidget* riquadro :
         {static_cast<QWidget*>(opzioni_), static_cast<QWidget*>(stampante_), static_cast<QWidget*>(inCorso_)}) {
        area.addWidget(riquadro, 0, 0, Qt::AlignCenter);
    }
    connect(opzioni_, &FrmStampa::Stampa, this, [this] {
        stampante_->VisualizzaListaStampanti();
        // Both frames have the same keys.
        opzioni_->setEnabled(false);
    });
    connect(opzioni_, &FrmStampa::Anteprima, this, [this] { ambiente_.esegui([this] { MostraAnteprima(); }); });
    connect(stampante_, &FrmSelStampa::Stampa, this, [this] {
        if (opzioni_->isVisible()) ambiente_.esegui([this] { Stampa(); });
    });
    connect(opzioni_, &FrmStampa::Rinuncia, this, &ComandoStampa::Rinuncia);
    connect(stampante_, &FrmSelStampa::Rinuncia, this, [this] {
        if (opzioni_->isVisible()) Rinuncia();
    });
}

void ComandoStampa::Mostra() {
    const auto* stampa = ambiente_.postazione.Su<schermata::Stampa>();
    const bool aperta = stampa != nullptr && !stampa->inCorso;
    if (aperta == opzioni_->isVisible()) return;
    Chiudi();
    if (aperta) opzioni_->Apri();
}

void ComandoStampa::Fuoco() {
    if (!opzioni_->isVisible()) return;
    stampante_->hide();
    opzioni_->Apri();
}

// From the printers back to the options, from there back to the schedule.
void ComandoStampa::Rinuncia() {
    if (stampante_->isVisible()) {
        stampante_->hide();
        opzioni_->Apri();
        return;
    }
    Chiudi();
    ambiente_.esegui([this] { comandi::FineStampa(ambiente_.postazione); });
}

void ComandoStampa::Chiudi() {
    opzioni_->hide();
    stampante_->hide();
}

void ComandoStampa::MostraAnteprima() {
    const Stampato documento =
        StampaLeScelte(Dati(), Piede(), {opzioni_->Tabella(), opzioni_->Giornate()}, ambiente_.avanzamento);
    cronovia::MostraAnteprima(documento, ambiente_.finestra, ambiente_.interazione);
}

// Without a file, printing to a file has not begun.
void ComandoStampa::Stampa() {
    if (!stampante_->SceltoFilePdf() || !(opzioni_->Tabella() || opzioni_->Giornate())) {
        const QString stampante = stampante_->Scelta();
        EseguiStampa([&](const Stampato& documento) {
            StampaSuStampante(documento, stampante, ambiente_.interazione, ambiente_.avanzamento);
        });
        return;
    }
    const QString path =
        ChiediFilePdf(ambiente_.finestra, u"Cronovia "_s + ambiente_.postazione.documento.Campi().localita);
    if (path.isEmpty()) {
        ambiente_.interazione.Show({NessunFileScelto(), {}, Icon::None});
        return;
    }
    EseguiStampa([&](const Stampato& documento) {
        RifiutaFileTabella(path, ambiente_.postazione.sessione.Cartella());
        StampaSuFile(documento, path, ambiente_.avanzamento);
    });
}

void ComandoStampa::EseguiStampa(const std::function<void(const Stampato&)>& stampa) {
    const DatiStampa dati = Dati();
    Chiudi();
    comandi::StampaInCorso(ambiente_.postazione);
    StampaTutto({dati,
                 Piede(),
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
    return PreparaStampa(ambiente_.postazione.documento.Campi(), *ambiente_.postazione.documento.Calcolata());
}

PieDiPagina ComandoStampa::Piede() const {
    return {ambiente_.postazione.volti.adesso().date(), QCoreApplication::applicationName()};
}

}  // namespace cronovia
