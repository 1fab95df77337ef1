// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/form_mete.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDateTime>
#include <QDialog>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMimeData>
#include <QPointer>
#include <QSessionManager>
#include <chrono>
#include <utility>

#include "app/comandi_inserimento.h"
#include "app/comandi_scambio.h"
#include "app/comandi_viaggio.h"
#include "app/niente_perso.h"
#include "exchange/iei/esporta_mete.h"
#include "files/celle.h"
#include "ui/archivio/controllo_in_pausa.h"
#include "ui/archivio/frm_copie.h"
#include "ui/comuni/richiesta_di_fine.h"
#include "ui/comuni/testo_mostrato.h"
#include "ui/guida/frm_soste.h"
#include "ui/inserimento/frm_divisione.h"
#include "ui/inserimento/frm_vincoli.h"
#include "ui/inserimento/scelta_percorso.h"
#include "ui/scambio/file_scambio.h"
#include "ui/viaggio/frm_confronto.h"
#include "ui/viaggio/frm_scadenza.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// No more than this is lost of what is typed, whatever happens.
constexpr std::chrono::milliseconds kOgniQuantoAlSicuro(1000);

// What has cells is a table too, for programs that take those.
void MettiNegliAppunti(const QString& testo) {
    auto contenuto = std::make_unique<QMimeData>();
    contenuto->setText(testo);
    if (testo.contains(u'\t')) contenuto->setHtml(TabellaHtml(testo));
    QGuiApplication::clipboard()->setMimeData(contenuto.release());
}

}  // namespace

FormMete::FormMete(const QString& cartella, std::function<QDateTime()> adesso, Stampanti stampanti)
    : aspetto_(cartella),
      azioni_(*this),
      avanzamento_(new Avanzamento),
      interazione_(*this),
      postazione_(cartella, NuoviVolti(std::move(adesso))),
      cmbRicercaTappa_(new ElencoScelta(u"cmbRicercaTappa"_s, u"Località dell'itinerario"_s)),
      viaggio_(new SchermoViaggio(postazione_, azioni_, [this](const auto& comando) { Esegui(comando); })),
      testata_(new TestataViaggio(postazione_, *viaggio_)),
      bottoni_(new FrmBottoni(azioni_)),
      griglia_(postazione_, [this](const auto& comando) { Esegui(comando); }),
      inserimento_(postazione_, azioni_, griglia_.Vista(), *cmbRicercaTappa_,
                   [this](const auto& comando) { Esegui(comando); }),
      copia_(postazione_, azioni_, inserimento_.Area(), [this](const auto& comando) { Esegui(comando); }),
      guida_(postazione_, azioni_, griglia_.Vista(), *cmbRicercaTappa_,
             [this](const auto& comando) { Esegui(comando); }),
      scambio_(postazione_, azioni_, [this](const auto& comando) { Esegui(comando); }) {
    setObjectName(u"formMete"_s);
    Disponi(std::move(stampanti));
    CompletaMenu();
    PreparaCalcoloDalVivo();
    Collega();
    CreaPannelli();
    RendiLeggibile();
    SegueAspetto();
    Mostra();
    FuocoSenzaMete();
}

// Frames that go lose the focus and say so: they go while there is somebody to listen, who does nothing any more.
FormMete::~FormMete() {
    mostrando_ = true;
    qDeleteAll(pannelli_);
    delete takeCentralWidget();
}

Volti FormMete::NuoviVolti(std::function<QDateTime()> adesso) {
    return {
        interazione_,
        *avanzamento_,
        std::move(adesso),
        [this] { Mostra(); },
        [this](FileChiesto quale) { return ScegliFile(quale); },
        [this] { close(); },
        [this] { avanzamento_->ChiediStop(); },
        [] { return QGuiApplication::clipboard()->text(); },
        &MettiNegliAppunti,
        [this](const QString& da, const Tappa& tappa) { return ChiediDivisione(*this, da, tappa); },
        [this] { postazione_.Su<schermata::Guida>() ? stampaGuida_->MostraAnteprima() : stampa_->MostraAnteprima(); },
        [this] { postazione_.Su<schermata::Guida>() ? stampaGuida_->Stampa() : stampa_->Stampa(); },
        [this](const std::vector<CopiaInElenco>& copie) { return ChiediCopia(*this, copie); },
        [this](const FormatoViaggio& formato, const QString& nome) { return ScegliFileViaggio(*this, formato, nome); },
        [this](const Tappa& tappa) { return ChiediVincoli(*this, tappa); },
        [this](const Meta& meta) { return ChiediScadenza(*this, meta); },
        [this](const std::vector<Alternativa>& alternative) { return ScegliAlternativa(*this, alternative); },
        [this](const std::vector<SostaProposta>& soste) { return ConfermaSoste(*this, soste); }};
}

