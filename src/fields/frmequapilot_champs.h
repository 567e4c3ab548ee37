// The pilot panel of the equatorial mount, as designed, with the group of its sidereal drive.
#pragma once

#include "fields/reglage_champs.h"
#include "store/controles.h"

namespace frmequapilot {

using namespace shell;

inline constexpr int largeur_fermee = 6000;
inline constexpr int largeur_ouverte = 10680;

inline constinit panneau fiche{"frmequapilot", "Pilotage", largeur_fermee, 4800};

inline constinit champ_cadre Frdeplacement{
    fiche, "Frdeplacement", {90, 60, 2490, 2550}, {.legende = "Déplacement"}};
inline constinit champ_bouton cmdhh{
    fiche, "cmdhh", {885, 390, 720, 660}, {.cadre = &Frdeplacement, .image = "fleche_haut"}};
inline constinit champ_bouton cmdag{
    fiche, "cmdag", {135, 1080, 720, 660}, {.cadre = &Frdeplacement, .image = "fleche_gauche"}};
inline constinit champ_bouton cmddstop{fiche,
                                       "cmddstop",
                                       {885, 1080, 720, 660},
                                       {.cadre = &Frdeplacement, .image = "stop", .traits = arret | echap}};
inline constinit champ_bouton cmdad{
    fiche, "cmdad", {1635, 1080, 720, 660}, {.cadre = &Frdeplacement, .image = "fleche_droite"}};
inline constinit champ_bouton cmdhb{
    fiche, "cmdhb", {885, 1770, 720, 660}, {.cadre = &Frdeplacement, .image = "fleche_bas"}};

inline constinit champ_cadre Frame2{
    fiche, "Frame2", {2640, 60, 3135, 2550}, {.legende = "Réglage des vitesses"}};
inline constinit champ_etiquette Label5{
    fiche, "Label5", {120, 420, 600, 375}, {.legende = "A.D", .cadre = &Frame2}};
inline constinit champ_curseur slaz{
    fiche, "slaz", {690, 420, 1740, 390}, {.cadre = &Frame2, .max = 4, .valeur = 3}};
inline constinit champ_texte txtnumaz{
    fiche, "txtnumaz", {2520, 420, 480, 375}, {.legende = "4", .cadre = &Frame2, .traits = centre}};
inline constinit champ_texte txtv_az{
    fiche, "txtv_az", {720, 885, 2280, 375}, {.legende = "IIIIIIIIII", .cadre = &Frame2}};
inline constinit champ_etiquette Label6{
    fiche, "Label6", {120, 1500, 600, 375}, {.legende = "Déc.", .cadre = &Frame2}};
inline constinit champ_curseur slalt{
    fiche, "slalt", {690, 1500, 1740, 390}, {.cadre = &Frame2, .max = 4, .valeur = 3}};
inline constinit champ_texte txtnumalt{
    fiche, "txtnumalt", {2520, 1500, 480, 375}, {.legende = "4", .cadre = &Frame2, .traits = centre}};
inline constinit champ_texte txtv_alt{
    fiche, "txtv_alt", {720, 1965, 2280, 375}, {.legende = "IIIIIIIIII", .cadre = &Frame2}};

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

inline constinit champ_bouton Cmdquit{fiche, "Cmdquit", {90, 3840, 1500, 420}, {.legende = "Quitter"}};
inline constinit champ_etiquette lblvit{
    fiche, "lblvit", {5175, 3840, 600, 420}, {.legende = "8", .traits = symbole | centre}};

inline constinit piloting::champs_reglage reglage{fiche,
                                                  5970,
                                                  {"Vitesses A.D", "tAD", piloting::barres_1_a_5},
                                                  {"Vitesses Déc.", "tDc", piloting::barres_6_a_10}};
inline constinit champ_bouton cmdvalid{fiche, "cmdvalid", {9270, 3840, 1200, 420}, {.legende = "Ok"}};

inline std::vector<controle*> controles() {
    return liste(Frdeplacement, cmdhh, cmdag, cmddstop, cmdad, cmdhb, Frame2, Label5, slaz, txtnumaz, txtv_az,
                 Label6, slalt, txtnumalt, txtv_alt, Frame1, cmdgo, cmdstopgo, Label4, txtpas, txtpas1,
                 txtessai, txts, timersuivi, Cmdquit, lblvit, reglage, cmdvalid);
}

} // namespace frmequapilot
