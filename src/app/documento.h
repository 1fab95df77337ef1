// SPDX-License-Identifier: GPL-3.0-or-later
// The open trip: its fields, stages and schedule, what was loaded, and the changes since.
#pragma once

#include <QString>
#include <optional>

#include "app/recupero.h"
#include "app/sessione.h"
#include "app/storia.h"
#include "itinerary/itinerari.h"
#include "itinerary/modifiche.h"
#include "places/confermate.h"
#include "schedule/alternative.h"
#include "schedule/giornate.h"
#include "trips/mete.h"

class QDateTime;

namespace cronovia {

/// Loading, changing and saving a trip happen here and nowhere else. Knows no screen and asks nobody: what goes wrong
/// is a `Failure`, and the document stays as it was.
class Documento {
  public:
    /// Empty until a trip is loaded. The session must outlive the document.
    explicit Documento(Sessione& sessione) : sessione_(sessione) {}
    Documento(const Documento&) = delete;
    Documento& operator=(const Documento&) = delete;

    // What is open.
    /// The fields of the trip as they are now, saved or not.
    [[nodiscard]] const Meta& Campi() const { return campi_; }
    /// The timetable of these fields, corrected as it was typed or stored.
    [[nodiscard]] const OrarioCorretto& Orario() const { return orario_; }
    /// Its stages with their free rows.
    [[nodiscard]] const RigheItinerario& Righe() const { return righe_; }
    /// Leg times and totals of the stages, as many legs as stages.
    [[nodiscard]] const RiepilogoItinerario& Riepilogo() const { return riepilogo_; }
    /// The schedule computed from it, until that is dropped.
    [[nodiscard]] const std::optional<Cronovia>& Calcolata() const { return cronovia_; }
    /// The last schedule that was computed, dropped or not, while fields and stages are as they were then; also when
    /// they have become so again. Else null.
    [[nodiscard]] const Cronovia* Ultima() const { return cronovia_ ? &*cronovia_ : ultima_ ? &*ultima_ : nullptr; }
    /// Its days; none without it.
    [[nodiscard]] const std::vector<Giornata>& Giornate() const { return giornate_; }
    /// Another number whenever that schedule is another one, or none any more.
    [[nodiscard]] int VersioneCronovia() const { return versione_; }
    /// Code of the stored trip that was opened last, also while a new one is filled in; empty when there is none.
    [[nodiscard]] const QString& Codice() const { return codice_; }
    /// Destination and code of that trip, as it was loaded: what questions call it.
    [[nodiscard]] QString Nome() const;
    /// The row that changes are made at, from 1 to the first row behind the last stage.
    [[nodiscard]] int RigaCorrente() const { return rigaCorrente_; }
    /// What the entry fields propose for it.
    [[nodiscard]] CampiTappa CampiCorrenti() const { return CampiDellaRiga(righe_, rigaCorrente_); }

    // What differs from what was loaded.
    [[nodiscard]] bool Modificato() const { return CampiModificati() || TappeModificate(); }
    [[nodiscard]] bool CampiModificati() const { return campi_ != caricati_; }
    [[nodiscard]] bool TappeModificate() const { return righe_ != caricate_; }
    /// The fields as they were loaded, or proposed for a new trip.
    [[nodiscard]] const Meta& Caricati() const { return caricati_; }

    /// What the archive held when it was loaded; without code for a new trip.
    [[nodiscard]] const MetaMemorizzata& Letta() const { return letta_; }

    // Loading: all is read before anything is replaced, since what is open may exist nowhere else.
    /// The stored trip with that code becomes the open and the current one.
    void Apri(const QString& codice);
    /// The open trip as it is stored; the one that is current in the archive when it is gone, a proposal without any.
    void Ricarica(const QDateTime& adesso);
    /// A trip to be filled in, with the personal defaults, starting now.
    void Proponi(const QDateTime& adesso);
    /// The stages as they are stored; the fields stay as they are.
    void RicaricaTappe();
    /// Drops what was changed: all is as it was loaded.
    void Scarta();
    /// The stored trip is gone: its fields are those of a new one, which is not saved.
    void DiventaNuova();
    /// Work that a window left behind is open, and not saved, as if it had been typed just now.
    void Riprendi(const LavoroSospeso& lavoro);
    /// The guide changed underneath: visits are read anew, fields stay.
    void RileggiVisite();

    // Changing.
    /// What the person typed, as it stands: it is checked when it is saved. A schedule that would now be another one
    /// does not hold any more.
    void ImpostaCampi(const Meta& campi);
    void ImpostaParametri(const ParametriViaggio& parametri);
    /// Put hours that disagree in order; and each within its own limits too, as calculations take it. What is put right
    /// so is no change of the person's.
    void OrdinaOrari();
    void CorreggiOrari();
    /// Goes to a row; beyond the last stage, to the first one behind it.
    void SelezionaRiga(int riga);
    /// Replaces the stages as one step that can be taken back, and goes to a row. Free rows behind the last stage go;
    /// what changes nothing is no step. Positions that were changed along with them are taken back with them.
    void Modifica(const QString& nome, RigheItinerario nuove, int riga, CambiPosizioni posizioni = {});
    /// The steps that can be taken back, of whichever kind.
    [[nodiscard]] Storia& Modifiche() { return storia_; }
    [[nodiscard]] const Storia& Modifiche() const { return storia_; }

