// The panel of the equatorial mount's mechanics.
#pragma once

namespace frmequaconfig {

/// Wires the panel's events; part of the program's composition.
void branche();

} // namespace frmequaconfig
