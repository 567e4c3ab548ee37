#include "sky/math.h"

#include "base/nombre.h"

#include <cmath>

namespace math {

double radians(double d) { return d * pi / 180.0; }
double degres(double r) { return r * 180 / pi; }

double sinusdeg(double d) { return std::sin(radians(d)); }
double cosinusdeg(double d) { return std::cos(radians(d)); }

double arcsin(double x) { return std::atan(base::divise(x, base::racine(1.0 - x * x, "arcsin"), "arcsin")); }

double arccos(double x) { return std::atan(base::divise(base::racine(1.0 - x * x, "arccos"), x, "arccos")); }

double adsecondes(double h, double m) { return h * 3600 + m * 60.0; }

double anglehoraire(double t, double a) { return (t - a) * 15 / 3600 * pi / 180; }

} // namespace math
