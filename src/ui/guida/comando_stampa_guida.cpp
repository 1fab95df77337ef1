#include "ui/guida/comando_stampa_guida.h"

#include <QCoreApplication>
#include <QGridLayout>

#include "app/comandi_guida.h"
#include "interaction/failure.h"
#include "print/tabella_testo.h"
#include "ui/stampa/stampanti.h"

namespace cronovia {

using namespace Qt::StringLiterals;

ComandoStampaGuida::ComandoStampaGuida(const ComandoStampa::Ambiente& ambiente, FrmSelStampa& stampante,
                                       QGridLayout& area)
    : QObject(&ambiente.finestra), ambiente_(ambiente), stampante_(stampante), opzioni_(new FrmGuidaStampa) {
    area.addWidget(opzioni_, 0, 0, Qt::AlignCenter);
    connect(opzioni_, &FrmGuidaStampa::Stampa, this, [this] {
        stampante_.VisualizzaListaStampanti();
        // Both frames have the same keys.
        opzioni_->setEnabled(false);
    });
    connect(opzioni_, &FrmGuidaStampa::Rinuncia, this, &ComandoStampaGuida::Rinuncia);
    connect(opzioni_, &FrmGuidaStampa::Anteprima, this, [this] {
        ambiente_.esegui([this] {
            if (const auto documento = Prepara())
                MostraAnteprima(*documento, ambiente_.finestra, ambiente_.interazione);
        });
    });
    connect(&stampante_, &FrmSelStampa::Stampa, this, [this] {
        if (Aperto()) ambiente_.esegui([this] { Stampa(); });
    });
    connect(&stampante_, &FrmSelStampa::Rinuncia, this, [this] {
        if (Aperto()) Rinuncia();
    });
}

void ComandoStampaGuida::Apri() {
    opzioni_->Apri();
    Q_EMIT Cambiato();
}

void ComandoStampaGuida::Rinuncia() {
    if (!stampante_.isVisible()) return Chiudi();
    stampante_.hide();
    opzioni_->Apri();
}

void ComandoStampaGuida::Chiudi() {
    stampante_.hide();
    opzioni_->hide();
    Q_EMIT Cambiato();
}

// Nothing, and the person hears why, when there is nothing to print.
std::optional<Stampato> ComandoStampaGuida::Prepara() {
    std::optional<Stampato> documento;
    comandi::SullaGuida(ambiente_.postazione, [&](const TavoloGuida& tavolo) {
        const DatiStampaGuida dati =
            PreparaStampaGuida(tavolo.Archivio(), tavolo.CodiceMeta(), ambiente_.postazione.documento.Campi().localita,
                               opzioni_->Opzioni());
        if (dati.localita.empty()) throw Failure(NienteDaStampare(dati.opzioni));
        documento = StampaGuida(dati, {ambiente_.postazione.volti.adesso().date(), QCoreApplication::applicationName()},
                                ambiente_.avanzamento);
    });
    return documento;
}

// Without a file, printing to a file has not begun.
void ComandoStampaGuida::Stampa() {
    const std::optional<Stampato> documento = Prepara();
    if (!documento) return;
    const bool suFile = stampante_.SceltoFilePdf();
    const QString stampante = stampante_.Scelta();
    const QString path = suFile ? ChiediFilePdf(ambiente_.finestra, documento->titolo) : QString();
    if (suFile && path.isEmpty()) {
        ambiente_.interazione.Show({NessunFileScelto(), {}, Icon::None});
        return;
    }
    Chiudi();
    comandi::SullaGuida(ambiente_.postazione, [&](const TavoloGuida&) {
        if (path.isEmpty()) {
            StampaSuStampante(*documento, stampante, ambiente_.interazione, ambiente_.avanzamento);
        } else {
            RifiutaFileTabella(path, ambiente_.postazione.sessione.Cartella());
            StampaSuFile(*documento, path, ambiente_.avanzamento);
        }
        ambiente_.interazione.Show({u"Stampa della guida completata..."_s, {}, Icon::None});
    });
}

}  // namespace cronovia
