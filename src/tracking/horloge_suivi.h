// The clock of the tracking. While it runs, the time on `frmcoord` moves by one increment a tick; a second of
// the computer's clock is taken over now and then, so that late ticks don't add up.
#pragma once

#include "base/entier.h"

namespace tracking {

inline base::entier16 incrementms; ///< what the clock moves by at a tick, milliseconds

/// Sets the clock of `frmcoord` from the computer's: at every tick, or, when the increment is below a second,
/// only where its milliseconds read 0. At universal midnight the date is set and the almanac read.
void recale_horloge();

/// Moves the clock of `frmcoord` on by `incrementms`. Seconds are carried only where the milliseconds reach
/// 1000, and then as whole seconds of the increment (at least one). From 23:59:59 the date goes up one day,
/// the almanac is read and the milliseconds stay; from an earlier second a carry past midnight leaves the
/// date. A day past the end of the list is fatal (`propriete`).
void avance_horloge();

} // namespace tracking
