// The help window: it tells where the help pages are.
#pragma once

namespace frmaide {

/// Wires the panel's events; part of the program's composition.
void branche();

} // namespace frmaide
