// The desk: all that the main window works on and every command of it, without a widget.
#pragma once

#include <QDateTime>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "app/copia_percorso.h"
#include "app/cronologia.h"
#include "app/modi_comandi.h"
#include "app/sessione.h"
#include "app/tavolo_guida.h"
#include "app/tavolo_scambio.h"
#include "exchange/iei/annulla_import.h"
#include "interaction/interaction.h"
#include "trips/mete.h"

namespace cronovia {

/// A command changes the state, asks and tells through the interaction, and ends; the face then shows the state anew.
/// What goes wrong is told, and the state stays as it was.
class Scrivania {
  public:
    struct Volti {
        Interaction& interazione;
        Progress& avanzamento;
        std::function<QDateTime()> adesso;
        std::function<void()> mostra;  ///< shows the state in the middle of a command
    };

    /// Opens the archive of a data folder and the trip that was current last. A `Failure` when it cannot be opened.
    Scrivania(const QString& cartella, Volti volti);

    // The state.
    [[nodiscard]] const Meta& MetaInCorso() const { return meta_; }
    [[nodiscard]] const QString& CodiceMetaCorrente() const { return codiceMetaCorrente_; }
    [[nodiscard]] const RigheItinerario& Righe() const { return righe_; }
    [[nodiscard]] int RigaCorrente() const { return rigaCorrente_; }
    [[nodiscard]] const RiepilogoItinerario& Riepilogo() const { return riepilogo_; }
    [[nodiscard]] const std::optional<Cronovia>& CronoviaMostrata() const { return cronovia_; }
    [[nodiscard]] bool InserimentoVisibile() const { return inserimento_; }
    [[nodiscard]] bool ElencoTappeVisibile() const { return elencoTappe_; }
    [[nodiscard]] const std::optional<std::vector<MetaInElenco>>& ElencoMeteMostrato() const { return elencoMete_; }
    [[nodiscard]] bool Modificato() const { return righe_ != memorizzate_; }
    [[nodiscard]] bool CalcoloInCorso() const { return calcoloInCorso_; }
    /// Data of the earlier release lies in the data folder, and no command was given yet.
    [[nodiscard]] bool ConverteOfferto() const { return converteOfferto_; }
    [[nodiscard]] const Cronologia& Modifiche() const { return cronologia_; }
    [[nodiscard]] const QString& Cartella() const { return sessione_.Cartella(); }
    [[nodiscard]] QDateTime Adesso() const { return volti_.adesso(); }
    /// The guide screen and the copy screen; nothing while they are closed.
    [[nodiscard]] const std::optional<TavoloGuida>& Guida() const { return guida_; }
    [[nodiscard]] const std::optional<CopiaPercorso>& Copia() const { return copia_; }
    /// Names of the changes that `Annulla` and `Ripeti` are about on the screen that is open.
    [[nodiscard]] std::optional<QString> DaAnnullare() const;
    [[nodiscard]] std::optional<QString> DaRipetere() const;
    /// The exchange screen; nothing while it is closed.
    [[nodiscard]] const std::optional<TavoloScambio>& Scambio() const { return scambio_; }
    [[nodiscard]] StatoComandi Comandi() const;
    /// The entry fields of the current row, and whether progressive kilometres may be typed there; nothing: not shown.
    [[nodiscard]] CampiTappa CampiCorrenti() const { return CampiDellaRiga(righe_, rigaCorrente_); }
    [[nodiscard]] std::optional<bool> KmProgressivi() const;

    // The trip's fields.
    void ImpostaMeta(const Meta& meta) { meta_ = meta; }
    /// After an hour of the timetable, and after a start date, was changed.
    void ControllaOrari();
    void AggiornaOrari();

    // Commands of the trip screen.
    void Nuovo();
    void Ricerca();
    void ScegliMeta(const QString& codice);
    void ChiudiElencoMete();
    void Salva();
    void CancMeta();
    void CancItin();
    void SalvaDefault();
    void CaricaDefault();
    void RipristinaDefault();
    /// Computes the schedule, or unlocks the one on screen.
    void Calcola();
    /// Computes the schedule when none is on screen; false when there is none then. The commands wait until
    /// `FineStampa`.
    bool PreparaStampa();
    void StampaInCorso();
    void FineStampa();

    /// Brings over the earlier release's data, after a question.
    void Converte();

