// The panel of the hand paddle: its speeds, its inversions, the measure of the backlash.
#pragma once

namespace frmraquette {

/// Wires the panel's events; part of the program's composition. The load puts the paddle's delay counts into
/// force; a count of `vitessemanu` outside the range of its speed is fatal (`propriete`).
void branche();

} // namespace frmraquette
