// SPDX-License-Identifier: GPL-3.0-or-later
// Where the data of this installation lives.
#pragma once

#include <QString>

namespace cronovia {

/// The folders that may hold them.
struct LuoghiPossibili {
    QString richiesta;  ///< named by the person; empty when none was
    QString programma;  ///< folder of the program
    QString utente;     ///< data folder of the user
};

/// The folder that was asked for; else that of the program, when a file there marks it as one to be carried along with
/// its data; else that of the user.
QString CartellaDati(const LuoghiPossibili& luoghi);

/// The file that marks the folder of a program so; what it holds is nobody's business.
QString FilePortatile(const QString& programma);

/// Whether it can be carried along with its data: an installed program cannot, whose parts lie in several folders.
bool PuoEsserePortatile(const QString& programma);

/// The possible places as this platform has them.
LuoghiPossibili LuoghiDellaPiattaforma(const QString& richiesta);

/// Path of a file that comes with the program, as "luoghi.dat": beside it, or where an installation puts such files.
/// Whether it is there nobody has asked.
QString FileDelProgramma(const QString& nome);

}  // namespace cronovia