    // The exchange screen. `scegliFile` asks for a file; an empty name closes the screen.
    void Export();
    void Import(const std::function<QString()>& scegliFile);
    /// The import of a file that came from outside; refused while another screen is open.
    void ApriFile(const QString& file);
    void SulloScambio(const std::function<void(TavoloScambio&)>& comando);
    void ImExp(const std::function<QString()>& scegliFile);
    void FineScambio();

    // Commands of the entry screen.
    void Itinerario();
    void SelezionaRiga(int riga);
    /// Writes the fields into the current row and goes on to the next; false when they were refused.
    bool Inserisce(CampiTappa campi);
    void Aggiunge();
    void Cancella();
    void AzzeraSoste();
    void Cerca();
    void ScegliTappa(int riga);
    void Memorizza();
    void Fine();
    /// Puts the stages of a route planner's export, which `scegliFile` names, into an empty itinerary.
    void AltriPacchetti(const std::function<QString()>& scegliFile);
    void Ricalcola();
    void Annulla();
    void Ripeti();
    void Ritorno();
    /// Adds the guide's visit times to the stops, after a question.
    void Trasferisce();

    // The copy screen: a command on it, the copy of the stretch that was chosen there, or none.
    void Duplica();
    void SullaCopia(const std::function<void(CopiaPercorso&)>& comando);
    void InserisciPercorso(bool conSoste);
    void RinunciaDuplicaItinerario();

    // The guide screen.
    void GuidaCitta();
    void SullaGuida(const std::function<void(TavoloGuida&)>& comando);
    void FineGuida();

    /// Asks before unsaved stages, or a new trip that was typed, are lost; false when the person wants to stay.
    bool PossoChiudere();

  private:
    bool Prova(const std::function<void()>& comando, const QString& mancato = {});
    void CaricaMetaCorrente();
    void MettiSulTavolo(MetaAperta aperta);
    void ApplicaModo(const QString& modo);
    bool SenzaComandi(const QString& mancato, const std::function<void()>& azione);
    void Ricomponi();
    void RicalcolaTempi();
    bool Modifica(const QString& nome, RigheItinerario nuove, int riga);
    void Mostra(StatoItinerario stato);
    void MettiPercorso(RigheItinerario percorso);
    bool MemorizzaTappe();
    [[nodiscard]] bool NuovaMetaDigitata() const {
        return meta_.codice.isEmpty() && !meta_.localita.trimmed().isEmpty();
    }
    bool LasciaNuovaMeta();
    void EsciDallInserimento();
    void EseguiCalcolo(bool conMessaggio = true);
    void Default(const QString& verbo, const std::function<void()>& azione);
    bool Corsa(const std::function<void()>& azione);
    void PreparaExportImport(ModoScambio modo);
    void EsciExportImport();
    void FinisciScambio();
    void Esporta(const QString& file);
    void Importa();
    [[nodiscard]] std::optional<QString> DaAnnullareImport() const;
    void AnnullaImportazione();
    void RicordaMetaCorrente(const QString& codice);
    bool SenzaMeta();

    struct ImportFatto {
        QString file;
        TracciaImport traccia;
    };

    Volti volti_;
    Sessione sessione_;
    QString codiceMetaCorrente_;
    Meta meta_;
    RigheItinerario righe_;
    RigheItinerario memorizzate_;  // the rows as the archive has them
    RiepilogoItinerario riepilogo_;
    int rigaCorrente_ = 1;
    std::optional<Cronovia> cronovia_;
    std::optional<std::vector<MetaInElenco>> elencoMete_;
    std::optional<TavoloScambio> scambio_;
    std::optional<ImportFatto> import_;  // the last one, for as long as it can be taken back
    Cronologia cronologia_;
    std::optional<TavoloGuida> guida_;
    std::optional<CopiaPercorso> copia_;
    QString modoPrimaDellElenco_;
    QString modoComandi_ = QStringLiteral("ZZ");
    QString modoItinerario_ = QStringLiteral("ZZ");
    bool inserimento_ = false;
    bool elencoTappe_ = false;
    bool appenaInserita_ = false;
    bool daInserimento_ = false;  // the schedule was computed from the entry screen, to which unlocking leads back
    bool calcoloInCorso_ = false;
    bool converteOfferto_ = false;
};

}  // namespace cronovia
