// The view of the sky chart. It lasts for the whole run: a chart closed and opened again is as it was left.
//
// Chart units are twips of the window, 4500 to the radius of declination 0 at zoom 1; the centre with no pan
// is at (4500, 4500), y downwards.
#pragma once

#include "base/entier.h"

#include <string>

namespace chart {

inline base::booleen16 cercleinit; ///< the view has been set
inline base::entier16 zoomcercle;  ///< scale, 1 to 7
inline double rayoncercle = 0;     ///< radius of declination 0, chart units: `zoomcercle` x 4500
inline base::entier16 rotcercle;   ///< degrees added to the angle of right ascension
inline double offsetx = 0;         ///< pan, chart units
inline double offsety = 0;
inline base::booleen16 reperevisible;   ///< the grid is drawn
inline base::booleen16 constvisible;    ///< the constellations' lines are drawn
inline base::entier16 filtrecercle;     ///< objects drawn: 0 none, 1 all, 2 galaxies, 3 clusters, 4 nebulae
inline std::string cataloguecercle;     ///< base name of the catalogue of objects
inline base::booleen16 lettresgrecques; ///< Greek letters are drawn: exactly while the zoom is above 3

} // namespace chart
