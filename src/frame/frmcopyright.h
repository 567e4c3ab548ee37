// The about window.
#pragma once

namespace frmcopyright {

/// Wires the panel's events; part of the program's composition.
void branche();

} // namespace frmcopyright
