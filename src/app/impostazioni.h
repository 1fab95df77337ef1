// SPDX-License-Identifier: GPL-3.0-or-later
// What a person chose in the preferences that the command line goes by too.
#pragma once

#include <QSettings>
#include <QSizeF>
#include <QString>
#include <vector>

namespace cronovia {

/// A sheet that can be printed on.
struct CartaDaStampa {
    QString chiave;  ///< under which it is kept
    QString nome;    ///< as people choose it
    QSizeF misura;   ///< upright, in millimetres
};

/// What can be chosen; A4 comes first, and is taken for want of a choice.
std::vector<CartaDaStampa> CarteOfferte();

/// How many of the newest copies of the archive can be kept.
inline constexpr int kMinimoCopie = 3;
inline constexpr int kMassimoCopie = 100;

/// What was chosen.
struct Impostazioni {
    int copie = 10;       ///< how many of the newest copies stay
    CartaDaStampa carta;  ///< one of those that are offered
};

/// The file that keeps all preferences of a data folder. It need not be there.
QString FileImpostazioni(const QString& cartella);

/// What is kept, within the limits of what can be chosen.
Impostazioni LeggiImpostazioni(const QSettings& preferenze);
Impostazioni LeggiImpostazioni(const QString& cartella);
void RicordaImpostazioni(const Impostazioni& impostazioni, QSettings& preferenze);

}  // namespace cronovia
