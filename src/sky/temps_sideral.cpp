#include "sky/temps_sideral.h"

#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"

namespace general {

using base::entier16;
using base::entier32;

namespace {

// Mean solar over mean sidereal day, as the system has it.
constexpr double jour_solaire = 0.99726957;
constexpr int secondes_par_jour = 86400;

} // namespace

double tempsecoule(double h, double m, double s, entier16 ms) {
    return (h * 3600 + m * 60 + s + ms.reel() / 1000.0) / jour_solaire;
}

double tslbase(double deg, entier16 min, entier32 t0) {
    return entier32{entier32{deg * 240 + min.reel() * 4, frmconfig::txtdegre.lieu()} + t0, "tsl"}.reel();
}

double lit_tsl() {
    const double h = frmcoord::txth.nombre();
    const double m = frmcoord::txtmin.nombre();
    const double s = frmcoord::txts.nombre();
    const double t = tempsecoule(h, m, s, frmcoord::txtms.nombre16());
    const double deg = frmconfig::txtdegre.nombre();
    const entier16 min = frmconfig::txtmin.nombre16();
    const double l = t + tslbase(deg, min, frmcoord::txtessai.nombre32());
    return l < secondes_par_jour ? l : l - secondes_par_jour;
}

void fixe_tslsec(double tsl) {
    tslsec = {tsl, "tslsec"};
    if (tslsec >= secondes_par_jour)
        tslsec = {tslsec - secondes_par_jour, "tslsec"};
}

} // namespace general
