#include "slewing/impulsions.h"

#include "drive/cmd_moteur.h"
#include "seam/plateforme.h"
#include "slewing/etat_pointage.h"

#include <cmath>

namespace pointing {

namespace {

void demi_pas(base::entier16 valeur) {
    plateforme::Out32(plateforme::registre_donnees, valeur);
    cmd_moteur::attentepointage(cmd_moteur::tempopas);
    plateforme::cede();
}

} // namespace

void envoie(double nombre, const base::entier16& sens, const base::entier16& pas,
            shell::champ_progression& barre, double& envoyees) {
    // A count of its own: a slew from a yield has the same place to tell.
    double i = 0;
    envoyees = i;
    while (!stoppointage && i <= nombre) {
        demi_pas(sens);
        demi_pas(sens + pas);
        if (i != 0 && nombre != 0)
            barre.valeur(std::floor(i * 100 / nombre));
        i = i + 1;
        envoyees = i;
    }
}

} // namespace pointing
