// The ways from a configuration panel to the hand paddle.
#pragma once

namespace reglages {

/// Gives the port to the paddle, shows its panel and starts its scan.
void prend_raquette();

/// The same, with the panel's backlash section open.
void mesure_jeu();

} // namespace reglages
