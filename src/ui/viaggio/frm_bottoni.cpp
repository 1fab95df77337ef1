#include "ui/viaggio/frm_bottoni.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/comuni/controlli.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The order on screen: the trip, its itinerary, the schedule, files, the end.
constexpr std::array<Comando, 12> kDisposizioneMeta = {
    Comando::Nuovo,      Comando::Ricerca, Comando::Salva,  Comando::CancMeta, Comando::Itinerario, Comando::CancItin,
    Comando::GuidaCitta, Comando::Calcola, Comando::Stampa, Comando::Import,   Comando::Export,     Comando::Esce};

}  // namespace

FrmBottoni::FrmBottoni(QWidget* parent) : QFrame(parent), cmdConverte_(NuovoPulsante(Descrizione(Comando::Converte))) {
    setObjectName(u"frmBottoni"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(3);
    layout->addWidget(cmdConverte_, 0, Qt::AlignRight);
    auto* riga = new QHBoxLayout;
    layout->addLayout(riga);
    for (const Comando comando : kDisposizioneMeta) {
        QPushButton* pulsante = NuovoPulsante(Descrizione(comando));
        // All alike, and together no wider than a small window.
        pulsante->setMinimumWidth(pulsante->fontMetrics().horizontalAdvance(pulsante->text()));
        pulsante->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        connect(pulsante, &QPushButton::clicked, this, [this, comando] { Q_EMIT Premuto(comando); });
        pulsanti_[static_cast<std::size_t>(comando)] = pulsante;
        riga->addWidget(pulsante, 1);
    }
    connect(cmdConverte_, &QPushButton::clicked, this, [this] { Q_EMIT Premuto(Comando::Converte); });
}

void FrmBottoni::Applica(const StatoComandi& stato) {
    cmdConverte_->setVisible(stato.Abilitato(Comando::Converte));
    cmdConverte_->setEnabled(stato.Abilitato(Comando::Converte));
    for (const Comando comando : kDisposizioneMeta) {
        Pulsante(comando).setEnabled(stato.Abilitato(comando));
        Pulsante(comando).setText(Scritta(comando, stato));
    }
}

}  // namespace cronovia
