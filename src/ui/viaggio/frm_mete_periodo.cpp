// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viaggio/frm_mete_periodo.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QTimer>
#include <algorithm>

#include "calendar/date.h"
#include "calendar/durata.h"
#include "calendar/testo.h"
#include "store/schema.h"
#include "ui/comuni/aiuti.h"
#include "ui/comuni/colori.h"
#include "ui/comuni/controlli.h"
#include "ui/comuni/maiuscole.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPrimoAnno = 1998;
constexpr int kAnniAvanti = 5;
constexpr std::array<int, 7> kCifreFine = {2, 2, 4, 2, 2, 4, 3};

// The last day on offer: that of the month, as far as it is known.
int UltimoGiorno(const PartiData& parti) {
    constexpr int kGiorniDelMesePiuLungo = 31;
    if (!parti.mese) return kGiorniDelMesePiuLungo;
    return *LeggiPartiData(u"99"_s + Zero(*parti.mese, 2) + (parti.anno ? Zero(*parti.anno, 4) : QString())).giorno;
}

// A group of controls in one row, led by its caption.
QHBoxLayout* NuovoGruppo(QGridLayout& griglia, int riga, const QString& nome, const QString& scritta) {
    auto* gruppo = new QFrame;
    gruppo->setObjectName(nome);
    gruppo->setAccessibleName(scritta);
    auto* layout = Spaziato(new QHBoxLayout(gruppo), Spazi::Unito);
    griglia.addWidget(NuovaScritta(scritta), riga, 0);
    griglia.addWidget(gruppo, riga, 1, 1, 2);
    return layout;
}

}  // namespace

FrmMetePeriodo::FrmMetePeriodo(int annoCorrente, QWidget* parent) : QGroupBox(u"Periodo del viaggio:"_s, parent) {
    setObjectName(u"frmMetePeriodo"_s);
    auto* layout = Spaziato(new QGridLayout(this), Spazi::Riquadro);
    CreaMeta(*layout);
    CreaInizio(*layout, annoCorrente);
    CreaFine(*layout);
    CreaCalcolo(*layout);
    layout->addWidget(NuovoAiuto(AiutoPeriodo()), 6, 2,
                      Qt::AlignRight | Qt::AlignBottom);  // Tab reaches it behind the fields
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(6, 1);
}

void FrmMetePeriodo::CreaMeta(QGridLayout& layout) {
    txtLocalita_ = NuovaCasella(u"txtLocalita"_s, Width(Table::MeteVandro, mete::Localita),
                                u"Destinazione del viaggio (obbligatoria)"_s);
    txtNazione_ = NuovaCasella(u"txtNazione"_s, Width(Table::MeteVandro, mete::Nazione),
                               u"Nazione della destinazione (obbligatoria)"_s);
    txtCodice_ = NuovoRisultato(u"txtCodice"_s, 6, u"Codice della mèta (automatico)"_s);
    for (QLineEdit* casella : {txtLocalita_, txtNazione_}) {
        ScriviMaiuscolo(*casella);
        connect(casella, &QLineEdit::textEdited, this, &FrmMetePeriodo::Cambiata);
    }
    layout.addWidget(NuovaEtichetta(u"Località"_s, *txtLocalita_), 0, 0);
    layout.addWidget(txtLocalita_, 0, 1);
    layout.addWidget(txtCodice_, 0, 2);
    layout.addWidget(NuovaEtichetta(u"Nazione"_s, *txtNazione_), 1, 0);
    layout.addWidget(txtNazione_, 1, 1);
}

void FrmMetePeriodo::CreaInizio(QGridLayout& griglia, int annoCorrente) {
    // Two rows, or the lists would not fit into a small window beside those of the other frames.
    QHBoxLayout* giorno = NuovoGruppo(griglia, 2, u"frmMeteInizio"_s, u"Inizio"_s);
    QHBoxLayout* ora = NuovoGruppo(griglia, 3, u"frmMeteOraInizio"_s, u"alle ore"_s);
    txtInizioGSett_ = NuovoRisultato(u"txtInizioGSett"_s, 3, u"Giorno della settimana della partenza"_s);
    giorno->addWidget(txtInizioGSett_);
    const std::array<QStringList, 5> voci = {Numeri(1, 31, 2), Numeri(1, 12, 2),
                                             Numeri(kPrimoAnno, annoCorrente + kAnniAvanti, 4), Numeri(0, 24, 2),
                                             Quarti()};
    const std::array<QString, 5> nomi = {
        u"Giorno d'inizio"_s, u"Mese d'inizio"_s,
        u"Anno d'inizio (dal %1 al %2)"_s.arg(kPrimoGiorno.anno).arg(kUltimoGiorno.anno), u"Ora d'inizio"_s,
        u"Minuti d'inizio"_s};
    for (std::size_t i = 0; i < cmbInizio_.size(); ++i) {
        cmbInizio_[i] = NuovoElenco(NomeDiSerie(u"cmbInizio"_s, static_cast<int>(i)), voci[i], nomi[i]);
        (i < 3 ? giorno : ora)->addWidget(cmbInizio_[i]);
        connect(cmbInizio_[i], &QComboBox::activated, this, [this] {
            MostraInizio(Inizio());
            Q_EMIT InizioCambiato();
        });
    }
    LasciaScrivereAnno();
    giorno->addStretch();
    ora->addStretch();
}

