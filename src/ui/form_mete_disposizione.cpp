// SPDX-License-Identifier: GPL-3.0-or-later
// What stands where in the main window: screens, panels, menus.
#include <QApplication>
#include <QGridLayout>
#include <QHeaderView>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <utility>

#include "app/comandi_scambio.h"
#include "ui/comuni/aiuti.h"
#include "ui/comuni/colori.h"
#include "ui/comuni/spazi.h"
#include "ui/form_mete.h"
#include "ui/giornate/pannello_giornate.h"
#include "ui/guida/frm_colonne.h"
#include "ui/mappa/pannello_mappa.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The panels and the grid follow each other's current row.
Pannello* NuoveGiornate(Postazione& postazione, Esegui esegui, SchermoGriglia& griglia) {
    auto* giornate = new PannelloGiornate(postazione, std::move(esegui));
    QObject::connect(&griglia, &SchermoGriglia::Corrente, giornate, &PannelloGiornate::Segue);
    QObject::connect(giornate, &PannelloGiornate::RigaScelta, &griglia, &SchermoGriglia::VaiAllaRiga);
    QObject::connect(giornate, &PannelloGiornate::GiornataScelta, &griglia, &SchermoGriglia::VaiAllaGiornata);
    QObject::connect(giornate, &PannelloGiornate::RigheChieste, &griglia.Vista(), qOverload<>(&QWidget::setFocus));
    return giornate;
}

Pannello* NuovaMappa(Postazione& postazione, Esegui esegui, SchermoGriglia& griglia) {
    auto* mappa = new PannelloMappa(postazione, std::move(esegui));
    QObject::connect(&griglia, &SchermoGriglia::TappaCorrente, mappa, &PannelloMappa::Segue);
    QObject::connect(mappa, &PannelloMappa::RigaScelta, &griglia, &SchermoGriglia::VaiAllaTappa);
    return mappa;
}

struct PannelloDellaFinestra {
    Qt::DockWidgetArea lato;  // until the person puts it elsewhere
    Pannello* (*crea)(Postazione&, Esegui, SchermoGriglia&);
};

constexpr std::array<PannelloDellaFinestra, 2> kPannelli = {
    {{Qt::BottomDockWidgetArea, &NuoveGiornate}, {Qt::RightDockWidgetArea, &NuovaMappa}}};

}  // namespace

void FormMete::Disponi(Stampanti stampanti) {
    auto* centro = new QWidget;
    auto* layout = Spaziato(new QVBoxLayout(centro), Spazi::Riquadro);
    areaGriglia_ = CreaAreaGriglia(std::move(stampanti));
    avviso_->setObjectName(u"lblAvviso"_s);
    avviso_->setWordWrap(true);
    avviso_->hide();
    auto* testa = Spaziato(new QHBoxLayout, Spazi::Pagina);
    testa->setContentsMargins({});
    testa->addWidget(testata_, 1);
    testa->addWidget(avanzamento_);
    layout->addLayout(testa);
    layout->addWidget(viaggio_);
    layout->addWidget(avviso_);
    layout->addWidget(areaGriglia_, 1);
    layout->addWidget(&scambio_.Riquadro(), 1);
    layout->addWidget(bottoni_);
    // With large texts it may be larger than the screen: then it is moved beneath the window.
    const int larghezza = std::max(screen()->availableSize().width(), AspettoFinestra::kMisura.width());
    if (centro->minimumSizeHint().width() <= larghezza) return setCentralWidget(centro);
    auto* scorre = new QScrollArea;
    scorre->setWidgetResizable(true);
    scorre->setFrameShape(QFrame::NoFrame);
    scorre->setWidget(centro);
    setCentralWidget(scorre);
    // A button far to the right that has the focus for a moment draws the view there; the grid is read from its left.
    connect(qApp, &QApplication::focusChanged, scorre, [this, scorre](QWidget* /*prima*/, QWidget* ora) {
        if (ora == &griglia_.Vista()) scorre->horizontalScrollBar()->setValue(0);
    });
}

// The grid takes the room that is left; the lists lie over it, the entry frame beside it.
QWidget* FormMete::CreaAreaGriglia(Stampanti stampanti) {
    auto* area = new QWidget;
    area->setObjectName(u"areaGriglia"_s);
    auto* layout = Spaziato(new QGridLayout(area), Spazi::Riga);
    layout->addWidget(&griglia_.Vista(), 0, 0);
    layout->addWidget(&viaggio_->Elenco(), 0, 0, Qt::AlignLeft);
    layout->addWidget(cmbRicercaTappa_, 0, 0, Qt::AlignLeft);
    layout->addWidget(&inserimento_.Area(), 0, 1, 2, 1);
    layout->addWidget(&copia_.RiquadroTratto(), 0, 1, 2, 1);
    layout->addWidget(&copia_.Lista(), 1, 0);
    layout->addWidget(&guida_.Riquadro(), 1, 0, 1, 2);
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(0, 1);
    CreaStampe(*layout, std::move(stampanti));
    CreaBenvenuto(*layout);
    return area;
}

void FormMete::CreaStampe(QGridLayout& area, Stampanti stampanti) {
    stampante_ = new FrmSelStampa(azioni_, stampanti);
    const Ambiente ambiente{
        postazione_,         interazione_, *avanzamento_, *this, [this](const auto& comando) { Esegui(comando); },
        std::move(stampanti)};
    stampa_ = new ComandoStampa(ambiente, azioni_, *stampante_, area);
    stampaGuida_ = new ComandoStampaGuida(ambiente, azioni_, *stampante_, area);
    area.addWidget(stampante_, 0, 0, Qt::AlignCenter);
}

