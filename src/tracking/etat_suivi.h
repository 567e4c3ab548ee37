// What other panels know of the tracking panel.
#pragma once

#include "base/entier.h"

namespace tracking {

inline base::booleen16 suiviouvert; ///< the tracking panel is open

} // namespace tracking
