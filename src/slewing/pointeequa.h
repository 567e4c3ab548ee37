// The slew of an equatorial mount, by plain differences: no sidereal time, no horizon, no fold at 24 hours,
// no ramp. Right ascension to its end, then declination.
#pragma once

namespace pointing {

/// Sends the way from `reticulead`, `reticuledec` to `ciblead`, `cibledec`, with the mechanics of
/// `config_equa.ini`, read at each call, and the speeds of the equatorial pointing panel's lists. The reticle
/// is the caller's to set, after a stop too. Without inversion a growing right ascension raises its direction
/// line, a growing declination lowers its own. Fatal: a missing or short file, a zero in it, a speed class of
/// -1.
void pointeequa();

} // namespace pointing
