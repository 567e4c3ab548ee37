// Local sidereal time from the clock, the site and the almanac's value on the panels. No formula of its own:
// the almanac gives 0 h of the day, the rest is universal time scaled and the longitude.
#pragma once

#include "base/entier.h"

namespace general {

inline base::entier32 tslsec; ///< local sidereal time of the last conversion to the horizon, whole seconds

/// Sidereal seconds since 0 h universal time.
double tempsecoule(double h, double m, double s, base::entier16 ms);

/// Sidereal seconds of the site at 0 h: longitude in degrees and minutes, positive east, a sign on the
/// degrees not reaching the minutes; t0 the almanac's seconds. Fatal beyond 32 bits.
double tslbase(double deg, base::entier16 min, base::entier32 t0);

/// Local sidereal time in seconds at the time on `frmcoord`, milliseconds included. One day is taken off at
/// 86400 or above, once; nothing is added below 0.
double lit_tsl();

/// Sets `tslsec` from a local sidereal time.
void fixe_tslsec(double tsl);

} // namespace general
