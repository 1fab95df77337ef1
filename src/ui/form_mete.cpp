#include "ui/form_mete.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QSessionManager>
#include <QVBoxLayout>
#include <utility>

#include "calendar/testo.h"
#include "ui/inserimento/scelta_percorso.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kRigheMinimeGriglia = 17;
constexpr int kColonneLocalita = 31;

}  // namespace

FormMete::FormMete(const QString& cartella, std::function<QDateTime()> adesso)
    : aspetto_(QDir(cartella).filePath(u"Cronovia.ini"_s), QSettings::IniFormat),
      avanzamento_(new Avanzamento),
      interazione_(*this),
      periodo_(new FrmMetePeriodo(adesso().date().year())),
      velocita_(new FrmMeteVelocita),
      tempi_(new FrmMeteTempi),
      bottoni_(new FrmBottoni),
      inserimento_(new FrmInputBox),
      export_(new FrmExport),
      griglia_(new VistaGriglia),
      cmbRicerca_(new ElencoScelta(u"cmbRicerca"_s, u"Mète memorizzate"_s)),
      cmbRicercaTappa_(new ElencoScelta(u"cmbRicercaTappa"_s, u"Località dell'itinerario"_s)),
      scrivania_(cartella, {interazione_, *avanzamento_, std::move(adesso), [this] { Mostra(); }}) {
    setObjectName(u"formMete"_s);
    setWindowTitle(u"Cronovia"_s);
    Disponi();
    Collega();
    CollegaScambio();
    RipristinaAspetto();
    Mostra();
}

// Frames that go lose the focus and say so; nobody is there to listen any more.
FormMete::~FormMete() {
    for (QWidget* riquadro : findChildren<QWidget*>()) riquadro->disconnect(this);
}

void FormMete::Disponi() {
    auto* centro = new QWidget;
    auto* layout = new QVBoxLayout(centro);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(CreaMete());
    layout->addWidget(avanzamento_);
    layout->addWidget(CreaGriglia(), 1);
    layout->addWidget(export_, 1);
    layout->addWidget(bottoni_);
    setCentralWidget(centro);
}

QWidget* FormMete::CreaMete() {
    auto* riga = new QWidget;
    auto* layout = new QHBoxLayout(riga);
    layout->setContentsMargins({});
    layout->setSpacing(3);
    layout->addWidget(periodo_, 1);
    layout->addWidget(velocita_);
    layout->addWidget(tempi_);
    return riga;
}

// The grid takes the room that is left; the lists lie over it, the entry frame beside it.
QWidget* FormMete::CreaGriglia() {
    auto* area = new QWidget;
    area->setObjectName(u"areaGriglia"_s);
    auto* layout = new QGridLayout(area);
    layout->setContentsMargins({});
    layout->addWidget(griglia_, 0, 0);
    layout->addWidget(cmbRicerca_, 0, 0, Qt::AlignLeft);
    layout->addWidget(cmbRicercaTappa_, 0, 0, Qt::AlignLeft);
    auto* scorrimento = new QScrollArea;
    scorrimento->setWidget(inserimento_);
    scorrimento->setWidgetResizable(true);
    scorrimento->setFrameShape(QFrame::NoFrame);
    scorrimento->setFocusPolicy(Qt::NoFocus);
    scorrimento->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scorrimento->setMinimumWidth(inserimento_->minimumSizeHint().width() + 20);
    scorrimento->setObjectName(u"areaInserimento"_s);
    const auto esegui = [this](const std::function<void()>& comando) { Esegui(comando); };
    guida_ = std::make_unique<SchermoGuida>(scrivania_, *griglia_, *cmbRicercaTappa_, esegui);
    copia_ = std::make_unique<SchermoCopia>(scrivania_, *scorrimento, esegui);
    layout->addWidget(scorrimento, 0, 1, 2, 1);
    connect(copia_.get(), &SchermoCopia::Chiusa, inserimento_, &FrmInputBox::FuocoSullaTappa);
    layout->addWidget(&copia_->Percorso(), 0, 1, 2, 1);
    layout->addWidget(&copia_->Lista(), 1, 0);
    layout->addWidget(&guida_->Riquadro(), 1, 0, 1, 2);
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(0, 1);
    const ComandoStampa::Volti volti{scrivania_, interazione_, *avanzamento_, *this, esegui};
    stampa_ = new ComandoStampa(volti, *layout);
    guida_->ImpostaStampa(*new ComandoStampaGuida(volti, stampa_->Stampante(), *layout));
    azioni_ = new AzioniModifica(*this, {inserimento_, griglia_}, scrivania_, esegui);
    griglia_->setContextMenuPolicy(Qt::ActionsContextMenu);
    griglia_->setModel(&modello_);
    cmbRicercaTappa_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    for (QListWidget* lista : {cmbRicerca_, cmbRicercaTappa_}) {
        lista->setMinimumSize(340, 240);
        lista->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    }
    return area;
}

