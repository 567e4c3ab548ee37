#include "settings/frmconfig.h"

#include "base/nombre.h"
#include "catalogue/catalogue.h"
#include "drive/etat_moteur.h"
#include "drive/mode_raquette.h"
#include "drive/position.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "seam/plateforme.h"
#include "sky/affichage.h"
#include "sky/almanach.h"
#include "sky/conversion.h"
#include "store/champs_fichier.h"
#include "tracking/etat_suivi.h"

namespace frmconfig {

using base::entier16;
using base::entier32;
using base::texte_signe;

namespace {

constexpr int objets_messier = 1; // position in the list of catalogues

const char* const fichier = "config_altaz.ini";
// Azimuth comes first in the steps, altitude in the ratios: the order is the file's.
const std::array<champ_texte*, 8> champs = {&txtdegre, &txtmin,    &txtlatdeg, &txtlatmin,
                                            &txtpasaz, &txtpasalt, &txtRalt,   &txtRaz};

catalogue::table<catalogue::objets_panneau> objets;

// Arcseconds per step, from the motor steps per turn and the reduction ratio, rounded to a whole number with
// ties to the even one. A motor is driven in half steps: hence the last division by 2.
double angle_par_pas(champ_texte& pas, champ_texte& rapport) {
    const double n = pas.nombre();
    return base::divise(360, n * rapport.nombre32().reel(), "angle d'un pas") * 3600 / 2;
}

double angleaz() { return angle_par_pas(txtpasaz, txtRaz); }
double anglealt() { return angle_par_pas(txtpasalt, txtRalt); }

void calcule_pas() {
    general::angpasaz = base::fini(angleaz(), "angpasaz");
    general::angpasalt = base::fini(anglealt(), "angpasalt");
    txtapas.ecrit(general::angpasaz);
    txthpas.ecrit(general::angpasalt);
}

void charge() {
    fiche.largeur(7260);
    fiche.hauteur(5835);
    for (const auto& e : catalogue::entrees)
        lbCatalogue.ajoute(e.titre);
    lbCatalogue.position(objets_messier);
    reglages::lit(fichier, champs);
    calcule_pas();
}

void charge_catalogue() {
    lbObjets.vide();
    const auto& e = base::element(catalogue::entrees, lbCatalogue.position(), "lbCatalogue");
    lbObjets.ajoute(catalogue::charge(e.fichier, objets));
}

void enregistre() {
    reglages::ecrit(fichier, champs);
    calcule_pas();
}

// The starting position: due south, 30 degrees high. The minutes and seconds take no part.
void initialise() {
    frmcoord::txtcoordaz1.ecrit("180");
    frmcoord::txtcoordaz2.ecrit("0");
    frmcoord::txtcoordaz3.ecrit("0");
    frmcoord::txtcoordalt1.ecrit("30");
    frmcoord::txtcoordalt2.ecrit("0");
    frmcoord::txtcoordalt3.ecrit("0");
    general::posaz = base::fini(frmcoord::txtcoordaz1.nombre() * 3600, "posaz");
    general::posalt = base::fini(frmcoord::txtcoordalt1.nombre() * 3600, "posalt");
    cmd_moteur::azplus = txtazplus.nombre16();
    cmd_moteur::azmoins = txtazmoins.nombre16();
    cmd_moteur::altplus = txtaltplus.nombre16();
    cmd_moteur::altmoins = txtaltmoins.nombre16();
}

void realigne() {
    general::lit_almanach();
    general::calcul_altaz();
    general::affichepos();
}

// The declination as it is split may carry its sign on either part, or a blank in its place.
void choisit_declinaison(const catalogue::partie& dec) {
    const auto degres = texte_signe(dec.entiers);
    const auto minutes = texte_signe(dec.minutes);
    const bool negative = degres.front() == '-' || minutes.front() == '-';
    txtsign.ecrit(negative ? "-" : "+");
    txtdec_deg.ecrit(negative ? degres.substr(1) : degres);
    txtdec_min.ecrit(negative ? minutes.substr(1) : minutes);
}

void choisit_objet() {
    const int i = lbObjets.position();
    const auto ad = catalogue::partage(base::element(objets.ad, i, "lbObjets"));
    Txtad_h.ecrit(texte_signe(ad.entiers));
    txtad_min.ecrit(texte_signe(ad.minutes));
    choisit_declinaison(catalogue::partage(base::element(objets.dec, i, "lbObjets")));
    if (tracking::suiviouvert) {
        frmaltazsuivi::Txtad_h.ecrit(Txtad_h.nombre());
        frmaltazsuivi::txtad_min.ecrit(txtad_min.nombre());
        frmaltazsuivi::txtdec_deg.ecrit(txtdec_deg.nombre());
        frmaltazsuivi::txtdec_min.ecrit(txtdec_min.nombre());
        frmaltazsuivi::txtsign.ecrit(txtsign.lit());
    }
    tracking::objetchoisi = true;
}

} // namespace

void branche() {
    fiche.au_chargement(charge);
    fiche.remise_a_zero([] { objets = {}; });
    lbCatalogue.au_clic(charge_catalogue);
    cmdchoix.au_clic(choisit_objet);
    cmdinitcoord.au_clic(initialise);
    cmdreinit.au_clic(realigne);
    cmdvalid.au_clic(enregistre);
    cmdfermer.au_clic([] { fiche.cache(); });
    cmdbacklash.au_clic(reglages::mesure_jeu);
    cmdazencoding.au_clic([] {
        cmd_moteur::pasencodeaz = 0;
        reglages::prend_raquette();
    });
    cmdaltencoding.au_clic([] {
        cmd_moteur::pasencodealt = 0;
        reglages::prend_raquette();
    });
}

} // namespace frmconfig
