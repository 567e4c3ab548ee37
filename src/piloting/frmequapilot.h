// The pilot panel of the equatorial mount.
#pragma once

namespace frmequapilot {

/// Wires the panel's events; part of the program's composition.
void branche();

} // namespace frmequapilot
