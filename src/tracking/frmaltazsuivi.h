// The tracking panel of the alt-azimuth mount.
#pragma once

namespace frmaltazsuivi {

/// Wires the panel's events and the tracking tick; part of the program's composition.
void branche();

} // namespace frmaltazsuivi
