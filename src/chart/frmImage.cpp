#include "chart/frmImage.h"

#include "catalogue/catalogue.h"
#include "fields/frmImage_champs.h"
#include "seam/plateforme.h"
#include "store/vue.h"

namespace frmImage {

using base::entier16;
using base::entier32;

namespace {

constexpr double centiemes_par_pouce = 2540; // of a millimetre
constexpr double twips_par_pouce = 1440;

} // namespace

void branche() {
    // Unloading brings the picture's field back to its small size.
    bFin.au_clic([] { fiche.decharge(); });
}

void montre(const std::string& nom) {
    constexpr int marge_image = 10;
    constexpr int marge_hauteur = 500;
    constexpr int marge_largeur = 200;
    constexpr int ecart_bouton = 100;
    const auto chemin = catalogue::photographie(nom);
    const auto photo = shell::vue_courante->charge_image(chemin);
    const auto mesure = [&](int pixels, double par_pouce) -> int {
        return entier32{pixels / photo.ppp * par_pouce, chemin.string()}.valeur();
    };
    const int large = mesure(photo.largeur, centiemes_par_pouce);
    if (large > entier16::maximum)
        base::fatale(base::cause::depassement, chemin.string() + ", largeur");
    oPicture.hauteur(mesure(photo.hauteur, centiemes_par_pouce) + marge_image);
    oPicture.largeur(large + marge_image);
    oPicture.image(photo);
    oPicture.hauteur(mesure(photo.hauteur, twips_par_pouce)); // its natural size
    oPicture.largeur(mesure(photo.largeur, twips_par_pouce));
    fiche.legende(nom);
    fiche.hauteur(oPicture.hauteur() + marge_hauteur);
    fiche.largeur(oPicture.largeur() + marge_largeur);
    bFin.deplace(fiche.largeur() + ecart_bouton, bFin.regarde().place.y); // past the edge
    fiche.montre();
}

} // namespace frmImage
