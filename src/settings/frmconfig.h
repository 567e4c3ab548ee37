// The panel of the alt-azimuth mount's mechanics, the site and the object observed.
#pragma once

namespace frmconfig {

/// Wires the panel's events; part of the program's composition.
void branche();

} // namespace frmconfig
