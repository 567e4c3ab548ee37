// What the keyboard does in every window of the program.
#pragma once

namespace plateforme::qt {

/// Has Escape press the stop of whatever moves, from any window, and a frame drawn around the control that
/// has the focus. To be called once, with the application object made.
void ecoute_le_clavier();

} // namespace plateforme::qt
