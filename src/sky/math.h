// Angles: the constant pi, degrees and radians, the inverse functions.
//
// The inverse functions are built from the arctangent and test nothing: their weak points at the ends of the
// range are part of the formulas that use them.
#pragma once

namespace math {

/// These fifteen figures, and not the full value, wherever the sky mathematics needs pi.
inline constexpr double pi = 3.14159265358979;

/// Degrees to radians, multiplying first.
double radians(double d);

/// Radians to degrees, multiplying first.
double degres(double r);

/// Sine and cosine of an angle in degrees.
double sinusdeg(double d);
double cosinusdeg(double d);

/// Radians, between -pi/2 and pi/2. Fatal at 1 and -1 (`division_par_zero`) and beyond (`racine_negative`).
double arcsin(double x);

/// Not the mathematical arccosine: radians between -pi/2 and pi/2 with the sign of x, which below 0 is the
/// arccosine less pi. The callers read that sign and repair the quadrant. Fatal at 0 (`division_par_zero`)
/// and beyond 1 or -1 (`racine_negative`).
double arccos(double x);

/// Seconds of time of a right ascension in hours and decimal minutes.
double adsecondes(double h, double m);

/// Hour angle in radians, positive west, of right ascension a at sidereal time t, both in seconds of time.
/// Not reduced to a turn.
double anglehoraire(double t, double a);

} // namespace math
