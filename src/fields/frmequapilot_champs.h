// The pilot panel of the equatorial mount, as designed, with the group of its sidereal drive.
#pragma once

#include "fields/pilote_champs.h"

namespace frmequapilot {

using namespace shell;

inline constexpr int largeur_fermee = 6000;
inline constexpr int largeur_ouverte = 10680;

inline constinit panneau fiche{"frmequapilot", "Pilotage", largeur_fermee, 4800};

inline constinit piloting::champs_deplacement deplacement{fiche, 2550, 390, 660};

inline constinit champ_cadre Frame2{
    fiche, "Frame2", {2640, 60, 3135, 2550}, {.legende = "Réglage des vitesses"}};
inline constinit champ_etiquette Label5{
    fiche, "Label5", {120, 420, 600, 375}, {.legende = "A.D", .cadre = &Frame2}};
inline constinit piloting::champs_classe ascension{
    fiche,
    Frame2,
    piloting::premier_axe,
    {{690, 420, 1740, 390}, {2520, 420, 480, 375}, {720, 885, 2280, 375}}};
inline constinit champ_etiquette Label6{
    fiche, "Label6", {120, 1500, 600, 375}, {.legende = "Déc.", .cadre = &Frame2}};
inline constinit piloting::champs_classe declinaison{
    fiche,
    Frame2,
    piloting::second_axe,
    {{690, 1500, 1740, 390}, {2520, 1500, 480, 375}, {720, 1965, 2280, 375}}};

inline constinit champ_cadre Frame1{fiche, "Frame1", {90, 2670, 5685, 1110}, {.legende = "Suivi sidéral"}};
inline constinit champ_bouton cmdgo{
    fiche, "cmdgo", {120, 375, 720, 630}, {.cadre = &Frame1, .image = "marche"}};
inline constinit champ_bouton cmdstopgo{
    fiche, "cmdstopgo", {900, 375, 720, 630}, {.legende = "Stop", .cadre = &Frame1, .traits = arret}};
inline constinit champ_etiquette Label4{
    fiche, "Label4", {1740, 330, 1500, 270}, {.legende = "Suivi sidéral", .cadre = &Frame1}};
inline constinit champ_texte txtpas{fiche, "txtpas", {1740, 630, 2130, 375}, {.cadre = &Frame1}};
inline constinit champ_texte txtpas1{fiche, "txtpas1", {3915, 630, 510, 375}, {.cadre = &Frame1}};
inline constinit champ_texte txtessai{fiche, "txtessai", {4470, 630, 600, 375}, {.cadre = &Frame1}};
inline constinit champ_texte txts{fiche, "txts", {5115, 630, 450, 375}, {.cadre = &Frame1}};
inline constinit minuteur timersuivi{fiche, "timersuivi", {.intervalle = 100}};

inline constinit piloting::champs_pied pied{fiche,
                                            3840,
                                            420,
                                            5175,
                                            5970,
                                            {"Vitesses A.D", "tAD", piloting::barres_1_a_5},
                                            {"Vitesses Déc.", "tDc", piloting::barres_6_a_10}};

inline std::vector<controle*> controles() {
    return liste(deplacement, Frame2, Label5, ascension, Label6, declinaison, Frame1, cmdgo, cmdstopgo,
                 Label4, txtpas, txtpas1, txtessai, txts, timersuivi, pied);
}

} // namespace frmequapilot