// Years beyond those on offer are typed.
void FrmMetePeriodo::LasciaScrivereAnno() {
    LasciaScrivereCifre(*cmbInizio_[2], 4);
    connect(cmbInizio_[2]->lineEdit(), &QLineEdit::editingFinished, this, &FrmMetePeriodo::AnnoScritto);
}

// A button that the mouse holds is let go before a box comes: its command says that the year is refused then.
void FrmMetePeriodo::AnnoScritto() {
    if (AnnoFuoriCalendario()) {
        constexpr int kFinoAllaProssimaOcchiata = 20;
        const auto tenuto = [] { return QGuiApplication::mouseButtons() != Qt::NoButton; };
        QTimer::singleShot(tenuto() ? kFinoAllaProssimaOcchiata : 0, this,
                           [this, tenuto] { tenuto() ? AnnoScritto() : static_cast<void>(RifiutaAnno()); });
    } else if (cmbInizio_[2]->currentText() != annoMostrato_) {
        MostraInizio(Inizio());
        Q_EMIT InizioCambiato();
    }
}

bool FrmMetePeriodo::AnnoFuoriCalendario() const {
    const QString anno = cmbInizio_[2]->currentText();
    const int numero = anno.toInt();
    return anno != annoMostrato_ && (numero < kPrimoGiorno.anno || numero > kUltimoGiorno.anno);
}

bool FrmMetePeriodo::RifiutaAnno() {
    if (!AnnoFuoriCalendario()) return false;
    MostraInizio(Inizio());
    Q_EMIT AnnoRifiutato();
    return true;
}

void FrmMetePeriodo::CreaFine(QGridLayout& griglia) {
    QHBoxLayout* layout = NuovoGruppo(griglia, 4, u"frmMeteFine"_s, u"Fine"_s);
    const std::array<QString, 7> nomi = {u"Giorno di fine"_s,  u"Mese di fine"_s,
                                         u"Anno di fine"_s,    u"Ora di fine"_s,
                                         u"Minuti di fine"_s,  u"Giorno della settimana della fine"_s,
                                         u"Numero di giorni"_s};
    for (std::size_t i = 0; i < txtFine_.size(); ++i) {
        txtFine_[i] = NuovoRisultato(NomeDiSerie(u"txtFine"_s, static_cast<int>(i)), kCifreFine[i], nomi[i]);
    }
    // As dates and hours are written, while there is an end.
    const std::array<QString, 7> dopo = {u"/"_s, u"/"_s, {}, u":"_s, {}, {}, u"gg."_s};
    for (const std::size_t i : {5U, 0U, 1U, 2U, 3U, 4U, 6U}) {
        layout->addWidget(txtFine_[i]);
        if (dopo[i].isEmpty()) continue;
        segniFine_.push_back(NuovaScritta(dopo[i]));
        layout->addWidget(segniFine_.back());
    }
    layout->addStretch();
    lblScadenza_ = NuovaScritta();
    lblScadenza_->setObjectName(u"lblScadenza"_s);
    lblScadenza_->setWordWrap(true);
    lblScadenza_->hide();
    griglia.addWidget(lblScadenza_, 6, 0, 1, 2);
}

void FrmMetePeriodo::CreaCalcolo(QGridLayout& griglia) {
    auto* layout = Spaziato(new QHBoxLayout, Spazi::Riga);
    cmbGiorni_ = NuovoElenco(u"cmbGiorni"_s, {u"000"_s},
                             u"Giorni che il viaggio deve durare: le soste si adeguano (000 = quanti ne servono)"_s);
    LasciaScrivereCifre(*cmbGiorni_, 4);
    connect(cmbGiorni_, &QComboBox::editTextChanged, this, [this](const QString& testo) {
        if (testo.isEmpty()) {
            cmbGiorni_->setEditText(u"000"_s);
            cmbGiorni_->lineEdit()->selectAll();
        }
        if (testo.toInt() > kMassimoGiorniAdeguamento) cmbGiorni_->setEditText(u"997"_s);
        Q_EMIT Cambiata();
    });
    cmbSoste_ = NuovoElenco(u"cmbSoste"_s,
                            {u"1 - Soste itinerario"_s, u"2 - Soste Guida"_s, u"3 - Sosta Maggiore"_s,
                             u"4 - Sosta minore"_s, u"5 - Nessuna sosta!"_s},
                            u"Soste che il calcolo prende in considerazione"_s);
    connect(cmbSoste_, &QComboBox::activated, this, &FrmMetePeriodo::Cambiata);
    griglia.addWidget(NuovaEtichetta(u"Giorni"_s, *cmbGiorni_), 5, 0);
    layout->addWidget(cmbGiorni_);
    layout->addWidget(NuovaEtichetta(u"Soste"_s, *cmbSoste_));
    layout->addWidget(cmbSoste_);
    layout->addStretch();
    griglia.addLayout(layout, 5, 1, 1, 2);
}

