// SPDX-License-Identifier: GPL-3.0-or-later
// What is typed and not saved yet: asked for before a command replaces it, kept when nobody can be asked.
#pragma once

#include "app/postazione.h"

namespace cronovia {

/// The trip differs from what was loaded, or what is typed into a stage or an entry of the guide from what its row
/// shows.
[[nodiscard]] bool QualcosaDaSalvare(Postazione& p);

/// Every command that replaces what is open calls this first. Asks whether to save, naming the trip, when something
/// would be lost. On Yes it is saved, a stage that was being typed in its row: false when the person wants to stay, or
/// that cannot be. On No it is left as it is.
[[nodiscard]] bool NientePerso(Postazione& p);
/// The same for the end of the desktop session while another command has not ended, with a box open perhaps: nothing is
/// dropped or loaded anew under it, and what it keeps from being saved is told.
[[nodiscard]] bool NientePersoAMeta(Postazione& p);
/// The same before what reads or changes the archive as a whole, beside which nothing may be left: on No it is dropped.
[[nodiscard]] bool NullaInSospeso(Postazione& p);
/// Drops all that is not saved, what is being typed too: the trip is in front as it was loaded.
void Rinuncia(Postazione& p);
/// As `NientePerso`, for the entry of the guide alone, before another one comes into the fields.
[[nodiscard]] bool VoceNonPersa(Postazione& p);
/// The same for the stage that is being typed, before another row or another itinerary comes under it: on No it is
/// dropped. False too where it was typed under a schedule and has been inserted: its days may be others now.
[[nodiscard]] bool TappaNonPersa(Postazione& p);

/// Asks whether to save the fields. A new trip that would take the place of a stored one: names that, and presets No.
[[nodiscard]] bool Confermato(Postazione& p, const Salvataggio& salvataggio);
/// Saves what was changed of the trip, whole or not at all. Tells what was shortened, or what went wrong: false then.
[[nodiscard]] bool SalvaTutto(Postazione& p);

/// Runs what saves the open trip, or stages of it. When the stored trip was changed meanwhile the person is shown how,
/// and may have it loaded, give up, or save fields and stages all the same. Tells what was shortened, or `mancato` and
/// what went wrong; false unless the trip was saved.
[[nodiscard]] bool SalvaOChiede(Postazione& p, const QString& mancato,
                                const std::function<EsitoMemorizzazione()>& salva);

/// What saving the trip's fields will do. Tells what was not done (`mancato`, may be empty) and why they cannot be
/// saved, and notes the field that it is about; nothing then.
std::optional<Salvataggio> DecideSalvataggio(Postazione& p, const QString& mancato = {});

/// Has the recovery file hold what is not saved, what is being typed too, and go when there is nothing. Nothing happens
/// while a command writes or runs: false then. A `Failure` when the file cannot be written.
bool MettiAlSicuro(Postazione& p);
/// The program is made to end and nobody can be asked: nothing is saved that the person did not confirm, the recovery
/// file holds it. False while another command writes or runs, and it is to be tried again.
bool Congeda(Postazione& p);
/// Shows what a window left behind that could not end, and opens it, throws it away or leaves it for later.
void OffriRecupero(Postazione& p);

}  // namespace cronovia
