// The pointing panel of the alt-azimuth mount: a double click on an object slews to it; the free entry tells
// where the telescope points, and moves nothing.
#pragma once

namespace frmaltazpointage {

/// Wires the panel's events; part of the program's composition.
void branche();

} // namespace frmaltazpointage