void FormMete::CreaBenvenuto(QGridLayout& area) {
    benvenuto_ = new Benvenuto;
    area.addWidget(benvenuto_, 0, 0, 2, 2);
    connect(benvenuto_, &Benvenuto::NuovoViaggio, &azioni_.Di(Comando::Nuovo), &QAction::trigger);
    connect(benvenuto_, &Benvenuto::Importa, &azioni_.Di(Comando::Import), &QAction::trigger);
    connect(benvenuto_, &Benvenuto::Esempio, this, [this](const QString& file) {
        Esegui([&] { comandi::ApriEsempio(postazione_, file); });
        griglia_.Vista().setFocus();
    });
}

// What stands in menus beside the commands.
void FormMete::CompletaMenu() {
    postazione_.volti.manuale = [this](const QString& argomento) { ApriManuale(argomento); };
    postazione_.volti.preferenze = [this] { ScegliPreferenze(); };
    postazione_.volti.chiediColonne = [this](const TabellaDaSpiegare& tabella) {
        return ChiediColonne(*this, tabella);
    };
    postazione_.volti.lavoraIn = [this](const QString& cartella) { Q_EMIT LavoraIn(cartella); };
    for (const Comando comando :
         {Comando::Annulla, Comando::Ripeti, Comando::Taglia, Comando::Copia, Comando::Incolla, Comando::DuplicaRighe,
          Comando::TogliRighe, Comando::SpostaSu, Comando::SpostaGiu, Comando::DividiTappa, Comando::FineGiornata}) {
        griglia_.Vista().addAction(&azioni_.Di(comando));
    }
    azioni_.MenuDi(Menu::Vista).addAction(&testata_->Azione());
    connect(&testata_->Azione(), &QAction::toggled, this, [this] { FuocoInVista(); });
    azioni_.MenuDi(Menu::Vista).addActions(griglia_.Vista().horizontalHeader()->actions());
    QMenu& aiuto = azioni_.MenuDi(Menu::Aiuto);
    QAction* informazioni = &azioni_.Di(Comando::Informazioni);
    for (const Istruzioni& istruzioni : TutteLeIstruzioni()) {
        auto* azione = new QAction(istruzioni.titolo, this);
        azione->setObjectName(u'h' + istruzioni.pulsante.mid(4));
        connect(azione, &QAction::triggered, this, [this, istruzioni] { MostraIstruzioni(istruzioni, *this); });
        aiuto.insertAction(informazioni, azione);
    }
    aiuto.insertSeparator(informazioni);
}

void FormMete::PreparaCalcoloDalVivo() {
    dalVivo_->setObjectName(u"calcoloDalVivo"_s);
    dalVivo_->setCheckable(true);
    azioni_.MenuDi(Menu::Cronovia).addAction(dalVivo_);
    connect(dalVivo_, &QAction::toggled, this, [this](bool acceso) {
        postazione_.dalVivo = acceso;
        Mostra();
    });
    attesaDalVivo_.setSingleShot(true);
    connect(&attesaDalVivo_, &QTimer::timeout, this, [this] {
        if (!inCorso_) MostraLeGiornate();
    });
}

// One that comes up is told where the grid is.
void FormMete::CreaPannelli() {
    for (const auto& [lato, crea] : kPannelli) {
        Pannello* pannello = crea(
            postazione_, [this](const auto& comando) { Esegui(comando); }, griglia_);
        pannello->hide();
        AggiungiPannello(*pannello, lato);
        connect(pannello, &QDockWidget::visibilityChanged, &griglia_, &SchermoGriglia::DiceLaCorrente);
    }
}

void FormMete::AggiungiPannello(Pannello& pannello, Qt::DockWidgetArea lato) {
    if (!restoreDockWidget(&pannello)) addDockWidget(lato, &pannello);
    pannelli_.push_back(&pannello);
    azioni_.MenuDi(Menu::Vista).addAction(pannello.toggleViewAction());
    pannello.Mostra(postazione_);
}

void FormMete::RendiLeggibile() {
    const QPalette leggibile = ConDisabilitatiLeggibili(QApplication::palette());
    if (leggibile != palette()) setPalette(leggibile);
    // Menus are windows of their own, and would keep the program's.
    for (auto* menu : findChildren<QMenu*>()) {
        if (leggibile != menu->palette()) menu->setPalette(leggibile);
    }
    MostraLeSpunte(*this);
}

void FormMete::SegueAspetto() {
    aspetto_.Segue(*this);
    aspetto_.Segue(
        u"dalVivo"_s, [this] { return dalVivo_->isChecked(); },
        [this](const QVariant& acceso) { dalVivo_->setChecked(acceso.toBool()); });
    aspetto_.Segue(
        u"colonne"_s, [this] { return griglia_.Vista().Larghezze(); },
        [this](const QVariant& larghezze) { griglia_.Vista().RipristinaLarghezze(larghezze.toByteArray()); });
    aspetto_.Segue(
        u"datiDelViaggio"_s, [this] { return testata_->Azione().isChecked(); },
        [this](const QVariant& aperti) { testata_->Azione().setChecked(aperti.isNull() || aperti.toBool()); });
    for (Pannello* pannello : pannelli_) pannello->SiRicorda(aspetto_);
    aspetto_.Segue(
        u"mappaSuCarta"_s, [this] { return stampa_->ConMappa(); },
        [this](const QVariant& voluta) { stampa_->ConMappa(voluta.toBool()); });
    aspetto_.Ripristina();
}

}  // namespace cronovia
