// One tick of the alt-azimuth tracking: the object's place for the clock moved on by an increment, the change
// since the last tick in whole steps, and two bursts. An open loop: the telescope is taken to be where the
// object was computed, whether the steps went out or not.
//
// The sums are of unsigned counts: they know nothing of the sense of the motion, nor of its reversals.
#pragma once

namespace tracking {

inline double altold = 0; ///< altitude of the tick before, arcseconds, while the panel is open
inline double azold = 0;  ///< azimuth

/// The tick. Reads increment and delays from the panel, moves the clock, computes, shows, sends the bursts,
/// which yield, and switches its timer on again at its very end: a pause inside a burst is overruled, and a
/// panel closed there is loaded anew. Fatal (`depassement`): an increment or a step count beyond 16 bits.
void tic();

/// Clears the step counts and the sums.
void efface_sommes();

/// Takes the place just computed for that of the tick before the first.
void part_d_ici();

/// What a close of the panel leaves: no place.
void oublie_position();

} // namespace tracking
