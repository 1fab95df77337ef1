// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that lead into the guide screen and out of it; those on it are `TavoloGuida`'s.
#pragma once

#include "app/postazione.h"

namespace cronovia::comandi {

/// Opens the guide of the trip; tells when it has no stored stages.
void GuidaCitta(Postazione& p);
/// Does something on the screen; it closes when another window took the stages away.
void SullaGuida(Postazione& p, const std::function<void(TavoloGuida&)>& comando);
/// Goes to a row, counted from 1; asks first when the text of an entry would be lost.
void VaiAllaRigaGuida(Postazione& p, int riga);
/// Saves what the fields hold; tells why it cannot be.
void SalvaRigaGuida(Postazione& p);
/// Opens the list of localities, and closes it; the choice of what to print.
void CercaInGuida(Postazione& p);
void ChiudiElencoGuida(Postazione& p);
void StampaGuida(Postazione& p);
/// Asks the same before it deletes the entry of the current row.
void CancellaRigaGuida(Postazione& p);
/// Asks the same. The trip is in front again with the visits that the guide now has: as it is stored, but for what of
/// it is typed and not saved.
void FineGuida(Postazione& p);

/// Adds the places to stay of a file that the person names to the guide, after showing what would become of them.
void ImportaSoste(Postazione& p);

}  // namespace cronovia::comandi
