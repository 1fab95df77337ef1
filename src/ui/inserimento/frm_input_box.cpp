// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/inserimento/frm_input_box.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "calendar/testo.h"
#include "store/schema.h"
#include "ui/comuni/aiuti.h"
#include "ui/comuni/controlli.h"
#include "ui/comuni/maiuscole.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The order on screen, two in a row.
constexpr std::array<Comando, 12> kDisposizione = {Comando::Inserisce,      Comando::Aggiunge,    Comando::Cancella,
                                                   Comando::Cerca,          Comando::Ritorno,     Comando::Duplica,
                                                   Comando::AltriPacchetti, Comando::AzzeraSoste, Comando::Trasferisce,
                                                   Comando::Ricalcola,      Comando::Memorizza,   Comando::Fine};

// More than any distance has: what is pasted is never cut to another number that would do.
constexpr int kCifreKm = 9;

bool SoloCifre(const QString& testo) { return std::all_of(testo.begin(), testo.end(), &Cifra); }

}  // namespace

FrmInputBox::FrmInputBox(Azioni& azioni) : QGroupBox(u"Inserimento itinerario:"_s) {
    setObjectName(u"frmInputBox"_s);
    auto* layout = Spaziato(new QVBoxLayout(this), Spazi::Riquadro);
    layout->addWidget(CreaCampi());
    layout->addWidget(CreaComandi(azioni));
    layout->addWidget(lblSuggerimenti_);  // below: the buttons stay where one aims at them
    layout->addStretch();
}