    // Computing.
    /// Returns the closing message, empty when there is nothing to tell; no schedule is there afterwards when it was
    /// stopped.
    QString Calcola(Progress& progress);
    /// What came nearest to the days wanted, when the last calculation did not reach them and nothing changed since.
    [[nodiscard]] const std::optional<RicercaGiorni>& Ricerca() const { return ricerca_; }
    /// Types the stops of such a proposal into the itinerary, where they alone count then and no days are wanted: one
    /// step that can be taken back.
    void Adotta(const PropostaGiorni& proposta);
    /// What the trip would come to with other stops or days; nothing when it was stopped.
    std::optional<std::vector<Alternativa>> Confronta(Progress& progress);
    /// Computes the last schedule anew when it is not true any more, without putting it in front.
    void CalcolaDalVivo();
    /// Why that could not be done; empty when it could, or was not tried since the last change.
    [[nodiscard]] const QString& Impedimento() const { return impedimento_; }
    /// Drops the schedule; leg times are computed afresh.
    void Ricomponi();

    // Saving.
    /// What saving the fields would do now.
    [[nodiscard]] Salvataggio DecidiSalvataggio() { return cronovia::DecidiSalvataggio(sessione_.Archivio(), campi_); }
    // All of it is a `MetaCambiata` when the stored trip is no longer what it was when it was loaded.
    /// Saves the fields and loads the trip anew, which may have got another code. Refused too when that would now be
    /// another thing than was decided, a new trip or a change.
    void SalvaCampi(const Salvataggio& deciso);
    /// The same with the stages, of both what was changed, whole or not at all.
    EsitoMemorizzazione SalvaTutto(const Salvataggio& deciso, Progress& progress);
    /// Replaces the stored stages by those that are open.
    EsitoMemorizzazione SalvaTappe(Progress& progress);
    /// Saves fields and stages in the place of what is stored since, as the person was shown it; as a new trip when the
    /// open one is gone. Refused when it is another thing by now, and when a new trip's destination is stored already.
    EsitoMemorizzazione Sovrascrivi(const MetaCambiata& vista, Progress& progress);
    /// Delete the stored stages, and the stored trip with them, after a copy was kept; what is open stays as it is
    /// until it is loaded anew.
    void CancellaTappe(Progress& progress);
    MetaCancellata Cancella(Progress& progress);

  private:
    struct Stato {
        RigheItinerario righe;
        int rigaCorrente = 1;
        std::optional<std::pair<int, CalcoloSoste>> giorniESoste = {};  // wanted, where the step is about them too
        CambiPosizioni posizioni = {};                                  // to be taken back on the way there
    };
    // A schedule with its days, and what it was computed from.
    struct Passata {
        Cronovia cronovia;
        std::vector<Giornata> giornate;
        Meta campi;
        OrarioCorretto orario;
        RigheItinerario righe;
    };
    [[nodiscard]] Stato StatoPresente(bool conGiorni) const;
    void RicordaCorrente(const QString& codice);
    void RifiutaSeDiversa(const std::optional<MetaMemorizzata>& attesa);
    void Metti(MetaAperta aperta);
    void Metti(const Meta& campi, const OrarioCorretto& orario, RigheItinerario righe);
    void MettiCampi(const Meta& campi, const OrarioCorretto& orario);
    void MettiTappe(RigheItinerario righe);
    QString ScriviCampi(const Salvataggio& deciso);
    EsitoMemorizzazione ScriviTappe(const QString& codice, Progress& progress);
    void Concludi(Transaction& transaction, const QString& codice);
    void Mostra(Stato stato);
    void RicalcolaTempi();
    void Decade();
    void Conserva();
    void Ritrova();
    LettoreGuida& GuidaDelle(std::span<const Tappa> righe);
    [[nodiscard]] OrarioCorretto OrarioDi(const ParametriViaggio& parametri) const;
    EsitoCalcolo CalcolaCon(Progress& progress, SeNonRiesce altrimenti);
    void Correggi(const ParametriViaggio& parametri, const OrarioCorretto& orario);
    [[nodiscard]] Passo PassoVerso(const QString& nome, Stato prima);

    Sessione& sessione_;
    Meta campi_;
    OrarioCorretto orario_;
    RigheItinerario righe_;
    RiepilogoItinerario riepilogo_;
    std::optional<Cronovia> cronovia_;
    std::optional<Cronovia> ultima_;
    std::optional<Passata> passata_;  // the one before the last change
    std::vector<Giornata> giornate_;
    QString impedimento_;
    std::optional<RicercaGiorni> ricerca_;
    int versione_ = 0;
    bool vale_ = false;  // fields and stages are as they were when the schedule on screen was computed
    QString codice_;
    int rigaCorrente_ = 1;
    Meta caricati_;
    OrarioCorretto orarioCaricato_;  // theirs
    RigheItinerario caricate_;
    MetaMemorizzata letta_;  // what the archive held then; empty for a new trip
    Storia storia_{[this] { return sessione_.Archivio().OwnChanges(); }};
    std::optional<LettoreGuida> guida_;  // its answers, as of `guidaLetta_`
    Archive::Mark guidaLetta_;
};

}  // namespace cronovia
