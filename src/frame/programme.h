// The composition of the program: every panel, its handlers and every named variable, in one place.
#pragma once

#include "store/registre.h"

namespace programme {

/// Puts all panels together in their design state, with their private variables, and all program-wide
/// variables at their first values, as often as it is called. The machine must be installed
/// (`plateforme::courante`).
void construit();

/// What `construit` put together.
const shell::registre& registre();

/// The process's start, from the main frame's load to idle.
void demarre();

} // namespace programme
