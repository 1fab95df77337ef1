// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/copia/frm_tratto.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "calendar/testo.h"
#include "ui/comuni/aiuti.h"
#include "ui/comuni/controlli.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

FrmTratto::FrmTratto(Azioni& azioni) : QGroupBox(u"Tratto dal percorso:"_s) {
    setObjectName(u"frmTratto"_s);
    auto* layout = Spaziato(new QVBoxLayout(this), Spazi::Riquadro);
    layout->addWidget(CreaEstremo(0, azioni.NuovoPulsante(Comando::AssegnaInizio)));
    layout->addWidget(CreaEstremo(1, azioni.NuovoPulsante(Comando::AssegnaFine)));
    chkInsSoste_ = new QCheckBox(u"Inserire anche le soste:"_s);
    chkInsSoste_->setObjectName(u"chkInsSoste"_s);
    MostraIstruzione(*chkInsSoste_, u"Copia anche le soste e le fini giornata delle tappe"_s);
    chkInsSoste_->setLayoutDirection(Qt::RightToLeft);
    auto* riga = Spaziato(new QHBoxLayout, Spazi::Riga);
    riga->addWidget(chkInsSoste_);
    riga->addStretch();
    riga->addWidget(NuovoAiuto(AiutoDuplica()));
    layout->addLayout(riga);
    auto* comandi = Spaziato(new QHBoxLayout, Spazi::Riga);
    comandi->addWidget(azioni.NuovoPulsante(Comando::InserisceTratto));
    comandi->addWidget(azioni.NuovoPulsante(Comando::RinunciaCopia));
    layout->addLayout(comandi);
    layout->addStretch();
}

QWidget* FrmTratto::CreaEstremo(int estremo, QPushButton* assegna) {
    const bool inizio = estremo == 0;
    auto* riquadro = new QFrame;
    riquadro->setObjectName(inizio ? u"frmInizio"_s : u"frmArrivo"_s);
    riquadro->setFrameShape(QFrame::StyledPanel);
    auto* layout = Spaziato(new QGridLayout(riquadro), Spazi::Riquadro);
    layout->addWidget(assegna, 0, 0, 1, 4);
    const QString tappa = inizio ? u"%1 della tappa iniziale"_s : u"%1 della tappa finale"_s;
    Estremo& e = estremi_[static_cast<std::size_t>(estremo)];
    const auto nuova = [&](const QString& nome, const QString& dato, int cifre) {
        QLineEdit* risultato = NuovoRisultato(NomeDiSerie(nome, estremo), cifre, tappa.arg(dato));
        risultato->setFrame(true);
        return risultato;
    };
    e.txtInsLoc = nuova(u"txtInsLoc"_s, u"Località"_s, 20);
    e.txtInsNS = nuova(u"txtInsNS"_s, u"Numero di strada"_s, 20);
    e.txtInsKm = nuova(u"txtInsKm"_s, u"Chilometri"_s, 5);
    e.txtInsNum = nuova(u"txtInsNum"_s, u"Numero di riga"_s, 5);
    for (QLineEdit* largo : {e.txtInsLoc, e.txtInsNS}) {
        largo->setMinimumWidth(0);
        largo->setMaximumWidth(QWIDGETSIZE_MAX);
        largo->setAlignment(Qt::AlignLeft);
    }
    layout->addWidget(NuovaEtichetta(u"Località"_s, *e.txtInsLoc), 1, 0);
    layout->addWidget(e.txtInsLoc, 1, 1, 1, 3);
    layout->addWidget(NuovaEtichetta(u"Strada"_s, *e.txtInsNS), 2, 0);
    layout->addWidget(e.txtInsNS, 2, 1, 1, 3);
    layout->addWidget(NuovaEtichetta(u"Km."_s, *e.txtInsKm), 3, 0);
    layout->addWidget(e.txtInsKm, 3, 1);
    layout->addWidget(NuovaEtichetta(u"Num."_s, *e.txtInsNum), 3, 2);
    layout->addWidget(e.txtInsNum, 3, 3);
    layout->setColumnStretch(1, 1);
    return riquadro;
}

void FrmTratto::Mostra(const TavoloCopia& copia) {
    for (std::size_t i = 0; i < estremi_.size(); ++i) {
        const std::optional<int> riga = copia.Assegnate()[i];
        const Tappa tappa = riga && copia.Tappe() ? copia.Tappe()->at(static_cast<std::size_t>(*riga - 1)) : Tappa();
        estremi_[i].txtInsLoc->setText(Visibile(tappa.localita));
        estremi_[i].txtInsNS->setText(Visibile(tappa.numStrada));
        estremi_[i].txtInsKm->setText(RaggruppaNonZero(tappa.km));
        estremi_[i].txtInsNum->setText(riga ? QString::number(*riga) : QString());
    }
}

}  // namespace cronovia
