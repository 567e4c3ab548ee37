#include "sky/math.h"

#include "base/nombre.h"
#include "fields/frmconfig_champs.h"

#include <cmath>

namespace math {

namespace {

double angle_par_pas(double pas, base::entier32 reduction) {
    return base::divise(360, pas * reduction.reel(), "angle d'un pas") * 3600 / 2;
}

} // namespace

double radians(double d) { return d * pi / 180.0; }
double degres(double r) { return r * 180 / pi; }

double sinusdeg(double d) { return std::sin(radians(d)); }
double cosinusdeg(double d) { return std::cos(radians(d)); }

double arcsin(double x) { return std::atan(base::divise(x, base::racine(1.0 - x * x, "arcsin"), "arcsin")); }

double arccos(double x) { return std::atan(base::divise(base::racine(1.0 - x * x, "arccos"), x, "arccos")); }

double adsecondes(double h, double m) { return h * 3600 + m * 60.0; }

double anglehoraire(double t, double a) { return (t - a) * 15 / 3600 * pi / 180; }

double angleaz() {
    const double pas = frmconfig::txtpasaz.nombre();
    return angle_par_pas(pas, frmconfig::txtRaz.nombre32());
}

double anglealt() {
    const double pas = frmconfig::txtpasalt.nombre();
    return angle_par_pas(pas, frmconfig::txtRalt.nombre32());
}

void ecritdms(double arcsec, shell::champ_texte& deg, shell::champ_texte& min, shell::champ_texte& sec) {
    const double d = std::floor(arcsec / 3600.0);
    deg.ecrit(d);
    min.ecrit(std::floor((arcsec - d * 3600.0) / 60.0));
    sec.ecrit(base::arrondi(arcsec - deg.nombre() * 3600.0 - min.nombre() * 60.0));
}

} // namespace math