QWidget* FrmInputBox::CreaCampi() {
    auto* campi = new QWidget;
    auto* layout = Spaziato(new QFormLayout(campi), Spazi::Riga);
    layout->setHorizontalSpacing(kStacco);
    txtRiga_ = NuovoRisultato(u"txtRiga"_s, 4, u"Numero cronologico della tappa (automatico)"_s);
    txtTappa_ = NuovaCasella(u"txtTappa"_s, Width(Table::Itinerari, itinerari::Localita) - 1,
                             u"Indicare la località di arrivo"_s);
    txtNumStrada_ = NuovaCasella(u"txtNumStrada"_s, Width(Table::Itinerari, itinerari::NomeStrada),
                                 u"Indicare il Numero della strada per giungere alla località descritta; se contiene "
                                 "\"TRAGH\" indica uso di Traghetto"_s);
    txtKm_ = NuovaCasella(u"txtKm"_s, kCifreKm,
                          u"Distanza in Km. (obbligatoria in alternativa ad una sosta); vedere informazioni aggiuntive "
                          "su [?]"_s);
    ScriviMaiuscolo(*txtTappa_);
    ScriviMaiuscolo(*txtNumStrada_);
    for (QLineEdit* casella : {txtTappa_, txtNumStrada_, txtKm_}) {
        LasciaAnnullare(*casella);
        LasciaIncollareRighe(*casella);
    }
    cmbTipoStrada_ = NuovoElenco(u"cmbTipoStrada"_s, {u"Autostrada"_s, u"SuperStrada"_s, u"Principale"_s, u"Locale"_s},
                                 u"Tipo di strada"_s);
    auto* soste = Spaziato(new QHBoxLayout, Spazi::Unito);
    const std::array<QStringList, 3> voci = {Numeri(0, 15, 2), Numeri(0, 23, 2), Quarti()};
    const std::array<QString, 3> nomi = {u"Giorni di sosta"_s, u"Ore di sosta"_s, u"Minuti di sosta"_s};
    for (int i = 0; i < 3; ++i) {
        const auto indice = static_cast<std::size_t>(i);
        cmbSosta_[indice] = NuovoElenco(NomeDiSerie(u"cmbSosta"_s, i), voci[indice],
                                        u"Indicare l'eventuale sosta (gg:hh:mm, obbligatorio con km. 0)"_s);
        cmbSosta_[indice]->setAccessibleName(nomi[indice]);
        soste->addWidget(cmbSosta_[indice]);
    }
    chkEndDay_ = new QCheckBox(u"Fine giornata"_s);
    chkEndDay_->setObjectName(u"chkEndDay"_s);
    MostraIstruzione(*chkEndDay_, u"Forza la sosta fino alla fine della giornata"_s);
    chkKm_ = new QCheckBox(u"Km. progress."_s);
    chkKm_->setObjectName(u"chkKm"_s);
    MostraIstruzione(
        *chkKm_,
        u"Se attivo, inserendo un valore superiore al progressivo del giorno precedente, viene inserita la differenza; "
        "senza la spunta i chilometri sono quelli della tappa"_s);
    auto* tappa = Spaziato(new QHBoxLayout, Spazi::Riga);
    tappa->addWidget(txtTappa_);
    tappa->addWidget(NuovaScritta(u"Riga"_s));
    tappa->addWidget(txtRiga_);
    auto* tipo = Spaziato(new QHBoxLayout, Spazi::Riga);
    tipo->addWidget(cmbTipoStrada_);
    tipo->addStretch();
    QPushButton* aiuto = NuovoAiuto(AiutoInserimento());
    tipo->addWidget(aiuto);
    auto* km = Spaziato(new QHBoxLayout, Spazi::Riga);
    km->addWidget(txtKm_);
    km->addWidget(chkKm_);
    layout->addRow(NuovaEtichetta(u"Ta&ppa"_s, *txtTappa_), tappa);
    layout->addRow(NuovaEtichetta(u"Numero strada\n(TRAGH=Traghetto)"_s, *txtNumStrada_), txtNumStrada_);
    layout->addRow(NuovaEtichetta(u"&Distanza in Km."_s, *txtKm_), km);
    layout->addRow(NuovaEtichetta(u"Tipo di strada"_s, *cmbTipoStrada_), tipo);
    soste->addSpacing(kSpazio);
    soste->addWidget(chkEndDay_);
    soste->addStretch();
    layout->addRow(NuovaEtichetta(u"E&ventuale sosta\n(in gg:hh:mm)"_s, *cmbSosta_[0]), soste);
    lblSuggerimenti_ = NuovaScritta();
    lblSuggerimenti_->setObjectName(u"lblSuggerimenti"_s);
    lblSuggerimenti_->setWordWrap(true);
    lblSuggerimenti_->hide();
    for (QLineEdit* casella : {txtTappa_, txtNumStrada_, txtKm_}) {
        connect(casella, &QLineEdit::textChanged, this, &FrmInputBox::Cambiata);
    }
    connect(txtKm_, &QLineEdit::textChanged, this, [this] { kmStimati_ = false; });
    txtKm_->installEventFilter(this);
    for (QComboBox* elenco : {cmbTipoStrada_, cmbSosta_[0], cmbSosta_[1], cmbSosta_[2]}) {
        connect(elenco, &QComboBox::currentTextChanged, this, &FrmInputBox::Cambiata);
    }
    for (QCheckBox* spunta : {chkEndDay_, chkKm_}) connect(spunta, &QCheckBox::toggled, this, &FrmInputBox::Cambiata);
    QWidget::setTabOrder(chkEndDay_, aiuto);  // what is typed goes from field to field
    return campi;
}

QWidget* FrmInputBox::CreaComandi(Azioni& azioni) {
    auto* gruppo = new QFrame;
    gruppo->setObjectName(u"frmInsItOperativa"_s);
    auto* layout = Spaziato(new QGridLayout(gruppo), Spazi::Riga);
    int indice = 0;
    for (const Comando comando : kDisposizione) {
        layout->addWidget(azioni.NuovoPulsante(comando), indice / 2, indice % 2);
        ++indice;
    }
    return gruppo;
}

void FrmInputBox::Mostra(int riga, const CampiTappa& campi, std::optional<bool> progressivi) {
    const QSignalBlocker nessunoScrive(this);
    const bool nuovi = riga != riga_ || campi != Campi();
    if (nuovi) MostraCampi(riga, campi);
    if (nuovi || progressivi != progressivi_) MostraKmProgressivi(progressivi);
    riga_ = riga;
    progressivi_ = progressivi;
}

