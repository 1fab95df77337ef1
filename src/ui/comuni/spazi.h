// SPDX-License-Identifier: GPL-3.0-or-later
// The room between controls: one grid, which all frames, panels and dialogs take their distances from.
#pragma once

#include <QLayout>

namespace cronovia {

/// A step of the grid, in pixels.
inline constexpr int kSpazio = 4;
/// Between what belongs together and what comes next; between the parts of a page.
inline constexpr int kStacco = 2 * kSpazio;
inline constexpr int kStaccoGrande = 4 * kSpazio;

/// How a layout is spaced: around it, and between what it holds.
enum class Spazi {
    Unito,     ///< the parts of one value
    Riga,      ///< controls side by side, or frames, within what has a margin of its own
    Riquadro,  ///< what a frame, a panel or the window holds
    Pagina,    ///< a frame with room
    Dialogo,   ///< a window or box that comes over others
};

/// Spaces a layout; labels of forms stand to the left.
void Spazia(QLayout& layout, Spazi come);

/// The layout, spaced.
template <typename Layout>
Layout* Spaziato(Layout* layout, Spazi come) {
    Spazia(*layout, come);
    return layout;
}

}  // namespace cronovia