void FormMete::Collega() {
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &FormMete::FineSessione, Qt::DirectConnection);
    connect(periodo_, &FrmMetePeriodo::Cambiata, this, &FormMete::Raccogli);
    connect(velocita_, &FrmMeteVelocita::Cambiata, this, &FormMete::Raccogli);
    connect(periodo_, &FrmMetePeriodo::InizioCambiato, this,
            [this] { Esegui([this] { scrivania_.AggiornaOrari(); }); });
    connect(tempi_, &FrmMeteTempi::Cambiata, this, &FormMete::Raccogli);
    connect(tempi_, &FrmMeteTempi::OrarioLasciato, this, [this] { Esegui([this] { scrivania_.ControllaOrari(); }); });
    connect(tempi_, &FrmMeteTempi::Default, this, [this](int comando) {
        Esegui([this, comando] {
            if (comando == 0) scrivania_.SalvaDefault();
            if (comando == 1) scrivania_.CaricaDefault();
            if (comando == 2) scrivania_.RipristinaDefault();
        });
    });
    connect(bottoni_, &FrmBottoni::Premuto, this, [this](Comando comando) { EseguiComando(comando); });
    connect(inserimento_, &FrmInputBox::Premuto, this, [this](ComandoItinerario c) { EseguiComando(c); });
    connect(inserimento_, &FrmInputBox::AltriPacchetti, this, [this] {
        Esegui([this] { scrivania_.AltriPacchetti([this] { return ScegliFilePercorso(*this); }); });
        inserimento_->FuocoSullaTappa();
    });
    connect(griglia_, &VistaGriglia::Spostamento, this, [this](int righe) {
        Esegui([this, righe] { scrivania_.SelezionaRiga(scrivania_.RigaCorrente() + righe); });
        griglia_->setFocus();
    });
    // However a row became the current one, commands act on it.
    connect(griglia_, &VistaGriglia::RigaCorrente, this, [this](int riga) {
        if (!scrivania_.CronoviaMostrata() && !scrivania_.Guida())
            Esegui([this, riga] { scrivania_.SelezionaRiga(riga + 1); });
    });
    connect(griglia_, &QTableView::clicked, this, [this] {
        if (scrivania_.InserimentoVisibile()) inserimento_->FuocoSullaTappa();
    });
    connect(cmbRicerca_, &ElencoScelta::Scelta, this, [this](QListWidgetItem* voce) {
        Esegui([this, voce] { scrivania_.ScegliMeta(voce->data(Qt::UserRole).toString()); });
    });
    connect(cmbRicercaTappa_, &ElencoScelta::Scelta, this, [this](QListWidgetItem* voce) {
        if (scrivania_.Guida()) return;
        Esegui([this, voce] { scrivania_.ScegliTappa(voce->data(Qt::UserRole).toInt()); });
        inserimento_->FuocoSullaTappa();
    });
}