void FormMete::ApriManuale(const QString& argomento) {
    if (manuale_ == nullptr) manuale_ = new FinestraManuale(*this);
    manuale_->VaiA(argomento);
}

void FormMete::ScegliPreferenze() {
    Preferenze preferenze = LeggiPreferenze(aspetto_.Impostazioni());
    preferenze.dalVivo = dalVivo_->isChecked();
    if (!ChiediPreferenze(preferenze, QCoreApplication::applicationDirPath(), *this)) return;
    RicordaPreferenze(preferenze, aspetto_.Impostazioni());
    ApplicaColori(preferenze);
    dalVivo_->setChecked(preferenze.dalVivo);
}

void FormMete::Comincia() {
    Esegui([&] { OffriRecupero(postazione_); });
    auto* battito = new QTimer(this);
    connect(battito, &QTimer::timeout, this, &FormMete::MettiAlSicuro);
    battito->start(kOgniQuantoAlSicuro);
    const Archive& archivio = postazione_.sessione.Archivio();
    if (archivio.WasChecked() || !archivio.Damage().isEmpty()) return;
    auto* controllo = new ControlloInPausa(archivio.Path(), this);
    connect(controllo, &ControlloInPausa::Danneggiato, this, &FormMete::DiceDelDanno);
}

// In the middle of a command it waits.
void FormMete::DiceDelDanno() {
    const auto dice = [this] { postazione_.Prova([this] { postazione_.sessione.Archivio().ConfirmSound(); }); };
    const bool libera = postazione_.attivita == Attivita::Nessuna && QApplication::activeModalWidget() == nullptr;
    if (!libera || !Esegui(dice)) QTimer::singleShot(kOgniQuantoAlSicuro, this, &FormMete::DiceDelDanno);
}

void FormMete::Richiama(const QString& file, const QByteArray& attivazione) {
    if (!attivazione.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", attivazione);  // of the next activation
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    QApplication::alert(this);
    if (!file.isEmpty()) daAprire_ = file;
    QTimer::singleShot(0, this, &FormMete::ApriQuandoLibera);  // the other start gets its answer first
}

void FormMete::ApriQuandoLibera() {
    if (daAprire_.isEmpty() || inCorso_ || mostrando_ || QApplication::activeModalWidget() != nullptr) return;
    ApriFile(std::exchange(daAprire_, {}));
}

void FormMete::GuardaArchivio() {
    if (inCorso_ || mostrando_ || congedata_ || areaGriglia_ == nullptr || QApplication::activeModalWidget() != nullptr)
        return;
    Raccogli();
    if (comandi::GuardaArchivio(postazione_)) Mostra();
}

// What is typed is kept while it is typed; in the middle of a command, what it began with.
void FormMete::MettiAlSicuro() {
    if (congedata_ || mostrando_ || !isVisible()) return;
    if (!inCorso_) {
        viaggio_->Raccogli();
        guida_.Raccogli();
    }
    aspetto_.Ricorda();
    ApriQuandoLibera();
    try {
        if (cronovia::MettiAlSicuro(postazione_)) senzaRecupero_ = false;
    } catch (const Failure& failure) {
        if (inCorso_ || std::exchange(senzaRecupero_, true)) return;
        postazione_.Mostra(failure.Message() +
                           u"\n\nFinché è così, salva spesso: ciò che scrivi non viene messo al sicuro da solo."_s);
    }
}

void FormMete::Collega() {
    new RichiestaDiFine(*this, [this] { Termina(); });
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this,
        [this](QSessionManager& sessione) {
            FineSessione({sessione.allowsInteraction(), [&] { sessione.release(); }, [&] { sessione.cancel(); }});
        },
        Qt::DirectConnection);
    connect(viaggio_, &SchermoViaggio::Cambiata, this, &FormMete::Raccogli);
    connect(&azioni_, &Azioni::Chiesto, this, &FormMete::EseguiComando);
    connect(viaggio_, &SchermoViaggio::ElencoChiuso, &griglia_.Vista(), qOverload<>(&QWidget::setFocus));
    connect(new RicezioneFile(*this), &RicezioneFile::Arrivato, this, &FormMete::ApriFile);
}

