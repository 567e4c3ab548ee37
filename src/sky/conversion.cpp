#include "sky/conversion.h"

#include "base/nombre.h"
#include "drive/position.h"
#include "fields/frmconfig_champs.h"
#include "sky/almanach.h"
#include "sky/math.h"
#include "sky/temps_sideral.h"

#include <algorithm>
#include <cmath>

namespace general {

using base::divise;
using base::fini;
using math::arccos;
using math::arcsin;
using math::pi;
using std::cos;
using std::sin;

namespace {

constexpr double plein_sud = 648000.0;          // azimuth, arcseconds
constexpr double quinze_pi = 47.12388980384685; // degrees an hour times pi
constexpr double demi_jour = 43200;             // seconds

void lit_latitude() {
    latrad =
        fini(((frmconfig::txtlatmin.nombre() / 60.0 + frmconfig::txtlatdeg.nombre()) * pi) / 180.0, "latrad");
}

// Azimuth in degrees from the angle folded by `arccos`; `ouest` above 0: west of the meridian. From 0 to 360:
// 360 + d is taken where d is not above 0.
double azimut(double ouest) {
    const double d = math::degres(azbrut);
    double az = 0;
    if (ouest > 0)
        az = azbrut > 0 ? 180 + d : 360 + d;
    else
        az = azbrut < 0 ? -d - 180 : -d;
    if (az < 0)
        az = az + 180;
    return az;
}

constexpr double telle_quelle(double x) { return x; }

// The nearest argument that the inverse functions take: the last one below 1, and not 0.
double bornee(double x) {
    constexpr double presque_un = 1 - 1.2e-16;
    return x == 0 ? 1e-300 : std::clamp(x, -presque_un, presque_un);
}

// Azimuth from south, radians. The exact south keeps 180 degrees, which is the declination due north of
// there.
double azimut_du_sud(double az) {
    return az == plein_sud ? (az / 3600.0) * pi / 180.0 : ((az / 3600.0 - 180.0) * pi) / 180.0;
}

// Declination of an azimuth from south and an altitude seen from latitude p, radians.
double declinaison(double a, double h, double p, double (*argument)(double)) {
    return fini(arcsin(argument(sin(h) * sin(p) - (cos(h) * cos(p)) * cos(a))), "decrad");
}

// Right ascension in seconds of time at local sidereal time l. The hour angle is given by its sine, and by
// the inverse of its sine h0 and the folded inverse of its cosine h1.
double ascension(double l, double sinus, double h0, double h1) {
    const double u = (648000 * h1) / quinze_pi;
    const double v = (648000 * (pi - h0)) / quinze_pi;
    if (sinus > 0)
        return h1 > 0 ? l - u : (l - u) - demi_jour;
    return h1 > 0 ? l + u : l - v;
}

// The same of the direction just told, with its declination d.
double ascension_de(double l, double a, double h, double p, double d, double (*argument)(double)) {
    const double sinus = divise(sin(a) * cos(h), cos(d), "angle horaire");
    const double h0 = arcsin(argument(sinus));
    const double cosinus = divise((sin(p) * cos(h)) * cos(a) + cos(p) * sin(h), cos(d), "angle horaire");
    return ascension(l, sinus, h0, arccos(argument(cosinus)));
}

} // namespace

void vers_horizon(double tsl, const objet& o) {
    fixe_tslsec(tsl);
    const double h = math::anglehoraire(tsl, math::adsecondes(o.heures, o.minutes));
    lit_latitude();
    adrad = fini(((o.minutes * 15.0 / 60.0 + o.heures * 15.0) * pi) / 180.0, "adrad");
    const double dec = fini(((o.minutesarc / 60.0 + o.degres) * pi) / 180.0, "decrad");
    decrad = o.positive ? dec : -dec;
    const double p = latrad;
    const double d = decrad;
    hautrad = fini(arcsin((cos(d) * cos(p)) * cos(h) + sin(d) * sin(p)), "hautrad");
    hautdeg = math::degres(hautrad);
    const double ouest = divise(cos(d) * sin(h), cos(hautrad), "azimut");
    const double sud = divise((cos(d) * sin(p)) * cos(h) - sin(d) * cos(p), cos(hautrad), "azimut");
    azbrut = fini(arccos(sud), "azbrut");
    azdeg = azimut(ouest);
}

void calcul_altaz() {
    ecartaz = 0;
    ecartalt = 0;
    const double l = lit_tsl();
    vers_horizon(l, {.heures = frmconfig::Txtad_h.nombre(),
                     .minutes = frmconfig::txtad_min.nombre(),
                     .degres = frmconfig::txtdec_deg.nombre(),
                     .minutesarc = frmconfig::txtdec_min.nombre(),
                     .positive = frmconfig::txtsign.lit() == "+"});
    posalt = hautdeg * 3600;
    posaz = azdeg * 3600;
}

void calcul_equa() {
    lit_latitude();
    const double a = azimut_du_sud(posaz);
    const double h = ((posalt / 3600.0) * pi) / 180.0;
    decrad = declinaison(a, h, latrad, telle_quelle);
    decdeg = math::degres(decrad);
    lit_almanach();
    const double l = lit_tsl();
    adheures = fini(ascension_de(l, a, h, latrad, decrad, telle_quelle) / 3600.0, "adheures");
}

place depuis_horizon(double az, double alt, double latitude, double tsl) {
    const double a = azimut_du_sud(az);
    const double h = ((alt / 3600.0) * pi) / 180.0;
    const double p = (latitude * pi) / 180.0;
    const double d = declinaison(a, h, p, bornee);
    return {ascension_de(tsl, a, h, p, d, bornee) / 3600.0, math::degres(d)};
}

} // namespace general