// What the fields hold, taken over while the person types.
void FormMete::Raccogli() {
    if (mostrando_) return;
    Meta meta = scrivania_.MetaInCorso();
    periodo_->Leggi(meta);
    velocita_->Leggi(meta.parametri);
    tempi_->Leggi(meta.parametri);
    scrivania_.ImpostaMeta(meta);
}

// A long command lets the window live; what the person asks for meanwhile is not begun.
void FormMete::Esegui(const std::function<void()>& comando) {
    if (mostrando_ || inCorso_) return;
    inCorso_ = true;
    const QPointer<QWidget> fuoco = focusWidget();
    Raccogli();
    comando();
    inCorso_ = false;
    Mostra();
    // A control that was disabled meanwhile had to give the focus away.
    if (fuoco != nullptr && fuoco->isVisible() && fuoco->isEnabled()) fuoco->setFocus();
}

void FormMete::EseguiComando(Comando comando) {
    switch (comando) {
        case Comando::Nuovo:
            Esegui([this] { scrivania_.Nuovo(); });
            periodo_->FuocoSullaLocalita();
            return;
        case Comando::Ricerca:
            Esegui([this] { scrivania_.Ricerca(); });
            cmbRicerca_->setFocus();
            return;
        case Comando::Salva:
            return Esegui([this] { scrivania_.Salva(); });
        case Comando::CancMeta:
            return Esegui([this] { scrivania_.CancMeta(); });
        case Comando::Calcola:
            avanzamento_->NuovaOperazione();
            return Esegui([this] { scrivania_.Calcola(); });
        case Comando::Itinerario:
            Esegui([this] { scrivania_.Itinerario(); });
            inserimento_->FuocoSullaTappa();
            return;
        case Comando::CancItin:
            return Esegui([this] { scrivania_.CancItin(); });
        case Comando::Esce:
            return Esci();
        case Comando::Stampa:
            avanzamento_->NuovaOperazione();
            Esegui([this] { stampa_->Apri(); });
            return stampa_->Fuoco();
        case Comando::GuidaCitta:
            return guida_->Apri();
        case Comando::Import:
        case Comando::Export:
            return Scambio(comando);
    }
}

void FormMete::EseguiComando(ComandoItinerario comando) {
    switch (comando) {
        case ComandoItinerario::Inserisce:
            return Inserisci();
        case ComandoItinerario::Aggiunge:
            Esegui([this] { scrivania_.Aggiunge(); });
            break;
        case ComandoItinerario::Cancella:
            Esegui([this] { scrivania_.Cancella(); });
            break;
        case ComandoItinerario::AzzeraSoste:
            return Esegui([this] { scrivania_.AzzeraSoste(); });
        case ComandoItinerario::Cerca:
            Esegui([this] { scrivania_.Cerca(); });
            cmbRicercaTappa_->setFocus();
            return;
        case ComandoItinerario::Memorizza:
            return Esegui([this] { scrivania_.Memorizza(); });
        case ComandoItinerario::Fine:
            Esegui([this] { scrivania_.Fine(); });
            if (!scrivania_.InserimentoVisibile()) return;
            break;
        case ComandoItinerario::Ricalcola:
            avanzamento_->NuovaOperazione();
            return Esegui([this] { scrivania_.Ricalcola(); });
        case ComandoItinerario::Ritorno:
            Esegui([this] { scrivania_.Ritorno(); });
            break;
        case ComandoItinerario::Duplica:
            return copia_->Apri();
        case ComandoItinerario::Trasferisce:
            return Esegui([this] { scrivania_.Trasferisce(); });
    }
    inserimento_->FuocoSullaTappa();
}

// After a refusal the fields keep what was typed.
void FormMete::Inserisci() {
    if (inCorso_) return;
    Raccogli();
    if (scrivania_.Inserisce(inserimento_->Campi())) Mostra();
    inserimento_->FuocoSullaTappa();
}

void FormMete::Esci() {
    const QString titolo = u"Fine Lavoro"_s;
    if (scrivania_.CalcoloInCorso()) {
        if (interazione_.Ask({u"Vuoi interrompere l'elaborazione?"_s, titolo}) == Answer::Yes)
            avanzamento_->ChiediStop();
        return;
    }
    if (interazione_.Ask({u"Vuoi chiudere la procedura?"_s, titolo}) == Answer::Yes) close();
}

