// SPDX-License-Identifier: GPL-3.0-or-later
// Stages as JSON.
#pragma once

#include "exchange/tappe/lettore_tappe.h"

namespace cronovia {

/// The stages of an array of objects, or of the member "tappe" of an object. Values are texts, numbers or true and
/// false. A `Failure` names line and column of what is no JSON, else the number of the stage and the member.
TappeLette LeggiTappeJson(const QByteArray& byte);

}  // namespace cronovia
