// SPDX-License-Identifier: GPL-3.0-or-later
// What a person types for a stage, field by field, and why it cannot be.
#pragma once

#include "itinerary/vincoli.h"

namespace cronovia {

/// A field of `Vincoli` that has to be another one.
struct DifettoVincoli {
    int campo = 0;      ///< a `vincoli::Field`
    QString messaggio;  ///< for the person
};

/// What such texts come to.
struct VincoliDigitati {
    VincoliTappa vincoli;                   ///< nothing set when there is something wrong
    std::optional<DifettoVincoli> difetto;  ///< the first one, in the order of the fields
};

/// Reads texts, one for each field of `Vincoli`, whose key is of no account. Times may be written as people do: "8",
/// "8:30", "22.00"; a sailing time also with days before it.
VincoliDigitati LeggiDigitati(std::vector<QString> testi);

/// What is set, as it is typed: "22:00", "28/06/2027", "1:08:30".
std::vector<QString> TestiDaDigitare(const VincoliTappa& vincoli);

}  // namespace cronovia