void FrmInputBox::MostraCampi(int riga, const CampiTappa& campi) {
    txtRiga_->setText(QString::number(riga));
    txtTappa_->setText(campi.localita);
    txtNumStrada_->setText(campi.numStrada);
    txtKm_->setText(campi.km == 0 ? QString() : QString::number(campi.km));
    txtKm_->setModified(campi.kmProgressivi);
    kmDaIndicare_ = campi.kmDaIndicare;
    kmStimati_ = campi.kmStimati;
    stima_.reset();
    MostraSegnaposto();
    if (campi.tipo) cmbTipoStrada_->setCurrentIndex(static_cast<int>(*campi.tipo));
    MostraVoce(*cmbSosta_[0], Zero(campi.sosta.giorni, 2));
    MostraVoce(*cmbSosta_[1], Zero(campi.sosta.ore, 2));
    MostraVoce(*cmbSosta_[2], Zero(campi.sosta.minuti, 2));
    chkEndDay_->setChecked(campi.fineGiorno);
}

void FrmInputBox::MostraKmProgressivi(std::optional<bool> possibili) {
    chkKm_->setVisible(possibili.has_value());
    chkKm_->setEnabled(possibili.value_or(false));
    chkKm_->setChecked(possibili.value_or(false));
}

CampiTappa FrmInputBox::Campi() const {
    CampiTappa campi;
    campi.localita = txtTappa_->text().trimmed();
    campi.numStrada = txtNumStrada_->text().trimmed();
    const QString km = txtKm_->text().trimmed();
    campi.kmLeggibili = SoloCifre(km);
    campi.km = campi.kmLeggibili ? km.toInt() : 0;
    campi.kmDaIndicare = km.isEmpty() && kmDaIndicare_;
    campi.kmStimati = campi.km > 0 && kmStimati_;
    campi.kmProgressivi = txtKm_->isModified() && chkKm_->isChecked();
    campi.tipo = LeggiTipoStrada(cmbTipoStrada_->currentText().left(1));
    campi.sosta = {cmbSosta_[0]->currentText().toInt(), cmbSosta_[1]->currentText().toInt(),
                   cmbSosta_[2]->currentText().toInt()};
    campi.fineGiorno = chkEndDay_->isChecked();
    return campi;
}

void FrmInputBox::MostraSuggerimenti(const QString& testo) {
    MostraScritta(*lblSuggerimenti_, testo);
    lblSuggerimenti_->setVisible(!testo.isEmpty());
}

void FrmInputBox::MostraStima(std::optional<int> km) {
    if (stima_ == km) return;
    stima_ = km;
    MostraSegnaposto();
}

void FrmInputBox::MostraSegnaposto() {
    QStringList parti;
    if (stima_) parti += u"circa %1 km"_s.arg(*stima_);  // first: the box may be too narrow for both
    if (kmDaIndicare_) parti += u"da indicare"_s;
    txtKm_->setPlaceholderText(parti.join(u", "_s));
}

// Tab leaves the empty field with the distance that stands there in grey.
bool FrmInputBox::eventFilter(QObject* oggetto, QEvent* evento) {
    const bool tasto = oggetto == txtKm_ && evento->type() == QEvent::KeyPress;
    if (tasto && static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Tab && stima_ && txtKm_->text().isEmpty()) {
        txtKm_->setText(QString::number(*stima_));
        kmStimati_ = true;
        Q_EMIT Cambiata();
    }
    return QGroupBox::eventFilter(oggetto, evento);
}

void FrmInputBox::FuocoSuiKm() {
    txtKm_->setFocus();
    txtKm_->selectAll();
}

void FrmInputBox::FuocoSullaTappa() {
    txtTappa_->setFocus();
    txtTappa_->selectAll();
}

}  // namespace cronovia
