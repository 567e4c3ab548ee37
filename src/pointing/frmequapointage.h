// The pointing panel of the equatorial mount: a double click on a star tells where the telescope points, one
// on an object slews to it, and so does the free entry.
#pragma once

namespace frmequapointage {

/// Wires the panel's events; part of the program's composition.
void branche();

} // namespace frmequapointage
