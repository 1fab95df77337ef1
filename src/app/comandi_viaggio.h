// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the trip screen and of the list of trips.
#pragma once

#include "app/postazione.h"

namespace cronovia::comandi {

/// Begins a new trip.
void Nuovo(Postazione& p);
/// Opens the list of trips; tells when there is none.
void Ricerca(Postazione& p);
/// Opens the trip with that code, which becomes the current one; when it is gone the list stays.
void ScegliMeta(Postazione& p, const QString& codice);
/// What was on screen before the search is there still.
void ChiudiElencoMete(Postazione& p);

/// Saves the fields of the trip, as a new one or in its place, after a question; tells what they lack.
void Salva(Postazione& p);
/// Delete the trip as it is stored, with its stages; its stages alone, after two questions.
void CancMeta(Postazione& p);
void CancItin(Postazione& p);

/// The parameters on screen become the personal defaults; these, or those of the program, come on screen. Each after a
/// question; tells which parameter cannot be saved.
void SalvaDefault(Postazione& p);
void CaricaDefault(Postazione& p);
void RipristinaDefault(Postazione& p);

/// Leaves the program after a question; while a run is on, stops that.
void Esce(Postazione& p);
/// Asks before something typed is lost; false when the person wants to stay, or while a run is on.
[[nodiscard]] bool PossoChiudere(Postazione& p);

/// Tells that no trip is open; false when one is.
[[nodiscard]] bool SenzaMeta(Postazione& p);

/// Has the window show what another program wrote to the open trip since it was looked at last; tells beside the work
/// where that would cost what is typed. False when there is nothing new to show.
bool GuardaArchivio(Postazione& p);

/// Copies the archive to a folder that the person names and works on there; what is typed stays as it is.
void SalvaAltrove(Postazione& p);

/// Take the last change back that the screen in front is about, and make it again.
void Annulla(Postazione& p);
void Ripeti(Postazione& p);

}  // namespace cronovia::comandi
