// What the panels of the settings and the main frame share with the tracking panel.
#pragma once

#include "base/entier.h"

namespace tracking {

inline base::booleen16 suiviouvert; ///< the tracking panel is open
inline base::booleen16 objetchoisi; ///< an object was chosen to be tracked

inline double sommeaz = 0;  ///< accumulated rounding of azimuth, steps, signed
inline double sommealt = 0; ///< the same of altitude

} // namespace tracking
