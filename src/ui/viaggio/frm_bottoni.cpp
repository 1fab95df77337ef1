// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viaggio/frm_bottoni.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The order on screen: the trip, its itinerary, the schedule, files, the end.
constexpr std::array<Comando, 12> kDisposizioneMeta = {
    Comando::Nuovo,      Comando::Ricerca, Comando::Salva,  Comando::CancMeta, Comando::Itinerario, Comando::CancItin,
    Comando::GuidaCitta, Comando::Calcola, Comando::Stampa, Comando::Import,   Comando::Export,     Comando::Esce};

}  // namespace

FrmBottoni::FrmBottoni(Azioni& azioni) : cmdConverte_(azioni.NuovoPulsante(Comando::Converte)) {
    setObjectName(u"frmBottoni"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(3);
    layout->addWidget(cmdConverte_, 0, Qt::AlignRight);
    auto* riga = new QHBoxLayout;
    layout->addLayout(riga);
    for (const Comando comando : kDisposizioneMeta) {
        QPushButton* pulsante = azioni.NuovoPulsante(comando);
        // All alike, and together no wider than a small window.
        pulsante->setMinimumWidth(pulsante->fontMetrics().horizontalAdvance(pulsante->text()));
        pulsante->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        riga->addWidget(pulsante, 1);
    }
}

}  // namespace cronovia
