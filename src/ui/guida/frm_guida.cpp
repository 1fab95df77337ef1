// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/guida/frm_guida.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "calendar/testo.h"
#include "store/schema.h"
#include "ui/comuni/aiuti.h"
#include "ui/comuni/controlli.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

int LarghezzaCampo(guida::Field campo) { return Width(Table::GuidaCitta, campo); }

}  // namespace

FrmGuida::FrmGuida(Azioni& azioni) : QGroupBox(u"Guida visite e soste tecniche:"_s) {
    setObjectName(u"frmGuida"_s);
    auto* layout = Spaziato(new QVBoxLayout(this), Spazi::Riquadro);
    layout->addLayout(CreaCampi());
    QLabel* nota = NuovaScritta(
        u"Per inserire una nuova annotazione, posizionarsi sulla prima riga della località (quella vuota); per "
        "cancellare/modificare, posizionarsi su quella da cancellare."_s);
    nota->setObjectName(u"lblGNota"_s);
    nota->setWordWrap(true);
    layout->addWidget(nota);
    layout->addLayout(CreaComandi(azioni));
}

QLayout* FrmGuida::CreaCampi() {
    txtGCitta_ = NuovaCasella(u"txtGCitta"_s, LarghezzaCampo(guida::Localita),
                              u"Località di riferimento (automatico da riga selezionata)"_s);
    txtGCitta_->setReadOnly(true);
    txtGDescr_ =
        NuovaCasella(u"txtGDescr"_s, LarghezzaCampo(guida::Descrizione), u"Descrizione dell'oggetto della guida"_s);
    LasciaAnnullare(*txtGDescr_);
    cmbGTipo_ = NuovoElenco(u"cmbGTipo"_s, {},
                            u"Selezionare l'importanza dell'oggetto o se trattasi di Punto sosta, CS, Campeggio, "
                            "Ristorante, ecc."_s);
    cmbGTipo_->setEditable(true);
    cmbGTipo_->setInsertPolicy(QComboBox::NoInsert);
    LasciaAnnullare(*cmbGTipo_->lineEdit());
    cmbGTipo_->setCompleter(nullptr);
    const QString tempo = u"Tempo necessario per la visita dell'oggetto (obbligatorio per visite)"_s;
    cmbGH_ = NuovoElenco(u"cmbGH"_s, Numeri(0, 15, 2), tempo);
    cmbGH_->setAccessibleName(u"Ore della visita"_s);
    cmbGM_ = NuovoElenco(u"cmbGM"_s, Quarti(), tempo);
    cmbGM_->setAccessibleName(u"Minuti della visita"_s);
    auto* ore = Spaziato(new QHBoxLayout, Spazi::Unito);
    ore->addWidget(cmbGH_);
    ore->addWidget(cmbGM_);
    auto* griglia = Spaziato(new QGridLayout, Spazi::Riga);
    griglia->addWidget(NuovaEtichetta(u"L&ocalità (clicca sulla tabella) sovrastante)"_s, *txtGCitta_), 0, 0);
    griglia->addWidget(NuovaEtichetta(u"&Monumento, museo, località punto sosta, ecc."_s, *txtGDescr_), 0, 1);
    griglia->addWidget(NuovaEtichetta(u"&Tipologia"_s, *cmbGTipo_), 0, 2);
    griglia->addWidget(NuovaEtichetta(u"Tempo (&hhmm)"_s, *cmbGH_), 0, 3);
    griglia->addWidget(txtGCitta_, 1, 0);
    griglia->addWidget(txtGDescr_, 1, 1);
    griglia->addWidget(cmbGTipo_, 1, 2);
    griglia->addLayout(ore, 1, 3);
    griglia->addWidget(NuovoAiuto(AiutoGuida()), 1, 4);
    griglia->setColumnStretch(0, 2);
    griglia->setColumnStretch(1, 5);
    return griglia;
}

QLayout* FrmGuida::CreaComandi(Azioni& azioni) {
    auto* riga = Spaziato(new QHBoxLayout, Spazi::Riga);
    for (const Comando comando : {Comando::SalvaRigaGuida, Comando::CancellaRigaGuida, Comando::CercaInGuida}) {
        riga->addWidget(azioni.NuovoPulsante(comando));
    }
    riga->addStretch();
    riga->addWidget(azioni.NuovoPulsante(Comando::StampaGuida));
    riga->addWidget(azioni.NuovoPulsante(Comando::FineGuida));
    return riga;
}

void FrmGuida::MostraTipi(const std::vector<TipoGuida>& tipi) {
    QStringList nomi;
    for (const TipoGuida& tipo : tipi) nomi += Visibile(tipo.descrizione);
    const QString scritto = cmbGTipo_->currentText();
    cmbGTipo_->clear();
    cmbGTipo_->addItems(nomi);
    cmbGTipo_->setEditText(scritto);
}

void FrmGuida::Mostra(const QString& localita, const CampiVoce& campi) {
    txtGCitta_->setText(Visibile(localita));
    txtGDescr_->setText(campi.descrizione);
    cmbGTipo_->setCurrentIndex(cmbGTipo_->findText(campi.tipo));
    cmbGTipo_->setEditText(campi.tipo);
    MostraVoce(*cmbGH_, Zero(campi.ore, 2));
    MostraVoce(*cmbGM_, Zero(campi.minuti, 2));
}

CampiVoce FrmGuida::Campi() const {
    return {txtGDescr_->text(), cmbGTipo_->currentText(), cmbGH_->currentText().toInt(), cmbGM_->currentText().toInt()};
}

void FrmGuida::FuocoSulCampo(guida::Field campo) {
    if (campo == guida::CodiceGuida) return cmbGTipo_->setFocus();
    if (campo == guida::TempoSosta) return cmbGH_->setFocus();
    txtGDescr_->setFocus();
    txtGDescr_->end(false);
}

void FrmGuida::FuocoSullaDescrizione() {
    txtGDescr_->setFocus();
    txtGDescr_->selectAll();
}

}  // namespace cronovia
