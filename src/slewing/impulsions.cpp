#include "slewing/impulsions.h"

#include "drive/cmd_moteur.h"
#include "slewing/etat_pointage.h"

#include <cmath>

namespace pointing {

using cmd_moteur::attentepointage;
using cmd_moteur::demi_pas;
using cmd_moteur::tempopas;

void envoie(double nombre, const base::entier16& sens, const base::entier16& pas,
            shell::champ_progression& barre, double& envoyees) {
    // A count of its own: a slew from a yield has the same place to tell.
    double i = 0;
    envoyees = i;
    while (!stoppointage && i <= nombre) {
        demi_pas(sens, attentepointage, tempopas);
        demi_pas({sens + pas, "bitsens"}, attentepointage, tempopas);
        if (i != 0 && nombre != 0)
            barre.valeur(std::floor(i * 100 / nombre));
        i = i + 1;
        envoyees = i;
    }
}

} // namespace pointing
