// SPDX-License-Identifier: GPL-3.0-or-later
// A trip and the travel parameters that drive its schedule.
#pragma once

#include <QString>
#include <array>
#include <optional>

#include "calendar/centesimi.h"
#include "calendar/date.h"
#include "calendar/ora_fissa.h"
#include "store/archive.h"
#include "trips/prezzi.h"

namespace cronovia {

/// The four kinds of road, in the order of every per-type array. Their letters are "A", "S", "P" and "L".
enum class TipoStrada { Autostrada, SuperStrada, Principale, Locale };
inline constexpr int kTipiStrada = 4;

/// The place of a type in such an array, 0 to 3.
constexpr std::size_t Indice(TipoStrada tipo) { return static_cast<std::size_t>(tipo); }

/// "Autostrada", "SuperStrada", "Principale" or "Locale"; the first letter is the type's letter.
QString NomeTipoStrada(TipoStrada tipo);

/// Which stops the calculation counts; the values are the stored digits.
enum class CalcoloSoste {
    SosteItinerario = 1,  ///< those of the itinerary
    SosteGuida,           ///< the visit times of the guide
    SostaMaggiore,        ///< the longer of the two
    SostaMinore,          ///< the shorter of the two; the itinerary's where the guide has none
    NessunaSosta,         ///< none
};

/// Travel parameters; the initial values are the standard defaults. Times of day and durations are whole hundredths of
/// an hour.
struct ParametriViaggio {
    std::array<int, kTipiStrada> mediaKm{75, 65, 50, 30};  ///< km/h by `TipoStrada`; 0 when unknown
    Centesimi oraColazione = 900_cent;                     ///< start of the day after breakfast
    Centesimi oraPranzo = 1250_cent;
    Centesimi durataPranzo = 250_cent;
    Centesimi oraCena = 2000_cent;
    Centesimi durataCena = 175_cent;
    Centesimi oraNotte = 2250_cent;  ///< end of the day's driving
    Centesimi inizioVisita = 900_cent;
    Centesimi fineVisita = 1800_cent;
    Centesimi oreTraghetti = 600_cent;  ///< average time of a ferry
    int riposoMinuti = 15;              ///< length of a short rest, in minutes
    int riposoOre = 3;                  ///< a short rest after so many hours of driving
    int riposoGiorno = 1;               ///< length of a rest, in whole days
    int riposoDopoGiorni = 5;           ///< a rest of whole days after so many days
    CalcoloSoste calcoloSoste = CalcoloSoste::SostaMaggiore;

    friend bool operator==(const ParametriViaggio&, const ParametriViaggio&) = default;
};

/// When one has to be home: an hour of a day of the calendar.
class Scadenza {
  public:
    /// Nothing when the hour has no day.
    static std::optional<Scadenza> Da(const std::optional<OraFissa>& ora);
    /// "ddmmyyyy" and "hhmm", or as people write them; nothing when they are none.
    static std::optional<Scadenza> Leggi(QStringView data, QStringView ora);

    /// Its hour, which has a day; the same as a moment.
    [[nodiscard]] const OraFissa& Ora() const { return ora_; }
    [[nodiscard]] Istante Momento() const { return ora_.Il({}); }
    friend bool operator==(const Scadenza&, const Scadenza&) = default;

  private:
    explicit Scadenza(const OraFissa& ora) : ora_(ora) {}

    OraFissa ora_;
};

/// A trip ("mèta"), as typed or stored: nothing in it is corrected yet.
struct Meta {
    QString codice;                          ///< six digits; empty for a trip not saved yet
    QString localita;                        ///< the destination, which no other trip has
    QString nazione;                         ///< one or several, as people write them
    std::optional<NumeroGiorno> dataInizio;  ///< nothing when the stored text is no date
    PartiData partiInizio;                   ///< what that text tells all the same; none when it is a date
    Centesimi oraInizio;                     ///< time of day at which the journey begins
    int giorniAdeguamento = 0;               ///< days that the trip shall last; 0 = as many as it needs
    ParametriViaggio parametri;
    std::optional<Scadenza> scadenza = {};  ///< when one has to be home
    PrezziViaggio prezzi = {};              ///< what its costs are worked out from

    friend bool operator==(const Meta&, const Meta&) = default;
};

/// The most days that a trip can be asked to last.
inline constexpr int kMassimoGiorniAdeguamento = 997;

/// The average speeds that a road can have, in km/h.
inline constexpr int kMinimaMedia = 1;
inline constexpr int kMassimaMedia = 200;

/// Why a trip cannot be saved, and the field of `MeteVandro` that it is about.
struct DifettoMeta {
    mete::Field campo = mete::Localita;
    QString messaggio;
};

/// The first reason why a trip cannot be saved: without destination or country, either too wide for its field, no date
/// or one out of the calendar, a speed out of its limits.
std::optional<DifettoMeta> DifettoDellaMeta(const Meta& meta);

/// The part of it that is about the parameters.
std::optional<DifettoMeta> DifettoDeiParametri(const ParametriViaggio& parametri);

/// The message about a date that is none, or out of the calendar.
QString MessaggioData();

/// A time of day or a duration from its stored form "hhmm", what is no number counting as 0, and back, to the
/// minute and with hours beyond 24.
Centesimi LeggiOrario(QStringView hhmm);
QString TestoOrario(Centesimi orario);

/// The trip of a row of `MeteVandro` and the row of a trip; the id of the row stays with the caller. Parameters that
/// the row does not tell are 0, an unknown `CalcoloSoste` is the longer stop. `giorniAdeguamento` is 0 to 997.
Meta MetaDaRecord(const Record& record);
std::vector<QString> ValoriDellaMeta(const Meta& meta);

/// The parameters of a row of `Parametri`, and the row of parameters.
ParametriViaggio ParametriDaRecord(const Record& record);
std::vector<QString> ValoriDeiParametri(const ParametriViaggio& parametri);

}  // namespace cronovia
