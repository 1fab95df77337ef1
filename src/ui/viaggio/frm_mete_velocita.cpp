// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viaggio/frm_mete_velocita.h"

#include <QGridLayout>

#include "ui/comuni/aiuti.h"
#include "ui/comuni/controlli.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

struct Medie {
    int da;
    int a;
};
constexpr std::array<Medie, kTipiStrada> kMedie = {{{50, 140}, {45, 110}, {30, 70}, {20, 60}}};

}  // namespace

FrmMeteVelocita::FrmMeteVelocita(QWidget* parent) : QGroupBox(u"Percorrenze:"_s, parent) {
    setObjectName(u"frmMeteVelocita"_s);
    auto* layout = Spaziato(new QGridLayout(this), Spazi::Riquadro);
    layout->addWidget(NuovaScritta(u"km/h"_s), 0, 1);
    layout->addWidget(NuovaScritta(u"Km."_s), 0, 2, Qt::AlignRight);
    layout->addWidget(NuovaScritta(u"Tempo"_s), 0, 3, Qt::AlignRight);
    for (int i = 0; i <= kTipiStrada; ++i) {
        const auto indice = static_cast<std::size_t>(i);
        const bool tutti = i == kTipiStrada;
        const QString tipo = tutti ? u"Totale"_s : NomeTipoStrada(static_cast<TipoStrada>(i));
        txtKmTot_[indice] = NuovoRisultato(NomeDiSerie(u"txtKmTot"_s, i), 6, u"Chilometri: %1"_s.arg(tipo));
        txtTempo_[indice] =
            NuovoRisultato(NomeDiSerie(u"txtTempo"_s, i), 8, u"Tempo di guida (gg:hh:mm): %1"_s.arg(tipo));
        layout->addWidget(txtKmTot_[indice], i + 1, 2);
        layout->addWidget(txtTempo_[indice], i + 1, 3);
        if (tutti) {
            layout->addWidget(NuovaScritta(tipo), i + 1, 0);
            continue;
        }
        cmbMediaKm_[indice] =
            NuovoElenco(NomeDiSerie(u"cmbMediaKm"_s, i), Numeri(kMedie[indice].da, kMedie[indice].a, 0, 5),
                        u"Velocità media in km/h: %1"_s.arg(tipo));
        QComboBox& media = *cmbMediaKm_[indice];
        LasciaScrivereCifre(media, 3);
        connect(&media, &QComboBox::editTextChanged, this, &FrmMeteVelocita::Cambiata);
        QLabel* etichetta = NuovaEtichetta(tipo, media);
        etichetta->setObjectName(NomeDiSerie(u"lblTipoStrada"_s, i));
        layout->addWidget(etichetta, i + 1, 0);
        layout->addWidget(&media, i + 1, 1);
    }
    txtTragh_ = NuovoRisultato(u"txtTragh"_s, 3, u"Numero dei traghetti"_s);
    layout->addWidget(NuovaScritta(u"Traghetti"_s), kTipiStrada + 2, 0);
    layout->addWidget(txtTragh_, kTipiStrada + 2, 1);
    layout->addWidget(NuovoAiuto(AiutoVelocita()), kTipiStrada + 2, 3, Qt::AlignRight);
    layout->setRowStretch(kTipiStrada + 3, 1);
}

void FrmMeteVelocita::Mostra(const ParametriViaggio& parametri) {
    for (std::size_t i = 0; i < cmbMediaKm_.size(); ++i) {
        if (cmbMediaKm_[i]->currentText().toInt() != parametri.mediaKm[i] || cmbMediaKm_[i]->currentText().isEmpty()) {
            MostraVoce(*cmbMediaKm_[i], QString::number(parametri.mediaKm[i]));
        }
    }
}

void FrmMeteVelocita::MostraTotali(const TestiTotali& totali) {
    for (std::size_t i = 0; i < txtKmTot_.size(); ++i) {
        txtKmTot_[i]->setText(totali.km[i]);
        txtTempo_[i]->setText(totali.tempo[i]);
    }
    txtTragh_->setText(totali.traghetti);
}

void FrmMeteVelocita::FuocoSullaMedia(TipoStrada tipo) {
    QComboBox& media = *cmbMediaKm_[Indice(tipo)];
    media.setFocus();
    media.lineEdit()->selectAll();
}

void FrmMeteVelocita::Leggi(ParametriViaggio& parametri) const {
    for (std::size_t i = 0; i < cmbMediaKm_.size(); ++i) parametri.mediaKm[i] = cmbMediaKm_[i]->currentText().toInt();
}

}  // namespace cronovia
