// The moving equinox: precession between a date and J2000, mean sidereal time.
//
// Precession and mean sidereal time of IAU 2006 (Capitaine, Wallace and Chapront 2003, Astronomy and
// Astrophysics 412, 567), without the bias of the reference frame (0.02"), nutation or aberration. UT1 is
// taken for UTC and for TT: the minute between them is 0.0001" of precession. Dates are milliseconds of
// universal time since 1970 January 1, 0 h.
#pragma once

#include <cstdint>

namespace general {

/// A place of the sky: right ascension in hours, any number of turns; declination in degrees.
struct place {
    double ad = 0;
    double dec = 0;
};

/// A place of the mean equator and equinox of J2000 for those of a date, and back. Right ascension comes out
/// from 0 to 24, declination from -90 to 90.
place vers_la_date(place de_j2000, std::int64_t date);
place vers_j2000(place de_la_date, std::int64_t date);

/// Greenwich mean sidereal time, seconds, 0 to 86400.
double sideral_greenwich(std::int64_t date);

} // namespace general
