// The ways from a configuration panel to the hand paddle.
#pragma once

namespace reglages {

/// Gives the port to the paddle and starts its scan.
void prend_raquette();

/// The same, to measure the backlash.
void mesure_jeu();

} // namespace reglages
