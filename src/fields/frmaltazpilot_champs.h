// The pilot panel of the alt-azimuth mount, as designed.
#pragma once

#include "fields/reglage_champs.h"
#include "store/controles.h"

namespace frmaltazpilot {

using namespace shell;

inline constexpr int largeur_fermee = 5500;
inline constexpr int largeur_ouverte = 10200;

inline constinit panneau fiche{"frmaltazpilot", "Pilotage", largeur_fermee, 4710};

inline constinit champ_cadre Frdeplacement{
    fiche, "Frdeplacement", {90, 60, 2490, 3180}, {.legende = "Déplacement"}};
inline constinit champ_bouton cmdhh{
    fiche, "cmdhh", {885, 630, 720, 720}, {.cadre = &Frdeplacement, .image = "fleche_haut"}};
inline constinit champ_bouton cmdag{
    fiche, "cmdag", {135, 1380, 720, 720}, {.cadre = &Frdeplacement, .image = "fleche_gauche"}};
inline constinit champ_bouton cmddstop{fiche,
                                       "cmddstop",
                                       {885, 1380, 720, 720},
                                       {.cadre = &Frdeplacement, .image = "stop", .traits = arret | echap}};
inline constinit champ_bouton cmdad{
    fiche, "cmdad", {1635, 1380, 720, 720}, {.cadre = &Frdeplacement, .image = "fleche_droite"}};
inline constinit champ_bouton cmdhb{
    fiche, "cmdhb", {885, 2130, 720, 720}, {.cadre = &Frdeplacement, .image = "fleche_bas"}};

inline constinit champ_cadre Fraz{fiche, "Fraz", {2640, 60, 2640, 1530}, {.legende = "Azimut"}};
inline constinit champ_curseur slaz{
    fiche, "slaz", {90, 420, 1860, 390}, {.cadre = &Fraz, .max = 4, .valeur = 3}};
inline constinit champ_texte txtnumaz{
    fiche, "txtnumaz", {2040, 420, 480, 375}, {.legende = "4", .cadre = &Fraz, .traits = centre}};
inline constinit champ_texte txtv_az{
    fiche, "txtv_az", {120, 975, 2400, 375}, {.legende = "IIIIIIIIII", .cadre = &Fraz}};

inline constinit champ_cadre Fralt{fiche, "Fralt", {2640, 1710, 2640, 1530}, {.legende = "Altitude"}};
inline constinit champ_curseur slalt{
    fiche, "slalt", {90, 420, 1860, 390}, {.cadre = &Fralt, .max = 4, .valeur = 3}};
inline constinit champ_texte txtnumalt{
    fiche, "txtnumalt", {2040, 420, 480, 375}, {.legende = "4", .cadre = &Fralt, .traits = centre}};
inline constinit champ_texte txtv_alt{
    fiche, "txtv_alt", {120, 975, 2400, 375}, {.legende = "IIIIIIIIII", .cadre = &Fralt}};

inline constinit champ_bouton Cmdquit{fiche, "Cmdquit", {90, 3510, 1500, 450}, {.legende = "Quitter"}};
inline constinit champ_etiquette lblvit{
    fiche, "lblvit", {4680, 3510, 600, 450}, {.legende = "8", .traits = symbole | centre}};

inline constinit piloting::champs_reglage reglage{fiche,
                                                  5490,
                                                  {"Vitesses Azimut", "tAZ", piloting::barres_1_a_5},
                                                  {"Vitesses Altitude", "tAlt", piloting::barres_6_a_10}};
inline constinit champ_bouton cmdvalid{fiche, "cmdvalid", {8790, 3510, 1200, 450}, {.legende = "Ok"}};

inline std::vector<controle*> controles() {
    return liste(Frdeplacement, cmdhh, cmdag, cmddstop, cmdad, cmdhb, Fraz, slaz, txtnumaz, txtv_az, Fralt,
                 slalt, txtnumalt, txtv_alt, Cmdquit, lblvit, reglage, cmdvalid);
}

} // namespace frmaltazpilot