// What the fields hold, taken over while the person types.
void FormMete::Raccogli() {
    if (mostrando_) return;
    viaggio_->Raccogli();
    MostraTitolo();
    inserimento_.MostraSuggerimenti();
    guida_.Raccogli();
    copia_.Raccogli();
    if (postazione_.dalVivo && !inCorso_) attesaDalVivo_.start();
}

// What the fields hold, that which is being typed too, as if it had been left.
void FormMete::ConcludiIlCampo() {
    Raccogli();
    if (viaggio_->ConcludiIlCampo()) Mostra();
}

// A long command lets the window live; what the person asks for meanwhile is not begun.
bool FormMete::Esegui(const std::function<void()>& comando) {
    if (mostrando_ || inCorso_ || viaggio_->RifiutaIlCampo()) return false;
    inCorso_ = true;
    postazione_.daCorreggere.reset();
    postazione_.avviso.clear();
    avanzamento_->NuovaOperazione();
    const QPointer<QWidget> fuoco = focusWidget();
    ConcludiIlCampo();
    comando();
    inCorso_ = false;
    Mostra();
    // A control that was disabled meanwhile had to give the focus away.
    if (fuoco != nullptr && fuoco->isVisible() && fuoco->isEnabled()) fuoco->setFocus();
    if (postazione_.daCorreggere) {
        testata_->Apri();
        viaggio_->FuocoSulCampo(*postazione_.daCorreggere);
    }
    FuocoSenzaMete();
    return true;
}

// Without a trip all begins with a new one.
void FormMete::FuocoSenzaMete() {
    if (postazione_.SenzaMete()) azioni_.Pulsante(Comando::Nuovo).setFocus();
}

// Fields that are folded away leave the focus to the rows.
void FormMete::FuocoInVista() {
    const QWidget* fuoco = focusWidget();
    if (fuoco == nullptr || !fuoco->isVisible()) griglia_.Vista().setFocus();
}

void FormMete::EseguiComando(Comando comando) {
    Raccogli();
    if (comando == Comando::Esce) return comandi::Esce(postazione_);  // stops a command that has begun
    const std::size_t prima = postazione_.schermata.index();
    if (!Esegui([&] { Descrizione(comando).esegui(postazione_); }) || postazione_.daCorreggere) return;
    const bool appenaAperto = postazione_.schermata.index() != prima;
    for (Schermo* schermo : Schermi()) {
        if (schermo->FuocoDopo(comando, appenaAperto)) return;
    }
}

// Those that take the keys of others come first.
std::array<Schermo*, 8> FormMete::Schermi() {
    return {viaggio_, stampa_, stampaGuida_, &guida_, &copia_, &inserimento_, &scambio_, &griglia_};
}

QString FormMete::ScegliFile(FileChiesto quale) {
    switch (quale) {
        case FileChiesto::Import:
            return ScegliFileDaImportare(*this);
        case FileChiesto::Export:
            return ScegliFileDaEsportare(*this, NomeFileExport(postazione_.Su<schermata::Scambio>()->tavolo.Scelte()));
        case FileChiesto::Percorso:
            return ScegliFilePercorso(*this);
        case FileChiesto::Soste:
            return ScegliFileSoste(*this);
        case FileChiesto::Cartella:
            return QFileDialog::getExistingDirectory(this, u"Salva in un'altra cartella"_s);
    }
    return {};
}

void FormMete::ApriFile(const QString& file) {
    Esegui([&] { comandi::ApriFile(postazione_, file); });
    scambio_.Fuoco();
}

// The theme may change while the window is open.
bool FormMete::event(QEvent* event) {
    const bool trattato = QMainWindow::event(event);
    const auto tipo = event->type();
    if (tipo == QEvent::ApplicationPaletteChange || tipo == QEvent::StyleChange) RendiLeggibile();
    if (tipo == QEvent::WindowActivate) GuardaArchivio();
    return trattato;
}

