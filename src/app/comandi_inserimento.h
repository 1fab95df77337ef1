// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the entry screen.
#pragma once

#include "app/postazione.h"

namespace cronovia::comandi {

/// The entry of stages as it opens, with what the current row proposes.
[[nodiscard]] schermata::Inserimento NuovoInserimento(const Documento& documento);

/// Opens the entry of stages.
void Itinerario(Postazione& p);
/// Goes to a row, counted from 1, unless the person wants to stay at the stage that is being typed: false then.
bool SelezionaRiga(Postazione& p, int riga);
/// The entry fields follow the row: what is being typed stays, unless another stage has come into it.
void SegueLaRiga(Postazione& p);

/// Writes the entry fields into the current row and goes to the next; tells why that cannot be, and then the fields
/// stay as they are.
void Inserisce(Postazione& p);
/// Opens a free row before the current one; takes the current one away, or all that are selected.
void Aggiunge(Postazione& p);
void Cancella(Postazione& p);
/// Takes all stops away, after a question.
void AzzeraSoste(Postazione& p);
/// Goes back to the start of the trip.
void Ritorno(Postazione& p);
/// Adds the guide's visit times to the stops, after a question.
void Trasferisce(Postazione& p);

/// Opens the list of places to go to; goes to the row of one.
void Cerca(Postazione& p);
void ScegliTappa(Postazione& p, int riga);

/// Saves the stages, or takes them back as they are stored.
void Memorizza(Postazione& p);
/// Closes the list that is open, else the screen, after the question whether to save: the trip's fields too.
void Fine(Postazione& p);

/// Whether progressive kilometres can be meant in the current row; nothing where there are none.
[[nodiscard]] std::optional<bool> KmProgressivi(const Postazione& p);

/// The kilometres of the stage that the fields mean.
[[nodiscard]] int KmInseriti(const Postazione& p, const CampiTappa& campi);

/// Replaces the stages in one step, which takes the positions that it has changed with it, and goes to a row. Tells
/// what went wrong; false then.
bool Modifica(Postazione& p, const QString& nome, RigheItinerario nuove, int riga, CambiPosizioni posizioni = {});

}  // namespace cronovia::comandi
