// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that explain the program.
#pragma once

#include <QStringList>

#include "app/postazione.h"

namespace cronovia {

/// The chapter of the manual about what is in front, and that of the keys, by their headings.
QString ArgomentoDelManuale(const Schermata& schermata);
QString ArgomentoDeiTasti();

/// Whose work the program and its data stand on, and under which licences; lines.
QString Riconoscimenti();

namespace comandi {

/// Open the manual: at what is in front, at the keys.
void Manuale(Postazione& p);
void Tasti(Postazione& p);

/// Has the person choose how the program is.
void Preferenze(Postazione& p);

/// Tells which program this is, where the data of the person lies, and what it is made of.
void Informazioni(Postazione& p);

}  // namespace comandi

}  // namespace cronovia
