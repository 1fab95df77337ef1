// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viaggio/frm_bottoni.h"

#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "ui/comuni/icone.h"
#include "ui/comuni/spazi.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The order on screen: the trip, its itinerary and guide, the schedule, files, the end.
constexpr std::array<Comando, 12> kDisposizioneMeta = {
    Comando::Nuovo,      Comando::Ricerca, Comando::Salva,  Comando::CancMeta, Comando::Itinerario, Comando::CancItin,
    Comando::GuidaCitta, Comando::Calcola, Comando::Stampa, Comando::Import,   Comando::Export,     Comando::Esce};

// Those that begin a group.
constexpr std::array<Comando, 4> kInizi = {Comando::Itinerario, Comando::Calcola, Comando::Import, Comando::Esce};

int LarghezzaScritta(const QPushButton& pulsante) {
    return pulsante.fontMetrics().horizontalAdvance(pulsante.text().remove(u'&'));
}

}  // namespace

FrmBottoni::FrmBottoni(Azioni& azioni) : cmdConverte_(azioni.NuovoPulsante(Comando::Converte)) {
    setObjectName(u"frmBottoni"_s);
    auto* layout = Spaziato(new QVBoxLayout(this), Spazi::Riga);
    layout->addWidget(cmdConverte_, 0, Qt::AlignRight);
    cmdConverte_->setIcon(IconaDelComando(Comando::Converte, PostoIcona::Pulsante));
    riga_ = Spaziato(new QHBoxLayout, Spazi::Riga);
    layout->addLayout(riga_);
    for (const Comando comando : kDisposizioneMeta) {
        if (std::find(kInizi.begin(), kInizi.end(), comando) != kInizi.end()) riga_->addSpacing(kStacco);
        QPushButton* pulsante = azioni.NuovoPulsante(comando);
        // Together no wider than a small window.
        pulsante->setMinimumWidth(LarghezzaScritta(*pulsante) + kSpazio);
        pulsante->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        riga_->addWidget(pulsante, 1);
        pulsanti_.emplace_back(pulsante, IconaDelComando(comando, PostoIcona::Pulsante));
    }
    MostraIcone();
}

void FrmBottoni::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    MostraIcone();
}

// Where all signs have room beside their words; each button gets its share of the width.
void FrmBottoni::MostraIcone() {
    const int segno = fontMetrics().height();
    int serve = static_cast<int>(kInizi.size()) * (kStacco + kSpazio);
    for (const auto& [pulsante, icona] : pulsanti_) serve += LarghezzaScritta(*pulsante) + segno + 5 * kSpazio;
    const bool conIcone = serve <= width();
    for (const auto& [pulsante, icona] : pulsanti_) {
        pulsante->setIcon(conIcone ? icona : QIcon());
        pulsante->setIconSize({segno, segno});
        riga_->setStretchFactor(pulsante, LarghezzaScritta(*pulsante) + (conIcone ? segno + 5 * kSpazio : kStacco));
    }
}

}  // namespace cronovia
