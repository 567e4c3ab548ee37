// What slews, chart and main frame share about pointing.
#pragma once

#include "base/entier.h"

namespace pointing {

inline base::booleen16 panneaualtaz; ///< the alt-azimuth pointing panel is the one in use
inline base::booleen16 stoppointage; ///< a stop of the slew is asked for

} // namespace pointing
