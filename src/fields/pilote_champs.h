// What the two pilot panels have alike, each in its own places: the direction buttons around the stop, the
// speed of each axis, and the section that tunes the delay counts.
#pragma once

#include "fields/fleches.h"
#include "fields/reglage_champs.h"
#include "store/controles.h"

namespace piloting {

struct champs_deplacement {
    shell::champ_cadre Frdeplacement;
    shell::champ_bouton cmdhh; ///< up
    shell::champ_bouton cmdag;
    shell::champ_bouton cmddstop;
    shell::champ_bouton cmdad;
    shell::champ_bouton cmdhb;

    /// In twips: the frame's height, the top of its first row, a button's height.
    constexpr champs_deplacement(shell::panneau& p, int cadre, int y, int h)
        : Frdeplacement{p, "Frdeplacement", {90, 60, 2490, cadre}, {.legende = "Déplacement"}},
          cmdhh{p, "cmdhh", {885, y, 720, h}, {.cadre = &Frdeplacement, .image = "fleche_haut"}},
          cmdag{p, "cmdag", {135, y + h + 30, 720, h}, {.cadre = &Frdeplacement, .image = "fleche_gauche"}},
          cmddstop{p,
                   "cmddstop",
                   {885, y + h + 30, 720, h},
                   {.cadre = &Frdeplacement, .image = "stop", .traits = shell::arret | shell::echap}},
          cmdad{p, "cmdad", {1635, y + h + 30, 720, h}, {.cadre = &Frdeplacement, .image = "fleche_droite"}},
          cmdhb{
              p, "cmdhb", {885, y + 2 * (h + 30), 720, h}, {.cadre = &Frdeplacement, .image = "fleche_bas"}} {
    }

    std::vector<shell::controle*> controles() {
        return shell::liste(Frdeplacement, cmdhh, cmdag, cmddstop, cmdad, cmdhb);
    }
};

/// The speed class of one axis: a slider, its number, a bar of letters.
struct champs_classe {
    shell::champ_curseur curseur;
    shell::champ_texte numero;
    shell::champ_texte jauge;

    struct noms {
        const char* curseur;
        const char* numero;
        const char* jauge;
    };
    struct places {
        shell::boite curseur;
        shell::boite numero;
        shell::boite jauge;
    };
    constexpr champs_classe(shell::panneau& p, shell::champ_cadre& cadre, const noms& n, const places& ou)
        : curseur{p, n.curseur, ou.curseur, {.cadre = &cadre, .max = 4, .valeur = 3}},
          numero{p, n.numero, ou.numero, {.legende = "4", .cadre = &cadre, .traits = shell::centre}},
          jauge{p, n.jauge, ou.jauge, {.legende = "IIIIIIIIII", .cadre = &cadre}} {}

    std::vector<shell::controle*> controles() { return shell::liste(curseur, numero, jauge); }
};
inline constexpr champs_classe::noms premier_axe{"slaz", "txtnumaz", "txtv_az"};
inline constexpr champs_classe::noms second_axe{"slalt", "txtnumalt", "txtv_alt"};

/// The panel's foot and, past the closed panel's edge, the tuning section with its button.
struct champs_pied {
    shell::champ_bouton Cmdquit;
    shell::champ_etiquette lblvit;
    champs_reglage reglage;
    shell::champ_bouton cmdvalid;

    /// In twips: top and height of the foot, the arrow's place, the section's left edge.
    constexpr champs_pied(shell::panneau& p, int y, int h, int fleche, int gauche,
                          const champs_reglage::axe& premier, const champs_reglage::axe& second)
        : Cmdquit{p, "Cmdquit", {90, y, 1500, h}, {.legende = "Quitter"}}, lblvit{p,
                                                                                  "lblvit",
                                                                                  {fleche, y, 600, h},
                                                                                  {.legende = fleches::ouvre,
                                                                                   .traits = shell::symbole |
                                                                                             shell::centre}},
          reglage{p, gauche, premier, second}, cmdvalid{p,
                                                        "cmdvalid",
                                                        {gauche + 3300, y, 1200, h},
                                                        {.legende = "Ok"}} {}

    std::vector<shell::controle*> controles() { return shell::liste(Cmdquit, lblvit, reglage, cmdvalid); }
};

} // namespace piloting
