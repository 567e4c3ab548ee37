// What a tracking tick shows, on its own panel and on `frmcoord`.
#pragma once

namespace tracking {

/// Shows sidereal time, steps, position and sums. An altitude of 0 or below stands on both panels as its
/// degrees rounded down, with 60 less the minutes that are left above them.
void affiche();

} // namespace tracking
