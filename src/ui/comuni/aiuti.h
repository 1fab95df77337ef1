// SPDX-License-Identifier: GPL-3.0-or-later
// The instructions behind the "[?]" buttons and in the help menu.
#pragma once

#include <QPushButton>
#include <QString>
#include <vector>

namespace cronovia {

/// What a frame is for, plain text.
struct Istruzioni {
    QString pulsante;  ///< name of the "[?]" button
    QString titolo;
    QString testo;
};

/// Those of one frame each.
Istruzioni AiutoPeriodo();
Istruzioni AiutoVelocita();
Istruzioni AiutoTempi();
Istruzioni AiutoInserimento();
Istruzioni AiutoDuplica();
Istruzioni AiutoGuida();

/// All of them, as a journey is planned.
std::vector<Istruzioni> TutteLeIstruzioni();

/// What the marks of the column of the return mean.
QString SpiegazioneLimite();

/// Shows them in a box over the window, until that is closed.
void MostraIstruzioni(const Istruzioni& istruzioni, QWidget& finestra);

/// The "[?]" button of a frame, which shows them.
QPushButton* NuovoAiuto(const Istruzioni& istruzioni);

}  // namespace cronovia
