// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that move, copy and take away whole stretches: the rows selected in the entry of stages, or the stages
// of a day. Each is one step that can be taken back; in the schedule it is computed anew at once.
#pragma once

#include "app/postazione.h"
#include "itinerary/spostamenti.h"

namespace cronovia::comandi {

/// The rows selected in the entry of stages, the current one among them.
[[nodiscard]] Tratto RigheScelte(const Postazione& p);
/// Such a change, made: the rows that it was about are selected then, and the schedule in front is computed anew.
void ConcludiSpostamento(Postazione& p, const QString& nome, EsitoSpostamento esito, CambiPosizioni posizioni = {});
/// Goes to a row, and selects all from where the selection begins.
void SceglieFino(Postazione& p, int riga);

/// On the rows selected, in the schedule on the stages of the day that is current there: one place up or down, once
/// more behind themselves, away. Tell when there is none.
void SpostaSu(Postazione& p);
void SpostaGiu(Postazione& p);
void DuplicaScelte(Postazione& p);
void TogliScelte(Postazione& p);

/// Puts rows before row `dove`; the stages that are reached on a day one day up or down, or before those of another
/// one. Days count from 0.
void SpostaPrimaDi(Postazione& p, Tratto righe, int dove);
void SpostaGiornata(Postazione& p, int giornata, int passo);
void SpostaGiornataPrimaDi(Postazione& p, int giornata, int altra);
/// The stages that are reached on a day once more behind themselves; taken away.
void DuplicaGiornata(Postazione& p, int giornata);
void TogliGiornata(Postazione& p, int giornata);
/// The last stage that is reached on a day, where it can be made to end; null without one.
[[nodiscard]] const Tappa* TappaFinale(const Postazione& p, int giornata);
/// Has the day, from 0, end at the last stage that is reached on it, or lets it go on there; the current day.
void FineGiornata(Postazione& p, int giornata);
void FineGiornataCorrente(Postazione& p);

/// Puts the rows selected on the clipboard as text for spreadsheets, for this window also what no text tells of them;
/// in the schedule what `CopiaCronovia` does. `Taglia` takes them away too.
void Copia(Postazione& p);
void Taglia(Postazione& p);
/// Stages as text, before the current row; all of them or none.
void Incolla(Postazione& p);

/// Asks what others set for the current stage.
void OrariENote(Postazione& p);

/// Puts a place on the way to the current stage, after asking which.
void DividiTappaCorrente(Postazione& p);

}  // namespace cronovia::comandi
