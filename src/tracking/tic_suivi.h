// One tick of the alt-azimuth tracking: the object's place for the clock moved on by an increment, the change
// since the last tick in whole steps, and two bursts. An open loop: the telescope is taken to be where the
// object was computed, whether the steps went out or not.
//
// The sums are of unsigned counts: they know nothing of the sense of the motion, nor of its reversals.
#pragma once

#include "base/entier.h"

namespace tracking {

/// What the tracking panel keeps while it is open.
struct memoire {
    double altnew = 0; ///< altitude of this tick, arcseconds
    double altold = 0; ///< and of the one before
    double aznew = 0;  ///< the same of azimuth
    double azold = 0;
    double pasexactalt = 0; ///< steps before rounding, unsigned
    double pasexactaz = 0;
    double resteazalt = 0; ///< exact less rounded count of this tick
    double resteaz = 0;
    base::booleen16 invsuiviaz; ///< the inversion boxes as last saved; no motion looks at them
    base::booleen16 invsuivialt;
};
inline memoire prive;

/// The tick. Reads increment and delays from the panel, moves the clock, computes, shows, sends the bursts,
/// which yield, and switches its timer on again at its very end: a pause inside a burst is overruled, and a
/// panel closed there is loaded anew. Fatal (`depassement`): an increment or a step count beyond 16 bits.
void tic();

/// Clears the step counts, the rests and the sums.
void efface_sommes();

/// Takes the place just computed for that of the tick before the first.
void part_d_ici();

} // namespace tracking
