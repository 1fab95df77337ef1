// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the exchange screen, and the conversion of the earlier release's data.
#pragma once

#include "app/postazione.h"
#include "exchange/annulla_import.h"

namespace cronovia::comandi {

/// Open the screen: with the trips of the archive; with those of a file that the person names. They ask first before
/// something typed is lost.
void Export(Postazione& p);
void Import(Postazione& p);
/// The import of a file that came from outside; refused where an import cannot be begun.
void ApriFile(Postazione& p, const QString& file);

/// Takes the trips of an example, without a question, while there is none yet; the last of them is open then.
void ApriEsempio(Postazione& p, const QString& file);

/// Does something on the screen; nothing while a run is on.
void SulloScambio(Postazione& p, const std::function<void(TavoloScambio&)>& comando);
/// Move all trips of one list behind those of the other.
void ScambiaTutteDaPrima(Postazione& p);
void ScambiaTutteDaSeconda(Postazione& p);
/// Exports or imports the trips that are chosen, after a question. An import that was not stopped closes the screen,
/// whatever it added: the single trip that came in is open then, else the one that was.
void ImExp(Postazione& p);
/// Leaves the screen with nothing done. The trip that was open is in front again, as it is stored.
void FineScambio(Postazione& p);

/// The step of an import from a file that has just been done, while that trip was open.
Passo PassoImport(Postazione& p, const QString& file, const TracciaImport& traccia, const QString& aperta);

/// Brings over the earlier release's data, after a question.
void Converte(Postazione& p);

}  // namespace cronovia::comandi
