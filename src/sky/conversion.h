// From the sky to the horizon and back. Purely geometric: no refraction, precession, nutation or aberration.
//
// Azimuth runs from north through east, altitude is positive above the horizon, the hour angle positive west
// of the meridian; latitude is positive north, longitude positive east. Time, site and object are read from
// the fields of `frmcoord` and `frmconfig` at each use.
//
// Singular points, all fatal: an object at zenith or nadir, due east or west on the way to the horizon, six
// hours from the meridian on the way back. An exact southern transit gives azimuth 0.
#pragma once

#include "sky/equinoxe.h"

namespace general {

inline double latrad = 0;   ///< latitude of the site, radians
inline double adrad = 0;    ///< right ascension of the object, radians
inline double decrad = 0;   ///< declination, radians
inline double hautrad = 0;  ///< altitude, radians
inline double hautdeg = 0;  ///< altitude, degrees
inline double azbrut = 0;   ///< angle from south before the quadrant steps, radians, -pi/2 to pi/2
inline double azdeg = 0;    ///< azimuth, degrees
inline double decdeg = 0;   ///< declination of the telescope, degrees
inline double adheures = 0; ///< right ascension of the telescope, hours, not reduced to a day

/// An object as it is entered: what is not signed carries its sign in `positive`.
struct objet {
    double heures = 0;  ///< right ascension, hours
    double minutes = 0; ///< and decimal minutes of time
    double degres = 0;  ///< declination, degrees
    double minutesarc = 0;
    bool positive = true; ///< declination towards north
};

/// Azimuth and altitude of an object at a local sidereal time in seconds (`lit_tsl`): sets `latrad`, `adrad`,
/// `decrad`, `hautrad`, `hautdeg`, `azbrut`, `azdeg`, and `tslsec`.
void vers_horizon(double tsl, const objet& o);

/// The object of `frmconfig`: its azimuth and altitude, in arcseconds, become `posaz`, `posalt`. Sets
/// `tslsec` too, and `ecartaz`, `ecartalt` to 0. The almanac must have been read before.
void calcul_altaz();

/// Right ascension and declination of the place the telescope points at, into `adheures`, `decrad`, `decdeg`.
/// Reads the almanac.
void calcul_equa();

/// The same formulas for any reader: azimuth and altitude in arcseconds, latitude in degrees, local sidereal
/// time in seconds. Stores nothing, reads no field, and passes a singular point by the place next to it.
place depuis_horizon(double az, double alt, double latitude, double tsl);

} // namespace general