void FormMete::closeEvent(QCloseEvent* event) {
    event->setAccepted(congedata_ || (!postazione_.InCorsa() && PossoChiudere()));
    if (postazione_.InCorsa()) comandi::Esce(postazione_);
    if (!event->isAccepted()) return;
    if (!congedata_) postazione_.recupero.Segui({}, {});  // saved or declined
    aspetto_.Ricorda();
}

bool FormMete::PossoChiudere() {
    bool chiudo = false;
    Esegui([&] { chiudo = comandi::PossoChiudere(postazione_); });
    return chiudo;
}

void FormMete::FineSessione(const FineDellaSessione& fine) {
    if (!isVisible()) return;
    if (!fine.siPuoChiedere) {
        ConcludiIlCampo();
        Congeda(postazione_);
        return;
    }
    const bool finisce = PuoFinireLaSessione();
    fine.haRisposto();
    if (!finisce) fine.nonFinisca();
}

bool FormMete::PuoFinireLaSessione() {
    if (!inCorso_) return PossoChiudere();
    ConcludiIlCampo();
    return NientePersoAMeta(postazione_);
}

// Boxes that are open are called off once all is saved that can be, and the command that showed them ends.
void FormMete::Termina() {
    if (postazione_.InCorsa()) avanzamento_->ChiediStop();
    ConcludiIlCampo();
    if (!Congeda(postazione_)) return;
    if (auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget())) return dialogo->reject();
    if (inCorso_) return;
    congedata_ = true;
    close();
}

// Enter presses the button that has the focus or goes to the next field, unless it means something to a screen.
void FormMete::keyPressEvent(QKeyEvent* event) {
    for (Schermo* schermo : Schermi()) {
        if (schermo->Tasto(*event)) return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return Invio();
    QMainWindow::keyPressEvent(event);
}

void FormMete::Invio() {
    const QWidget* fuoco = focusWidget();
    if (auto* pulsante = qobject_cast<QPushButton*>(focusWidget())) return pulsante->click();
    do {
        focusNextChild();
    } while (qobject_cast<QPushButton*>(focusWidget()) != nullptr && focusWidget() != fuoco);
}

void FormMete::Mostra() {
    mostrando_ = true;
    if (postazione_.dalVivo && postazione_.attivita == Attivita::Nessuna) postazione_.documento.CalcolaDalVivo();
    stampa_->Raccogli();
    azioni_.Applica(postazione_.Comandi());
    viaggio_->Mostra(!postazione_.documento.Calcolata() && !postazione_.InCorsa() &&
                     !postazione_.Su<schermata::Scambio>() && !postazione_.StampaAperta() && !postazione_.SenzaMete());
    testata_->Mostra();
    if (!guida_.Mostra(kRigheMinimeGriglia)) griglia_.Mostra();
    copia_.Mostra();
    inserimento_.Mostra();
    scambio_.Mostra();
    const QString avviso = postazione_.DaAvvisare();
    MostraScritta(*avviso_, avviso);
    avviso_->setVisible(!avviso.isEmpty());
    areaGriglia_->setVisible(!postazione_.Su<schermata::Scambio>());
    benvenuto_->setVisible(postazione_.SenzaMete());
    bottoni_->Mostra(postazione_.ConverteOfferto());
    stampa_->Mostra();
    stampaGuida_->Mostra();
    const auto* passo = postazione_.PassoDiStampa();
    const bool suStampante = passo != nullptr && *passo == schermata::PassoStampa::Stampante;
    stampante_->Mostra(suStampante, suStampante);
    for (Pannello* pannello : pannelli_) pannello->Mostra(postazione_);
    MostraTitolo();
    mostrando_ = false;
}

// What depends on the schedule that is computed while fields are typed into.
void FormMete::MostraLeGiornate() {
    if (postazione_.attivita == Attivita::Nessuna) postazione_.documento.CalcolaDalVivo();
    for (Pannello* pannello : pannelli_) pannello->Mostra(postazione_);
    griglia_.SegnaGiorni();
}

void FormMete::MostraTitolo() {
    const Documento& documento = postazione_.documento;
    const QString programma = QCoreApplication::applicationName();
    if (documento.Campi().codice.isEmpty()) return cronovia::MostraTitolo(*this, programma);
    const QString daSalvare = documento.Modificato() ? u"*"_s : QString();
    cronovia::MostraTitolo(*this, documento.Nome() + daSalvare + u" - "_s + programma);
}

}  // namespace cronovia
