// The main frame: start-up, the mount modes, computer and paddle control. There is no mode variable: the mode
// is which toolbar is visible, which panels are loaded, and what was last written to the control register.
#pragma once

#include "base/entier.h"

namespace frminterface {

inline base::booleen16 coordvisible; ///< the clock and position panel is on screen

/// Wires the frame's events; part of the program's composition.
void branche();

} // namespace frminterface
