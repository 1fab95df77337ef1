// SPDX-License-Identifier: GPL-3.0-or-later
// How a person wants the program to be; kept beside the archive.
#pragma once

#include <QSettings>
#include <QString>

#include "app/impostazioni.h"

class QWidget;

namespace cronovia {

/// Those of all windows.
enum class Colori { ComeIlSistema, Chiari, Scuri };

/// What can be chosen.
struct Preferenze {
    bool dalVivo = false;  ///< the schedule is computed anew after each change
    int testo = 100;       ///< size of all texts, in per cent of the desktop's: 100 to 200; from the next start on
    Colori colori = Colori::ComeIlSistema;
    Impostazioni comuni = {};  ///< with the command line
};

/// What is kept, within the limits of what can be chosen.
Preferenze LeggiPreferenze(const QSettings& aspetto);
void RicordaPreferenze(const Preferenze& preferenze, QSettings& aspetto);

/// Gives the program its size of text, before its window is made.
void ApplicaTesto(const Preferenze& preferenze);
void ApplicaColori(const Preferenze& preferenze);

/// Asks for them over the window, and for whether the data goes with the program: `programma` is its folder. False when
/// the person leaves all as it is.
bool ChiediPreferenze(Preferenze& preferenze, const QString& programma, QWidget& finestra);

}  // namespace cronovia
