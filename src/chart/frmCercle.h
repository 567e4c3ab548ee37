// The observer's acts on the sky chart: one popup at the right mouse button, and the keys.
#pragma once

namespace frmCercle {

/// Wires the panel's events; part of the program's composition.
void branche();

} // namespace frmCercle
