// The pilot panel of the alt-azimuth mount.
#pragma once

namespace frmaltazpilot {

/// Wires the panel's events; part of the program's composition.
void branche();

} // namespace frmaltazpilot