void FormMete::closeEvent(QCloseEvent* event) {
    if (scrivania_.CalcoloInCorso()) {
        Esci();
        event->ignore();
        return;
    }
    if (!PossoChiudere()) {
        event->ignore();
        return;
    }
    RicordaAspetto();
    event->accept();
}

bool FormMete::PossoChiudere() {
    bool chiudo = false;
    Esegui([&] { chiudo = scrivania_.PossoChiudere(); });
    return chiudo;
}

// The desktop session is about to end.
void FormMete::FineSessione(QSessionManager& sessione) {
    if (!isVisible() || !sessione.allowsInteraction()) return;
    const bool chiudo = PossoChiudere();
    sessione.release();
    if (!chiudo) sessione.cancel();
}

// Enter means the default button, Escape what leads back.
void FormMete::keyPressEvent(QKeyEvent* event) {
    if (guida_->Tasto(*event) || copia_->Tasto(*event)) return;
    const StatoComandi stato = scrivania_.Comandi();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        auto* conFuoco = qobject_cast<QPushButton*>(focusWidget());
        QPushButton* normale = scrivania_.InserimentoVisibile() ? &inserimento_->Pulsante(ComandoItinerario::Inserisce)
                                                                : &bottoni_->Pulsante(Comando::Esce);
        (conFuoco != nullptr ? conFuoco : normale)->click();
    } else if (event->key() == Qt::Key_Escape && scrivania_.ElencoMeteMostrato()) {
        Esegui([this] { scrivania_.ChiudiElencoMete(); });
    } else if (event->key() == Qt::Key_Escape && scrivania_.ElencoTappeVisibile()) {
        Esegui([this] { scrivania_.Fine(); });
    } else if (event->key() == Qt::Key_Escape && stampa_->Aperto()) {
        stampa_->Rinuncia();
    } else if (event->key() == Qt::Key_Escape && stato.escEsce) {
        bottoni_->Pulsante(Comando::Esce).click();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void FormMete::Mostra() {
    mostrando_ = true;
    const Meta& meta = scrivania_.MetaInCorso();
    const StatoComandi stato = scrivania_.Comandi();
    const auto& cronovia = scrivania_.CronoviaMostrata();
    const RiepilogoItinerario& riepilogo = scrivania_.Riepilogo();
    periodo_->Mostra(meta, riepilogo);
    periodo_->MostraFine(cronovia ? TestiFine(*cronovia) : std::array<QString, 7>());
    velocita_->Mostra(meta.parametri);
    velocita_->MostraTotali(cronovia ? Testi(cronovia->totali, cronovia->orario.GuidaGiorno())
                                     : Testi(riepilogo.totali, riepilogo.guidaGiorno));
    tempi_->Mostra(meta.parametri);
    const bool campiLiberi =
        !cronovia && !scrivania_.CalcoloInCorso() && !scrivania_.Scambio() && !guida_->StampaAperta();
    for (QWidget* riquadro :
         {static_cast<QWidget*>(periodo_), static_cast<QWidget*>(velocita_), static_cast<QWidget*>(tempi_)}) {
        riquadro->setEnabled(campiLiberi);
    }
    MostraGriglia();
    MostraElenchi();
    MostraInserimento(stato);
    MostraScambio();
    bottoni_->Applica(stato, cronovia.has_value(), scrivania_.ConverteOfferto());
    stampa_->Aggiorna();
    // Alt+S is that of the print frames then.
    if (stampa_->Aperto()) bottoni_->Pulsante(Comando::Calcola).setShortcut({});
    azioni_->Mostra(!guida_->StampaAperta());
    mostrando_ = false;
}

void FormMete::MostraGriglia() {
    if (guida_->Mostra(kRigheMinimeGriglia)) return;
    griglia_->MostraTappe(modello_);
    const auto& cronovia = scrivania_.CronoviaMostrata();
    if (cronovia && !cronoviaInGriglia_) {
        modello_.MostraCronovia(*cronovia);
        DistendiGuida();
    } else if (!cronovia) {
        griglia_->clearSpans();
        modello_.MostraItinerario(scrivania_.Righe(), scrivania_.Riepilogo(), kRigheMinimeGriglia);
    }
    cronoviaInGriglia_ = cronovia.has_value();
    griglia_->ImpostaSelezione(!cronovia);
    if (!cronovia) griglia_->SelezionaRiga(scrivania_.RigaCorrente() - 1);
}

// Guide entries have long texts and no road: theirs runs over the columns of the road.
void FormMete::DistendiGuida() {
    constexpr int kPrima = static_cast<int>(Colonna::Tappa);
    constexpr int kColonneDistese = static_cast<int>(Colonna::Sosta) - kPrima;
    griglia_->clearSpans();
    for (int riga = 0; riga < modello_.rowCount(); ++riga) {
        if (modello_.SegnoDellaRiga(riga) == Segno::Guida) griglia_->setSpan(riga, kPrima, 1, kColonneDistese);
    }
}

void FormMete::MostraElenchi() {
    const auto& mete = scrivania_.ElencoMeteMostrato();
    if (mete && !cmbRicerca_->isVisible()) {
        cmbRicerca_->clear();
        for (const MetaInElenco& meta : *mete) {
            auto* voce = new QListWidgetItem(meta.localita, cmbRicerca_);
            voce->setData(Qt::UserRole, meta.codice);
            if (meta.codice == scrivania_.CodiceMetaCorrente()) cmbRicerca_->setCurrentItem(voce);
        }
    }
    cmbRicerca_->setVisible(mete.has_value());
    if (scrivania_.Guida()) return;
    const bool tappe = scrivania_.ElencoTappeVisibile();
    if (tappe && !cmbRicercaTappa_->isVisible()) {
        cmbRicercaTappa_->clear();
        for (std::size_t i = 0; i < scrivania_.Righe().size(); ++i) {
            const QString& localita = scrivania_.Righe()[i].localita;
            if (localita.isEmpty()) continue;
            const auto riga = static_cast<int>(i) + 1;
            auto* voce =
                new QListWidgetItem(AggStr(localita, kColonneLocalita, u' ') + Zero(riga, 4), cmbRicercaTappa_);
            voce->setData(Qt::UserRole, riga);
            if (riga == scrivania_.RigaCorrente()) cmbRicercaTappa_->setCurrentItem(voce);
        }
    }
    cmbRicercaTappa_->setVisible(tappe);
    griglia_->setEnabled(!tappe && !mete && !scrivania_.CalcoloInCorso());
}

void FormMete::MostraInserimento(const StatoComandi& stato) {
    const bool visibile = scrivania_.InserimentoVisibile();
    copia_->Mostra();
    inserimento_->Applica(stato);
    if (!visibile) {
        campiMostrati_.reset();
        return;
    }
    // What is being typed stays, unless another stage has come into its row.
    std::pair<int, CampiTappa> campi{scrivania_.RigaCorrente(), scrivania_.CampiCorrenti()};
    if (campiMostrati_ != campi) inserimento_->Mostra(campi.first, campi.second);
    campiMostrati_ = std::move(campi);
    inserimento_->MostraKmProgressivi(scrivania_.KmProgressivi());
}

void FormMete::RipristinaAspetto() {
    resize(QSize(1280, 800).boundedTo(screen()->availableSize()));
    restoreGeometry(aspetto_.value(u"finestra"_s).toByteArray());
    griglia_->RipristinaLarghezze(aspetto_.value(u"colonne"_s).toByteArray());
}

void FormMete::RicordaAspetto() {
    aspetto_.setValue(u"finestra"_s, saveGeometry());
    aspetto_.setValue(u"colonne"_s, griglia_->Larghezze());
}

}  // namespace cronovia
