// SPDX-License-Identifier: GPL-3.0-or-later
// What every command works on: the archive, the open trip, the screen in front, and the faces to ask and tell.
#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "app/cartella_dati.h"
#include "app/documento.h"
#include "app/file_viaggio.h"
#include "app/luoghi_del_viaggio.h"
#include "app/recupero.h"
#include "app/rimedi.h"
#include "app/schermate.h"
#include "app/stato_comandi.h"
#include "exchange/soste/importa_soste.h"
#include "interaction/interaction.h"

class QDateTime;

namespace cronovia {

/// Which file a command asks for.
enum class FileChiesto { Import, Export, Percorso, Cartella, Soste };

/// A place on the way to a stage, and its kilometres from where that leg begins.
struct Divisione {
    QString localita;
    int km = 0;  ///< less than the leg has
};

/// The window as the commands see it; tests put scripts in its place.
struct Volti {
    Interaction& interazione;
    Progress& avanzamento;
    std::function<QDateTime()> adesso;                       ///< the clock
    std::function<void()> mostra;                            ///< shows the state in the middle of a command
    std::function<QString(FileChiesto)> scegliFile = {};     ///< an empty path when the person wants none
    std::function<void()> chiudi = {};                       ///< closes the window
    std::function<void()> ferma = {};                        ///< has `avanzamento` request the stop
    std::function<QString()> leggiAppunti = {};              ///< the text of the clipboard
    std::function<void(const QString&)> scriviAppunti = {};  ///< puts one there
    /// Where to part the leg that leads from a place to a stage; nothing when the person does not want to.
    std::function<std::optional<Divisione>(const QString& da, const Tappa& tappa)> chiediDivisione = {};
    std::function<void()> anteprima = {};  ///< shows the pages that the screen in front would print
    std::function<void()> stampa = {};     ///< prints them on the printer chosen
    ScegliCopia scegliCopia = {};          ///< which copy of the archive is to be put back
    /// Where a journey is to be written, the name being a proposal; an empty path when the person does not want it.
    std::function<QString(const FormatoViaggio& formato, const QString& nome)> scegliFileViaggio = {};
    /// What others set for a stage; a trip's deadline and prices. Nothing when the person leaves them as they are.
    std::function<std::optional<VincoliTappa>(const Tappa& tappa)> chiediVincoli = {};
    std::function<std::optional<Meta>(const Meta& meta)> chiediScadenza = {};
    /// Which of them, from 0; nothing when the person wants none.
    std::function<std::optional<std::size_t>(const std::vector<Alternativa>&)> scegliAlternativa = {};
    /// Shows what would become of the places of a file; whether the new ones are to be added.
    std::function<bool(const std::vector<SostaProposta>& soste)> confermaSoste = {};
    /// Which column of a table of places tells what; nothing when the person does not want to tell.
    std::function<std::optional<PostoColonne>(const TabellaDaSpiegare& tabella)> chiediColonne = {};
    std::function<void(const QString& argomento)> manuale = {};  ///< opens it at the chapter of that heading
    std::function<void()> preferenze = {};                       ///< asks for them and takes them over
    std::function<void(const QString& cartella)> lavoraIn = {};  ///< the archive is that of another folder from now on
};

/// The commands, in `comandi_*.h`, change it, ask and tell through the faces, and end; the window then shows it anew.
struct Postazione {
    /// Opens the archive of a data folder and the trip that was current last. A `Failure` when it cannot be opened.
    Postazione(const QString& cartella, Volti facce);
    Postazione(const Postazione&) = delete;
    Postazione& operator=(const Postazione&) = delete;

    Volti volti;
    QStringList avvisi = {};  ///< what is to be told after a command, besides its own words
    Sessione sessione;
    Documento documento{sessione};
    std::int64_t scrittiDaAltri = 0;  ///< what others had written when the archive was looked at last
    LuoghiDelViaggio luoghi{FileDelProgramma(QStringLiteral("luoghi.dat"))};
    QString avviso = {};  ///< told beside the work, until the next command
    Recupero recupero{sessione.Cartella()};
    Schermata schermata;                    ///< in front
    Attivita attivita = Attivita::Nessuna;  ///< what goes on while a command has not ended
    struct {
        QString testo;  ///< as the clipboard got them
        RigheItinerario tappe;
        QString prima;                             ///< the place before them; empty before the departure
    } copiate;                                     ///< the stages that were copied last
    bool dalVivo = false;                          ///< the schedule is computed anew after each change
    std::optional<mete::Field> daCorreggere = {};  ///< the field for which the last command could not save the trip

    /// The screen in front when it is that one, else null.
    template <typename Quale>
    [[nodiscard]] Quale* Su() {
        return std::get_if<Quale>(&schermata);
    }
    template <typename Quale>
    [[nodiscard]] const Quale* Su() const {
        return std::get_if<Quale>(&schermata);
    }
    /// The entry of stages, in front or under the screen in front, which leads back to it; null when there is none.
    [[nodiscard]] schermata::Inserimento* TappaInScrittura();
    [[nodiscard]] const schermata::Inserimento* TappaInScrittura() const;
    /// The stages are being entered, alone or beside the list to copy from.
    [[nodiscard]] bool InInserimento() const { return Su<schermata::Inserimento>() || Su<schermata::Copia>(); }
    /// The step of the printout that is chosen on the screen in front; null when there is none.
    [[nodiscard]] schermata::PassoStampa* PassoDiStampa();
    /// Whether there is one.
    [[nodiscard]] bool StampaAperta() const;
    /// What is told beside the work; a damaged archive's sentence stays there, and what the schedule in front costs.
    [[nodiscard]] QString DaAvvisare() const;
    /// A run that can be stopped is on.
    [[nodiscard]] bool InCorsa() const { return attivita == Attivita::Corsa; }
    /// The conversion of the earlier release's data is offered.
    [[nodiscard]] bool ConverteOfferto() const;
    /// There is no trip, and none was begun: nothing can be typed.
    [[nodiscard]] bool SenzaMete() const;
    /// Which commands can be used now.
    [[nodiscard]] StatoComandi Comandi() const;

    /// Names of the changes that undo and redo are about on the screen in front; nothing when there is none.
    [[nodiscard]] std::optional<QString> DaAnnullare() const;
    [[nodiscard]] std::optional<QString> DaRipetere() const;
    /// What can be taken back there; nothing beside a list to choose from.
    [[nodiscard]] std::optional<Ambito> AmbitoInVista() const;

    /// Runs an action that may fail. Tells what was not done (`mancato`, may be empty) and what went wrong; false then.
    bool Prova(const std::function<void()>& azione, const QString& mancato = {});
    /// The same while no other command can be given; while only the stop can. What went wrong is told when that is
    /// over.
    bool MentreScrive(const QString& mancato, const std::function<void()>& azione);
    bool MentreCorre(const std::function<void()>& azione);
    /// The trip screen comes in front, with what is open.
    void MettiSchermoDelViaggio();
    /// The same after the trip was loaded as `Documento::Ricarica` does.
    void VaiAlViaggio();
    /// Tells something; asks, true on Yes.
    void Mostra(const QString& testo, const QString& titolo = {}, Icon icona = Icon::Exclamation);
    [[nodiscard]] bool Chiede(const QString& testo, const QString& titolo);
    /// The same before something is lost: Enter means no.
    [[nodiscard]] bool ChiedeSePerdere(const QString& testo, const QString& titolo);
};

}  // namespace cronovia
