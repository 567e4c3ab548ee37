#include "sky/almanach.h"

#include "base/nombre.h"
#include "base/valeurs.h"
#include "fields/frmcoord_champs.h"
#include "seam/plateforme.h"
#include "store/vue.h"

namespace general {

using base::entier16;
using base::entier32;

namespace {

// Folder names, without the accents of the month list.
constexpr std::array<const char*, 12> dossiers = {"janvier",   "fevrier", "mars",     "avril",
                                                  "mai",       "juin",    "juillet",  "aout",
                                                  "septembre", "octobre", "novembre", "decembre"};

// The folder of a month in its year's.
std::string dossier_du_mois(int mois) {
    return mois >= 1 && mois <= 12 ? std::string{"/"} + dossiers[static_cast<std::size_t>(mois - 1)] : "";
}

void lit_mois(const std::string& nom) {
    valeurs::lecteur f{plateforme::fichier_donnees(nom), valeurs::separateurs::virgule_ou_blanc};
    for (indicejour = 1; !f.fini(); indicejour = {indicejour + 1, nom})
        for (auto* colonne : {&jouralm, &heurealm, &minutealm, &secondealm})
            base::element(*colonne, indicejour.valeur(), nom) = f.nombre16();
}

} // namespace

void lit_almanach() {
    const auto jour = static_cast<std::size_t>(frmcoord::cbjour.position()) + 1; // 0 where none is chosen
    const int mois = frmcoord::cbmois.position() + 1;
    const int annee = frmcoord::cbannee.position() + 2000;
    const auto de_l_annee = "date/" + std::to_string(annee);
    const bool connue = annee == 2000 || annee == 2001;
    if (connue)
        chemindate = de_l_annee;
    else
        shell::vue_courante->message("choix de l'année non valide");
    chemindate += dossier_du_mois(mois);
    const auto fichier = chemindate + "/sg0.txt";
    // The folder is then that of no year, or of one read before; the observer misses a file of this one.
    if (!connue && !std::filesystem::exists(plateforme::fichier_donnees(fichier)))
        base::fatale(base::cause::fichier_introuvable,
                     plateforme::fichier_donnees(de_l_annee + dossier_du_mois(mois) + "/sg0.txt").string());
    lit_mois(fichier);
    // The minutes are multiplied in 16 bits.
    const entier16 secondes{minutealm[jour] * 60, fichier};
    tsg0 = {heurealm[jour] * 3600 + secondes + secondealm[jour], fichier};
    frmcoord::txtessai.ecrit(tsg0);
}

} // namespace general
