// The main window: places the frames and passes their wishes on to the desk.
#pragma once

#include <QMainWindow>
#include <QPushButton>
#include <QSettings>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "app/scrivania.h"
#include "ui/comuni/avanzamento.h"
#include "ui/comuni/azioni_modifica.h"
#include "ui/comuni/elenco_scelta.h"
#include "ui/comuni/interazione_finestra.h"
#include "ui/copia/schermo_copia.h"
#include "ui/griglia/modello_griglia.h"
#include "ui/griglia/vista_griglia.h"
#include "ui/guida/schermo_guida.h"
#include "ui/inserimento/frm_input_box.h"
#include "ui/scambio/frm_export.h"
#include "ui/stampa/comando_stampa.h"
#include "ui/viaggio/frm_bottoni.h"
#include "ui/viaggio/frm_mete_periodo.h"
#include "ui/viaggio/frm_mete_tempi.h"
#include "ui/viaggio/frm_mete_velocita.h"

class QGridLayout;
class QSessionManager;

namespace cronovia {

class FormMete : public QMainWindow {
    Q_OBJECT

  public:
    /// Opens the archive of a data folder; a `Failure` when that cannot be done.
    FormMete(const QString& cartella, std::function<QDateTime()> adesso);
    FormMete(const FormMete&) = delete;
    FormMete& operator=(const FormMete&) = delete;
    ~FormMete() override;

    /// Opens the import of an exchange file.
    void ApriFile(const QString& file);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Disponi();
    QWidget* CreaMete();
    QWidget* CreaGriglia();
    void Collega();
    void Raccogli();
    /// Runs a command on what the fields hold, then shows the state anew.
    void Esegui(const std::function<void()>& comando);
    void Mostra();
    void MostraGriglia();
    void DistendiGuida();
    void MostraElenchi();
    void MostraInserimento(const StatoComandi& stato);
    void CollegaScambio();
    void Scambio(Comando comando);
    void MostraScambio();
    void EseguiComando(Comando comando);
    void EseguiComando(ComandoItinerario comando);
    void Inserisci();
    void Esci();
    bool PossoChiudere();
    void FineSessione(QSessionManager& sessione);
    void RipristinaAspetto();
    void RicordaAspetto();

    QSettings aspetto_;
    Avanzamento* avanzamento_;
    InterazioneFinestra interazione_;
    FrmMetePeriodo* periodo_;
    FrmMeteVelocita* velocita_;
    FrmMeteTempi* tempi_;
    FrmBottoni* bottoni_;
    FrmInputBox* inserimento_;
    FrmExport* export_;
    VistaGriglia* griglia_;
    ModelloGriglia modello_;
    ElencoScelta* cmbRicerca_;
    ElencoScelta* cmbRicercaTappa_;
    Scrivania scrivania_;
    AzioniModifica* azioni_ = nullptr;
    ComandoStampa* stampa_ = nullptr;
    bool mostrando_ = false;
    std::optional<std::pair<int, CampiTappa>> campiMostrati_;  // row and fields last put into the entry frame
    bool inCorso_ = false;                                     // a command has begun and not ended
    bool cronoviaInGriglia_ = false;
    std::unique_ptr<SchermoGuida> guida_;
    std::unique_ptr<SchermoCopia> copia_;
};

}  // namespace cronovia
