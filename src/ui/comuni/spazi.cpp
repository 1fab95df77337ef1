// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/spazi.h"

#include <QFormLayout>
#include <QGridLayout>
#include <array>

namespace cronovia {

namespace {

struct Distanze {
    int intorno;
    int fra;
};

// In the order of `Spazi`.
constexpr std::array<Distanze, 5> kDistanze = {
    {{0, 0}, {0, kSpazio}, {kSpazio, kSpazio}, {kStacco, kStacco}, {kStaccoGrande, kStacco}}};

}  // namespace

void Spazia(QLayout& layout, Spazi come) {
    const Distanze& distanze = kDistanze[static_cast<std::size_t>(come)];
    layout.setContentsMargins(distanze.intorno, distanze.intorno, distanze.intorno, distanze.intorno);
    layout.setSpacing(distanze.fra);
    // Rows have air of their own, and every pixel between them is one less for the itinerary.
    const int righe = come <= Spazi::Riquadro ? kSpazio / 2 : distanze.fra;
    if (auto* griglia = qobject_cast<QGridLayout*>(&layout)) griglia->setVerticalSpacing(righe);
    if (auto* modulo = qobject_cast<QFormLayout*>(&layout)) {
        modulo->setVerticalSpacing(righe);
        modulo->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    }
}

}  // namespace cronovia