// The parts of the date that are chosen, the day kept within its month.
PartiData FrmMetePeriodo::Inizio() const {
    const auto parte = [this](std::size_t i) { return RiempiPrima(cmbInizio_[i]->currentText(), 2, u' '); };
    const QString anno = AnnoFuoriCalendario() ? annoMostrato_ : cmbInizio_[2]->currentText();
    return LeggiPartiData(parte(0) + parte(1) + RiempiPrima(anno, 4, u' '));
}

void FrmMetePeriodo::MostraInizio(const PartiData& parti) {
    const QSignalBlocker muto(cmbInizio_[0]);
    cmbInizio_[0]->clear();
    cmbInizio_[0]->addItems(Numeri(1, UltimoGiorno(parti), 2));
    const std::array<std::optional<int>, 3> numeri = {parti.giorno, parti.mese, parti.anno};
    for (std::size_t i = 0; i < numeri.size(); ++i) {
        if (numeri[i]) {
            MostraVoce(*cmbInizio_[i], Zero(*numeri[i], i == 2 ? 4 : 2));
        } else {
            cmbInizio_[i]->setCurrentIndex(-1);
        }
    }
    annoMostrato_ = cmbInizio_[2]->currentText();
    const std::optional<NumeroGiorno> giorno = parti.Giorno();
    txtInizioGSett_->setText(giorno ? GiornoSettimana(*giorno) : QString());
}

void FrmMetePeriodo::Mostra(const Meta& meta, const RiepilogoItinerario& riepilogo) {
    txtCodice_->setText(meta.codice);
    if (txtLocalita_->text() != meta.localita) txtLocalita_->setText(meta.localita);
    if (txtNazione_->text() != meta.nazione) txtNazione_->setText(meta.nazione);
    MostraInizio(meta.dataInizio ? LeggiPartiData(DataMemorizzata(*meta.dataInizio)) : meta.partiInizio);
    const QString ora = TestoOrario(meta.oraInizio);
    MostraVoce(*cmbInizio_[3], ora.left(2));
    MostraVoce(*cmbInizio_[4], ora.right(2));
    cmbSoste_->setCurrentIndex(static_cast<int>(meta.parametri.calcoloSoste) - 1);
    const QSignalBlocker muto(cmbGiorni_);
    cmbGiorni_->clear();
    for (const int giorni : GiorniProposti(riepilogo)) cmbGiorni_->addItem(Zero(giorni, 3));
    MostraVoce(*cmbGiorni_, Zero(meta.giorniAdeguamento, 3));
}

void FrmMetePeriodo::MostraFine(const TestiFine& fine) {
    const auto testi = fine.Elenco();
    for (std::size_t i = 0; i < txtFine_.size(); ++i) txtFine_[i]->setText(testi[i]);
    for (QLabel* segno : segniFine_) segno->setVisible(!fine.giorno.isEmpty());
}

void FrmMetePeriodo::MostraScadenza(const QString& scadenza, bool inRitardo) {
    MostraScritta(*lblScadenza_, scadenza);
    lblScadenza_->setVisible(!scadenza.isEmpty());
    QPalette colori = palette();
    if (inRitardo) colori.setColor(QPalette::WindowText, ColoreRitardo(colori, QPalette::Window, QPalette::WindowText));
    lblScadenza_->setPalette(colori);
}

void FrmMetePeriodo::Leggi(Meta& meta) const {
    meta.localita = txtLocalita_->text();
    meta.nazione = txtNazione_->text();
    const PartiData inizio = Inizio();
    meta.dataInizio = inizio.Giorno();
    meta.partiInizio = meta.dataInizio ? PartiData() : inizio;
    meta.oraInizio = LeggiOrario(cmbInizio_[3]->currentText() + cmbInizio_[4]->currentText());
    meta.giorniAdeguamento = cmbGiorni_->currentText().toInt();
    meta.parametri.calcoloSoste = static_cast<CalcoloSoste>(cmbSoste_->currentIndex() + 1);
}

void FrmMetePeriodo::FuocoSullInizio() {
    for (QComboBox* parte : {cmbInizio_[0], cmbInizio_[1]}) {
        if (parte->currentIndex() < 0) return parte->setFocus();
    }
    cmbInizio_[2]->setFocus();
}

void FrmMetePeriodo::FuocoSullAnno() {
    cmbInizio_[2]->setFocus();
    cmbInizio_[2]->lineEdit()->selectAll();
}

void FrmMetePeriodo::FuocoSullaLocalita() { txtLocalita_->setFocus(); }

void FrmMetePeriodo::FuocoSullaNazione() { txtNazione_->setFocus(); }

}  // namespace cronovia
