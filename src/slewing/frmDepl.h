// The progress of a slew and its stop. The slews show it, write its bars and unload it; the alt-azimuth one
// also reads the bars back to tell which axis arrived.
#pragma once

namespace frmDepl {

/// Wires the panel's events; part of the program's composition.
void branche();

} // namespace frmDepl
