// What a control does, in one line, for who cannot tell it from its caption.
#pragma once

#include "store/controles.h"

#include <string>

namespace bulles {

/// The tooltip of a control; empty where the caption says it all. The speed rows of the pilot panels tell
/// pulses a second at the count they show. Loads nothing, refuses nothing.
std::string bulle(const shell::controle& c);

} // namespace bulles
