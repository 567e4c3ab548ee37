// What the two pilot panels share: the mount is moved from direction buttons, with a speed class for each
// axis and a section that tunes the delay count of each class.
#pragma once

#include "drive/etat_moteur.h"
#include "fields/pilote_champs.h"
#include "store/controles.h"

#include <array>
#include <functional>
#include <span>

namespace piloting {

/// A panel shows delay counts divided by this.
inline constexpr int comptes_par_unite = 50;

/// One pilot panel: its controls and what differs from the other.
struct pilote {
    shell::panneau& fiche;
    champs_deplacement& deplacement;
    champs_classe& azimut;
    champs_classe& altitude;
    champs_pied& pied;
    int largeur_fermee; ///< twips
    int largeur_ouverte;
    void (*jog_az)();
    void (*jog_alt)();
    const char* jauge_az_0;                      ///< bar of the first axis at class 0
    std::array<cmd_moteur::entier32, 10>& table; ///< delay counts, in the order of the section's classes
    const char* fichier;
};

/// Opens or closes the part of a panel past its narrow width; the label shows the arrow of the next click.
void bascule_section(shell::champ_etiquette& fleche, shell::panneau& fiche, int fermee, int ouverte);

/// Saves a table of delay counts from its fields, times `facteur`: a field that reads as 0 keeps the count
/// that stands in the table. Fatal: a count beyond 32 bits.
void enregistre_comptes(const char* fichier, std::span<cmd_moteur::entier32> table,
                        const std::function<shell::champ_texte&(std::size_t)>& champ, double facteur);

/// Wires a pilot panel's events. The description must live as long as the program.
void branche(const pilote& p);

} // namespace piloting
