#include "sky/conversion.h"

#include "base/nombre.h"
#include "drive/position.h"
#include "fields/frmconfig_champs.h"
#include "sky/almanach.h"
#include "sky/math.h"
#include "sky/temps_sideral.h"

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

// Right ascension in seconds of time at local sidereal time l. The hour angle is given by its sine, and by
// the inverse of its sine h0 and the folded inverse of its cosine h1.
double ascension(double l, double sinus, double h0, double h1) {
    const double u = (648000 * h1) / quinze_pi;
    const double v = (648000 * (pi - h0)) / quinze_pi;
    if (sinus > 0)
        return h1 > 0 ? l - u : (l - u) - demi_jour;
    return h1 > 0 ? l + u : l - v;
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
    // Azimuth from south. The exact south keeps 180 degrees, which is the declination due north of there.
    const double a =
        posaz == plein_sud ? (posaz / 3600.0) * pi / 180.0 : ((posaz / 3600.0 - 180.0) * pi) / 180.0;
    const double h = ((posalt / 3600.0) * pi) / 180.0;
    const double p = latrad;
    decrad = fini(arcsin(sin(h) * sin(p) - (cos(h) * cos(p)) * cos(a)), "decrad");
    decdeg = math::degres(decrad);
    lit_almanach();
    const double l = lit_tsl();
    const double sinus = divise(sin(a) * cos(h), cos(decrad), "angle horaire");
    const double h0 = arcsin(sinus);
    const double cosinus = divise((sin(p) * cos(h)) * cos(a) + cos(p) * sin(h), cos(decrad), "angle horaire");
    const double h1 = arccos(cosinus);
    adheures = fini(ascension(l, sinus, h0, h1) / 3600.0, "adheures");
}

} // namespace general
