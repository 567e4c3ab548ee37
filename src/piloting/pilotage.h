// What the two pilot panels share: the mount is moved from direction buttons, with a speed class for each
// axis and a section that tunes the delay count of each class.
#pragma once

#include "drive/etat_moteur.h"
#include "fields/reglage_champs.h"
#include "store/controles.h"

#include <array>

namespace piloting {

/// A panel shows delay counts divided by this.
inline constexpr int comptes_par_unite = 50;

/// A direction button, its command and the loop it starts.
struct direction {
    shell::champ_bouton* bouton;
    int commande; ///< of `cmdsens`
    void (*jog)();
};

/// One pilot panel: its controls and what differs from the other.
struct pilote {
    shell::panneau& fiche;
    std::array<direction, 4> directions;
    shell::champ_bouton& arret;
    shell::champ_bouton& quitte;
    shell::champ_bouton& valide;
    shell::champ_etiquette& section; ///< "7" open, "8" closed
    int largeur_fermee;              ///< twips
    int largeur_ouverte;
    shell::champ_curseur& classe_az;
    shell::champ_curseur& classe_alt;
    shell::champ_texte& numero_az;
    shell::champ_texte& numero_alt;
    shell::champ_texte& jauge_az;
    shell::champ_texte& jauge_alt;
    const char* jauge_az_0; ///< bar of the first axis at class 0
    champs_reglage& reglage;
    std::array<cmd_moteur::entier32, 10>& table; ///< delay counts, in the order of the section's classes
    const char* fichier;
};

/// Wires a pilot panel's events. The description must live as long as the program.
void branche(const pilote& p);

} // namespace piloting
