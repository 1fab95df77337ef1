// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viaggio/frm_mete_tempi.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <algorithm>

#include "calendar/testo.h"
#include "trips/limiti_parametri.h"
#include "ui/comuni/aiuti.h"
#include "ui/comuni/controlli.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// By the place of an hour in `kLimitiOrari`.
constexpr std::array<const char16_t*, kLimitiOrari.size()> kIstruzioniOrari = {
    u"Ora in cui comincia la giornata, dopo colazione",
    u"Ora del pranzo",
    u"Ora della cena",
    u"Ora in cui ci si ferma per la notte",
    u"Durata del pranzo",
    u"Durata della cena",
    u"Ora in cui cominciano le visite",
    u"Ora in cui finiscono le visite",
    u"Tempo medio di un traghetto",
};

QStringList NumeriDiRiposo() {
    QStringList numeri;
    for (const int minuti : kMinutiDiRiposo) numeri += Zero(minuti, 2);
    return numeri;
}

// A line of a sentence, as "ogni 02 h" is. Who hears it gets all its words from one label.
void AggiungiRiposo(QGridLayout& layout, int riga, const QString& prima, QComboBox& elenco, const QString& dopo) {
    auto* parole = Spaziato(new QHBoxLayout, Spazi::Riga);
    if (!prima.isEmpty()) parole->addWidget(NuovaScritta(prima));
    parole->addWidget(&elenco);
    QLabel* etichetta = NuovaEtichetta(dopo, elenco);
    etichetta->setAccessibleName((prima + u' ' + dopo).trimmed());
    parole->addWidget(etichetta);
    parole->addStretch();
    layout.addLayout(parole, riga, 5);
}

}  // namespace

FrmMeteTempi::FrmMeteTempi(Azioni& azioni) : QGroupBox(u"Tempi tecnici giornalieri/Riposi/Visite:"_s) {
    setObjectName(u"frmMeteTempi"_s);
    auto* layout = Spaziato(new QGridLayout(this), Spazi::Riquadro);
    layout->addWidget(NuovaScritta(u"Orari attività"_s), 0, 0, 1, 2);
    layout->addWidget(NuovaScritta(u"Durata"_s), 0, 3);
    AggiungiOrario(*layout, 0, 1, 0, u"Colaz."_s);
    AggiungiOrario(*layout, 1, 2, 0, u"Pranzo"_s);
    AggiungiOrario(*layout, 4, 2, 2, {});
    AggiungiOrario(*layout, 2, 3, 0, u"Cena"_s);
    AggiungiOrario(*layout, 5, 3, 2, {});
    AggiungiOrario(*layout, 3, 4, 0, u"Notte"_s);
    AggiungiOrario(*layout, 6, 5, 0, u"Visite"_s);
    AggiungiOrario(*layout, 7, 5, 2, u"alle"_s);
    AggiungiOrario(*layout, 8, 4, 2, u"Tragh."_s);
    CreaRiposi(*layout);
    CreaDefault(azioni, *layout);
    layout->setRowStretch(7, 1);
}

void FrmMeteTempi::AggiungiOrario(QGridLayout& layout, std::size_t orario, int riga, int colonna,
                                  const QString& etichetta) {
    const LimitiOrario& dati = kLimitiOrari[orario];
    const QString istruzione = QString::fromUtf16(kIstruzioniOrari[orario]);
    const auto indice = static_cast<int>(orario);
    cmbOra_[orario] =
        NuovoElenco(NomeDiSerie(u"cmbOra"_s, indice), Numeri(dati.primaOra, dati.ultimaOra, 2), istruzione);
    cmbMin_[orario] = NuovoElenco(NomeDiSerie(u"cmbMin"_s, indice), Quarti(), istruzione + u" (minuti)"_s);
    auto* coppia = Spaziato(new QHBoxLayout, Spazi::Unito);
    coppia->addWidget(cmbOra_[orario]);
    coppia->addWidget(cmbMin_[orario]);
    for (QComboBox* elenco : {cmbOra_[orario], cmbMin_[orario]}) {
        connect(elenco, &QComboBox::activated, this, &FrmMeteTempi::Cambiata);
        elenco->installEventFilter(this);
    }
    if (!etichetta.isEmpty()) {
        layout.addWidget(NuovaEtichetta(etichetta, *cmbOra_[orario]), riga, colonna);
    }
    layout.addLayout(coppia, riga, colonna + 1);
}

