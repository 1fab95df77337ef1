// SPDX-License-Identifier: GPL-3.0-or-later
// What both faces of the program work on: the open archive, and what is read and computed from it.
#pragma once

#include <QDateTime>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "interaction/failure.h"
#include "interaction/progress.h"
#include "itinerary/riepilogo.h"
#include "itinerary/tappa.h"
#include "places/confermate.h"
#include "schedule/calcola_cronovia.h"
#include "store/archive.h"
#include "trips/meta.h"
#include "trips/orario.h"

namespace cronovia {

/// A trip with its itinerary, as it is stored.
struct MetaAperta {
    Meta meta;                 ///< `giorniAdeguamento` raised to the least days
    OrarioCorretto orario;     ///< of its parameters
    std::vector<Tappa> tappe;  ///< with the guide's visit times
    RiepilogoItinerario riepilogo;
    Meta memorizzata = {};  ///< as the archive holds it
};

/// What a single calculation does differently from the stored trip.
struct OpzioniCalcolo {
    std::optional<int> giorni;          ///< days wanted, 0 = as many as needed
    std::optional<CalcoloSoste> soste;  ///< which stops count
};

/// What is read with a trip, from the same moment, besides its itinerary and their entries of the guide.
enum class LeggeAnche { Nulla, Posizioni };

/// A trip with what a face computes and shows of it, all from one moment of the archive.
struct MetaLetta {
    MetaAperta aperta;
    LettoreGuida guida;              ///< has read the entries of its localities; must not outlive the session
    PosizioniConfermate confermate;  ///< none unless they were asked for
};

/// A trip with its schedule.
struct MetaCalcolata {
    MetaAperta aperta;
    EsitoCalcolo esito;
    PosizioniConfermate confermate;  ///< none unless they were asked for
};

/// There is no trip of the code that was asked for.
class MetaAssente : public Failure {
  public:
    using Failure::Failure;
};

/// What keeping copies needs: a clock, and who is told, in a sentence, that the copy of a day could not be kept.
struct Custode {
    std::function<QDateTime()> adesso = &QDateTime::currentDateTime;
    std::function<void(const QString&)> avvisa = [](const QString&) {};
};

/// Holds no trip: who asks for one keeps it.
class Sessione {
  public:
    /// Opens the archive of a data folder; a new one gets the guide types and the standard parameters. A `Failure` when
    /// it cannot be opened; a damaged one can be read.
    explicit Sessione(const QString& cartella, Custode custode = {});

    /// Opens the archive anew, after another file came into its place. A `Failure` when that cannot be done.
    void Riapri();

    /// A `Failure` when the archive is damaged: for those who write down what they read.
    void RifiutaSeDanneggiato() const;

    /// What is open, and the data folder that it lies in.
    Archive& Archivio() { return archive_; }
    [[nodiscard]] const Archive& Archivio() const { return archive_; }
    [[nodiscard]] const QString& Cartella() const { return cartella_; }

    /// Goes on in another folder with a copy of this archive, which may be gone from its place. A `Failure`, and all as
    /// it was, when that folder has an archive already or cannot be written.
    void TrasferisciIn(const QString& cartella);

    /// A trip with its itinerary; a `Failure` when there is none with that code. "1" is "000001" as well.
    MetaAperta ApriMeta(const QString& codice);

    /// The same with all that its schedule, and where its localities lie, is worked out from.
    MetaLetta LeggiMeta(const QString& codice, LeggeAnche anche = LeggeAnche::Nulla);

    /// The schedule of a trip that was read; nothing more is read, and others can write meanwhile.
    static EsitoCalcolo Calcola(MetaLetta& letta, const OpzioniCalcolo& opzioni, Progress& progress);

    /// Both, one after the other.
    MetaCalcolata ApriECalcola(const QString& codice, const OpzioniCalcolo& opzioni, Progress& progress,
                               LeggeAnche anche = LeggeAnche::Nulla);

    /// A trip to be filled in: the personal defaults, starting now.
    Meta MetaProposta(const QDateTime& adesso);

    /// Saves a new trip with the personal defaults, which starts at `inizio`, as `InserisciMeta` does; names become
    /// capitals. Returns its code.
    QString NuovaMeta(const QString& localita, const QString& nazione, const QDateTime& inizio);

  private:
    MetaAperta ApriMeta(const QString& codice, LettoreGuida& guida);

    void Prepara();
    void TieniCopie(Archive& archivio, const QString& cartella) const;

    QString cartella_;
    Custode custode_;
    Archive archive_;
};

/// A trip's code as it is stored: digits are filled up to six.
QString CodiceCompleto(const QString& codice);

/// The start that a new trip is offered: now, the minutes rounded down to a quarter of an hour.
QDateTime InizioProposto(const QDateTime& adesso);

}  // namespace cronovia
