// The slew of an alt-azimuth mount to the sky's place of an object: azimuth to its end, then altitude.
//
// The engine sends step lines only: the direction lines stay at 0, so both motors run in one sense whatever
// the way's sign, and a count is twice the way in half steps. Wire and driver decide what comes of it. The
// position believed follows the way asked, not the pulses. No ramp, no shortest way over north.
#pragma once

#include "sky/conversion.h"

namespace pointing {

/// Azimuth and altitude of a place of the sky, now: sets `azdeg`, `hautdeg` and the other values of the
/// conversion, `tslsec` among them. The almanac must have been read before.
void calchoriz(const general::objet& o);

/// Shows `cibleaz`, `ciblealt` on the pointing panel in degrees, minutes and seconds.
void affichecible();

/// One pass from `posaz`, `posalt` to the target in `ciblehr`, `ciblemin`, `cibledeg`, `cibledegmin`. A
/// target below the horizon gives a message and ends the slew (`distaz` and `distalt` 0). Fatal: a step angle
/// of 0, a speed class of -1, a count of altitude beyond 32 bits.
void pointealtaz();

/// The whole slew to `ciblead`, `cibledec`: passes until both ways left are below 120 arcseconds, since the
/// sky turns meanwhile. A declination without whole degrees counts as negative.
void pointe_objet();

} // namespace pointing
