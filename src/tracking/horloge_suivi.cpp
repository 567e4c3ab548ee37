#include "tracking/horloge_suivi.h"

#include "fields/frmcoord_champs.h"
#include "sky/almanach.h"
#include "sky/heure.h"

#include <cmath>

namespace tracking {

using frmcoord::txth;
using frmcoord::txtmin;
using frmcoord::txtms;
using frmcoord::txts;

namespace {

constexpr double ms_par_seconde = 1000;

double secondes_entieres() {
    const double k = std::floor(incrementms.reel() / ms_par_seconde);
    return k == 0 ? 1 : k;
}

// From a second before the 59th. The hour may wrap here, and then the date stays.
void avance_secondes(double h, double n, double s, double k) {
    if (s + k <= 59) {
        txts.ecrit(s + k);
        return;
    }
    txts.ecrit(s + k - 60);
    if (n < 59) {
        txtmin.ecrit(n + 1);
        return;
    }
    txtmin.ecrit("0");
    txth.ecrit(h >= 23 ? 0 : h + 1);
}

void passe_jour() {
    txtmin.ecrit("0");
    txth.ecrit("0");
    frmcoord::cbjour.position(frmcoord::cbjour.position() + 1);
    general::lit_almanach();
}

} // namespace

void recale_horloge() {
    if (incrementms >= 1000 || txtms.nombre() == 0)
        general::synchro_heure();
    general::passe_minuit();
}

void avance_horloge() {
    const double m = txtms.nombre();
    const double s = txts.nombre();
    const double n = txtmin.nombre();
    const double h = txth.nombre();
    const double somme = m + incrementms.reel();
    if (somme < ms_par_seconde) {
        txtms.ecrit(somme);
        return;
    }
    const double k = secondes_entieres();
    const double reste = somme - ms_par_seconde * k;
    if (s < 59 && n <= 59 && h <= 23) {
        txtms.ecrit(reste);
        avance_secondes(h, n, s, k);
        return;
    }
    txts.ecrit(s + k - 60);
    if (s == 59 && n < 59 && h <= 23) {
        txtms.ecrit(reste);
        txtmin.ecrit(n + 1);
    } else if (s == 59 && n == 59 && h < 23) {
        txtms.ecrit(reste);
        txtmin.ecrit("0");
        txth.ecrit(h + 1);
    } else {
        passe_jour();
    }
}

} // namespace tracking
