// SPDX-License-Identifier: GPL-3.0-or-later
// The days of a journey: what each date from the start to the end holds, and why things were put off.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "calendar/date.h"
#include "schedule/riga_cronovia.h"

namespace cronovia {

/// What something costs, in cents: fuel, tolls, nights, ferries, tickets.
struct Costi {
    int carburante = 0;
    int pedaggi = 0;
    int notti = 0;
    int traghetti = 0;
    int ingressi = 0;

    [[nodiscard]] int Totale() const { return carburante + pedaggi + notti + traghetti + ingressi; }
    Costi& operator+=(const Costi& altri);
};

/// One date of the journey.
struct Giornata {
    int numero = 0;  ///< from 1, the start date
    NumeroGiorno data;
    QString risveglio;  ///< locality of the morning, the departure place on day 1; "verso X" on the way
    QString notte;      ///< locality of the night, in the same way; where the journey ends on the last day
    std::optional<Centesimi> partenza;  ///< when the first driving begins; nothing on a day without
    std::optional<Centesimi> arrivo;    ///< when the last driving ends
    int km = 0;                         ///< of the pieces that end on this day
    Centesimi guida;                    ///< driving time
    Centesimi visite;                   ///< time of stops, without ferries
    Centesimi traghetto;                ///< time on ferries
    Centesimi attesa;                   ///< time waited, between breakfast and night, for hours that others set
    bool pranzo = false;                ///< a lunch is taken on the way; the one of a stop is part of it
    bool cena = false;
    int riposi = 0;                 ///< short rests
    bool riposo = false;            ///< a whole day of rest
    bool inViaggio = false;         ///< the night is "verso X"
    bool notteInTraghetto = false;  ///< the ferry goes on the next morning
    bool ultima = false;            ///< the journey ends on this day
    /// Positions of the schedule's rows that end on this day, with the guide entries below them.
    std::vector<int> righe;
    std::vector<Rinvio> rinvii;       ///< those that turn out on this day
    std::optional<Costi> costi = {};  ///< nothing when nothing has a price
};

/// The days of a schedule, every date from the start to the last row's once, in order; none without rows. `partenza` is
/// the start date. A piece, a stop or a ferry counts on the day on which its time passes.
std::vector<Giornata> Giornate(const Cronovia& cronovia, NumeroGiorno partenza);

/// Where one is when a row with a moment has ended: the locality, or "verso X".
QString LuogoDellaRiga(const Cronovia& cronovia, int riga);

/// How much later than a row's end one could be here and still be at the journey's end in time; negative when that
/// moment has passed. Nothing for rows without a mark of the return.
std::optional<Centesimi> MargineRientro(const RigaCronovia& riga);

}  // namespace cronovia
