// The changes of the chart's view. None of them draws: a redraw follows each.
#pragma once

#include "base/entier.h"

namespace chart {

/// Half the side of the chart at zoom 1, and the place of its centre with no pan, chart units.
inline constexpr double rayon_unite = 4500;
inline constexpr int zoom_maximum = 7;

/// Sets the view at the first opening of the chart in a run; nothing after that.
void initialise_vue();

/// Another scale, 1 to `zoom_maximum`: the pan follows, so that the pole stays where the scale puts it.
void zoome(base::entier16 zoom);

/// Turns by degrees, clockwise on the screen if positive. The sum keeps its sign when it is folded into a
/// turn: -10, -20 to -350, 0.
void tourne(base::entier16 degres);

/// Scale 1, no pan, no rotation.
void raz_vue();

} // namespace chart
