// SPDX-License-Identifier: GPL-3.0-or-later
// What was probably meant by a word that is none of those known.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace cronovia {

/// The known word that differs least from `parola`: but for its capitals, by one letter in three at most (swapped,
/// wrong, too many or missing), or by an end that is still to be typed. The first of several; nothing when none does.
std::optional<QString> PiuSimile(const QString& parola, const QStringList& note);

}  // namespace cronovia
