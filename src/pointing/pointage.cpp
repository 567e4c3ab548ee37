#include "pointing/pointage.h"

#include "base/nombre.h"
#include "base/valeurs.h"
#include "seam/plateforme.h"
#include "slewing/etat_pointage.h"

#include <cmath>

namespace pointing {

using base::entier16;
using base::entier32;
using base::texte_signe;

void charge_reglages(champs_pointage& c, const std::string& fichier) {
    for (auto* liste : {&c.cbpointaz, &c.cbpointalt})
        liste->ajoute({"1", "2", "3", "4", "5"});
    valeurs::lecteur f{plateforme::fichier_donnees(fichier)};
    const double az = f.nombre();
    const double alt = f.nombre();
    c.cbpointaz.position({az - 1, fichier}, fichier);
    c.cbpointalt.position({alt - 1, fichier}, fichier);
}

void enregistre_vitesses(champs_pointage& c, const std::string& fichier) {
    valeurs::ecrivain f;
    f.nombre(entier32{c.cbpointaz.position() + 1});
    f.nombre(entier32{c.cbpointalt.position() + 1});
    f.enregistre(plateforme::fichier_donnees(fichier));
}

double entiers(shell::champ_texte& champ) { return std::floor(champ.nombre()); }

void affiche_ad(catalogue::champs_selecteur& c, double heures, double minutes) {
    c.tADpos.legende(texte_signe(heures) + "h" + texte_signe(minutes) + "'");
}

entier16 entre_declinaison(catalogue::champs_selecteur& c) {
    const entier16 degres{entiers(c.tDec(0)), c.tDec(0).lieu()};
    const entier16 minutes{entiers(c.tDec(1)), c.tDec(1).lieu()};
    const entier16 en_minutes{degres * 60, c.tDec(0).lieu()};
    cibledec = {en_minutes * 10 + minutes * 10, c.tDec(0).lieu()};
    c.tdcpos.legende(texte_signe(degres.reel()) + "°" + texte_signe(minutes.reel()) + "'");
    return degres;
}

} // namespace pointing