// An hour is looked at when its lists are left, not while the person is on the way to it.
bool FrmMeteTempi::eventFilter(QObject* oggetto, QEvent* evento) {
    const bool lasciato =
        evento->type() == QEvent::FocusOut && static_cast<QFocusEvent*>(evento)->reason() != Qt::PopupFocusReason;
    if (lasciato) Q_EMIT OrarioLasciato();
    return QGroupBox::eventFilter(oggetto, evento);
}

QComboBox* FrmMeteTempi::CreaRiposo(const QString& nome, const QStringList& voci, const QString& istruzione) {
    QComboBox* elenco = NuovoElenco(nome, voci, istruzione);
    connect(elenco, &QComboBox::activated, this, &FrmMeteTempi::Cambiata);
    return elenco;
}

void FrmMeteTempi::CreaRiposi(QGridLayout& layout) {
    cmbRipM_ = CreaRiposo(u"cmbRipM"_s, NumeriDiRiposo(), u"Minuti di un breve riposo"_s);
    cmbRipH_ = CreaRiposo(u"cmbRipH"_s, Numeri(0, kMassimeOreTraRiposi, 2), u"Ore di guida dopo le quali si riposa"_s);
    cmbRipG_ = CreaRiposo(u"cmbRipG"_s, Numeri(0, kMassimiGiorniDiRiposo, 2), u"Giorni interi di riposo"_s);
    cmbRipGG_ =
        CreaRiposo(u"cmbRipGG"_s, Numeri(0, kMassimiGiorniTraRiposi, 2), u"Giorni di viaggio dopo i quali si riposa"_s);
    layout.addWidget(NuovaScritta(u"Riposi"_s), 0, 5);
    AggiungiRiposo(layout, 1, {}, *cmbRipM_, u"minuti"_s);
    AggiungiRiposo(layout, 2, u"ogni"_s, *cmbRipH_, u"h"_s);
    AggiungiRiposo(layout, 3, {}, *cmbRipG_, u"giorni"_s);
    AggiungiRiposo(layout, 4, u"ogni"_s, *cmbRipGG_, u"gg"_s);
}

void FrmMeteTempi::CreaDefault(Azioni& azioni, QGridLayout& layout) {
    auto* riga = Spaziato(new QHBoxLayout, Spazi::Riga);
    for (const Comando comando : {Comando::SalvaDefault, Comando::CaricaDefault, Comando::RipristinaDefault}) {
        riga->addWidget(azioni.NuovoPulsante(comando));
    }
    riga->addStretch();
    riga->addWidget(NuovoAiuto(AiutoTempi()));
    layout.addLayout(riga, 6, 0, 1, 6);
}

bool FrmMeteTempi::OrarioInCorso() const {
    const auto conFuoco = [](const QComboBox* elenco) { return elenco->window()->focusWidget() == elenco; };
    return std::any_of(cmbOra_.begin(), cmbOra_.end(), conFuoco) ||
           std::any_of(cmbMin_.begin(), cmbMin_.end(), conFuoco);
}

void FrmMeteTempi::Mostra(const ParametriViaggio& parametri) {
    for (std::size_t i = 0; i < kOrari; ++i) {
        const QString orario = TestoOrario(parametri.*kLimitiOrari[i].valore);
        MostraVoce(*cmbOra_[i], orario.left(2));
        MostraVoce(*cmbMin_[i], orario.right(2));
    }
    MostraVoce(*cmbRipM_, Zero(parametri.riposoMinuti, 2));
    MostraVoce(*cmbRipH_, Zero(parametri.riposoOre, 2));
    MostraVoce(*cmbRipG_, Zero(parametri.riposoGiorno, 2));
    MostraVoce(*cmbRipGG_, Zero(parametri.riposoDopoGiorni, 2));
}

void FrmMeteTempi::Leggi(ParametriViaggio& parametri) const {
    for (std::size_t i = 0; i < kOrari; ++i) {
        parametri.*kLimitiOrari[i].valore = LeggiOrario(cmbOra_[i]->currentText() + cmbMin_[i]->currentText());
    }
    parametri.riposoMinuti = cmbRipM_->currentText().toInt();
    parametri.riposoOre = cmbRipH_->currentText().toInt();
    parametri.riposoGiorno = cmbRipG_->currentText().toInt();
    parametri.riposoDopoGiorni = cmbRipGG_->currentText().toInt();
}

}  // namespace cronovia
