#include "sky/affichage.h"

#include "base/nombre.h"
#include "drive/etat_moteur.h"
#include "drive/position.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "sky/conversion.h"

#include <cmath>

namespace general {

namespace {

void affiche_azimut() {
    ecritdms(posaz, frmcoord::txtcoordaz1, frmcoord::txtcoordaz2, frmcoord::txtcoordaz3);
}

void affiche_altitude() {
    ecritdms(posalt, frmcoord::txtcoordalt1, frmcoord::txtcoordalt2, frmcoord::txtcoordalt3);
}

// The position after so many steps.
double ajoute_pas(double position, double angle_par_pas, base::entier32 compte) {
    return base::fini(angle_par_pas * compte.reel() + position, "position du télescope");
}

} // namespace

void ecritdms(double arcsec, shell::champ_texte& deg, shell::champ_texte& min, shell::champ_texte& sec) {
    const double d = std::floor(arcsec / 3600.0);
    deg.ecrit(d);
    min.ecrit(std::floor((arcsec - d * 3600.0) / 60.0));
    sec.ecrit(base::arrondi(arcsec - deg.nombre() * 3600.0 - min.nombre() * 60.0));
}

void affiche_equa() {
    double h = std::floor(adheures);
    double m = 0;
    if (h != 24) {
        m = (adheures - h) * 60;
    } else {
        h = 0;
        m = (adheures - 24.0) * 60.0;
    }
    frmaltazsuivi::Txtad_h.ecrit(h);
    frmaltazsuivi::txtad_min.ecrit(m);
    const double d = std::abs(decdeg);
    const base::entier16 g{std::floor(d), "decdeg"};
    const double e = (d - g.reel()) * 60.0;
    frmaltazsuivi::txtdec_deg.ecrit(g);
    frmaltazsuivi::txtdec_min.ecrit(e);
    frmaltazsuivi::txtsign.ecrit(decdeg > 0 ? "+" : "-");
    frmconfig::txtsign.ecrit(frmaltazsuivi::txtsign.lit());
    frmconfig::Txtad_h.ecrit(h);
    frmconfig::txtad_min.ecrit(m);
    frmconfig::txtdec_deg.ecrit(g);
    frmconfig::txtdec_min.ecrit(e);
}

void majaz() {
    posaz = ajoute_pas(posaz, angpasaz, cmd_moteur::compteaz);
    frmcoord::txtaztos.ecrit(posaz);
    affiche_azimut();
    cmd_moteur::compteaz = 0;
}

void majalt() {
    posalt = ajoute_pas(posalt, angpasalt, cmd_moteur::comptealt);
    frmcoord::txtalttos.ecrit(posalt);
    affiche_altitude();
    cmd_moteur::comptealt = 0;
}

void affichepos() {
    affiche_azimut();
    affiche_altitude();
}

} // namespace general
