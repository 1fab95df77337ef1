// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: places the screens and panels, has commands run, and shows the state after each.
#pragma once

#include <QDateTime>
#include <QMainWindow>
#include <QTimer>
#include <array>
#include <functional>

#include "ui/aiuto/benvenuto.h"
#include "ui/aiuto/finestra_manuale.h"
#include "ui/aiuto/preferenze.h"
#include "ui/aspetto_finestra.h"
#include "ui/comuni/avanzamento.h"
#include "ui/comuni/azioni.h"
#include "ui/comuni/elenco_scelta.h"
#include "ui/comuni/interazione_finestra.h"
#include "ui/comuni/pannello.h"
#include "ui/comuni/schermo.h"
#include "ui/comuni/testo_mostrato.h"
#include "ui/copia/schermo_copia.h"
#include "ui/griglia/schermo_griglia.h"
#include "ui/guida/comando_stampa_guida.h"
#include "ui/guida/schermo_guida.h"
#include "ui/inserimento/schermo_inserimento.h"
#include "ui/scambio/schermo_scambio.h"
#include "ui/stampa/comando_stampa.h"
#include "ui/viaggio/frm_bottoni.h"
#include "ui/viaggio/schermo_viaggio.h"
#include "ui/viaggio/testata_viaggio.h"

class QGridLayout;

namespace cronovia {

/// The desktop session is about to end.
struct FineDellaSessione {
    bool siPuoChiedere = false;        ///< the person can be asked
    std::function<void()> haRisposto;  ///< others may ask now
    std::function<void()> nonFinisca;  ///< she wants to stay
};

class FormMete : public QMainWindow {
    Q_OBJECT

  public:
    /// Opens the archive of a data folder; a `Failure` when that cannot be done.
    FormMete(const QString& cartella, std::function<QDateTime()> adesso, Stampanti stampanti);
    FormMete(const FormMete&) = delete;
    FormMete& operator=(const FormMete&) = delete;
    ~FormMete() override;

    /// What comes first when the window is shown: offers what an earlier one left unsaved.
    void Comincia();
    /// The person started the program once more: comes to the front, and opens the file when one is named, after the
    /// command that is on. `attivazione` is the desktop's word for that.
    void Richiama(const QString& file, const QByteArray& attivazione);
    /// Opens the import of an exchange file.
    void ApriFile(const QString& file);
    /// Asks for what would be lost, above a box that is open too; keeps it when nobody can be asked.
    void FineSessione(const FineDellaSessione& fine);
    /// Puts a panel, which then belongs to the window, where the person had it last, else on that side.
    void AggiungiPannello(Pannello& pannello, Qt::DockWidgetArea lato);

  Q_SIGNALS:
    /// The window works in another data folder from now on.
    void LavoraIn(const QString& cartella);

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    [[nodiscard]] Volti NuoviVolti(std::function<QDateTime()> adesso);
    void Disponi(Stampanti stampanti);
    QWidget* CreaAreaGriglia(Stampanti stampanti);
    void CreaStampe(QGridLayout& area, Stampanti stampanti);
    void CreaPannelli();
    void CreaBenvenuto(QGridLayout& area);
    void ApriManuale(const QString& argomento);
    void ScegliPreferenze();
    void CompletaMenu();
    void PreparaCalcoloDalVivo();
    void Collega();
    void Raccogli();
    void ConcludiIlCampo();
    void MettiAlSicuro();
    void ApriQuandoLibera();
    void GuardaArchivio();
    void DiceDelDanno();
    /// Runs a command on what the fields hold, then shows the state anew; false when it cannot begin now.
    bool Esegui(const std::function<void()>& comando);
    void EseguiComando(Comando comando);
    [[nodiscard]] std::array<Schermo*, 8> Schermi();
    [[nodiscard]] QString ScegliFile(FileChiesto quale);
    void Invio();
    void Mostra();
    bool PossoChiudere();
    void FuocoSenzaMete();
    void FuocoInVista();
    void Termina();
    [[nodiscard]] bool PuoFinireLaSessione();
    void RendiLeggibile();
    void MostraLeGiornate();
    void MostraTitolo();
    void SegueAspetto();

    AspettoFinestra aspetto_;
    Azioni azioni_;
    Avanzamento* avanzamento_;
    InterazioneFinestra interazione_;
    Postazione postazione_;
    ElencoScelta* cmbRicercaTappa_;
    SchermoViaggio* viaggio_;
    TestataViaggio* testata_;
    FrmBottoni* bottoni_;
    SchermoGriglia griglia_;
    SchermoInserimento inserimento_;
    SchermoCopia copia_;
    SchermoGuida guida_;
    SchermoScambio scambio_;
    QWidget* areaGriglia_ = nullptr;
    FrmSelStampa* stampante_ = nullptr;
    QLabel* avviso_ = NuovaScritta();
    QString daAprire_;  // a file that was handed over in the middle of a command
    ComandoStampa* stampa_ = nullptr;
    ComandoStampaGuida* stampaGuida_ = nullptr;
    Benvenuto* benvenuto_ = nullptr;
    FinestraManuale* manuale_ = nullptr;  // made when it is opened first
    QAction* dalVivo_ = new QAction(QStringLiteral("Calcolo &dal vivo"), this);
    QTimer attesaDalVivo_;  // until what is typed has been taken over
    QList<Pannello*> pannelli_;
    bool mostrando_ = false;
    bool inCorso_ = false;        // a command has begun and not ended
    bool senzaRecupero_ = false;  // the recovery file could not be written, and the person knows
    bool congedata_ = false;      // the program was made to end, and nobody is asked any more
};

}  // namespace cronovia
