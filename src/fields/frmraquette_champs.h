// The panel of the hand paddle, as designed. Its inversion boxes are what the paddle itself reads.
#pragma once

#include "fields/fleches.h"
#include "store/controles.h"

namespace frmraquette {

using namespace shell;

inline constexpr int largeur_fermee = 5265;
inline constexpr int largeur_ouverte = 7530;
inline constexpr int hauteur = 4845;

inline constinit panneau fiche{"frmraquette", "Raquette", largeur_fermee, hauteur};

// The paddle: its body and its plate, the four keys, the speed switch of each axis.
inline constinit champ_image Shape1{fiche, "Shape1", {90, 60, 1260, 3030}, {.image = "raquette/corps"}};
inline constinit champ_image Shape2{fiche, "Shape2", {165, 675, 1110, 2220}, {.image = "raquette/plaque"}};
inline constinit champ_image Image1{fiche, "Image1", {540, 750, 360, 360}, {.image = "raquette/haut"}};
inline constinit champ_image Image2{fiche, "Image2", {240, 1110, 360, 360}, {.image = "raquette/gauche"}};
inline constinit champ_image Image3{fiche, "Image3", {840, 1110, 360, 360}, {.image = "raquette/droite"}};
inline constinit champ_image Image4{fiche, "Image4", {540, 1470, 360, 360}, {.image = "raquette/bas"}};
inline constinit champ_image Image5{
    fiche, "Image5", {255, 1965, 420, 840}, {.image = "raquette/commutateur"}};
inline constinit champ_image Image6{
    fiche, "Image6", {765, 1965, 420, 840}, {.image = "raquette/commutateur"}};

inline constexpr dessin vitesse_raquette{.max = 32767, .petit = 10, .grand = 100};

inline constinit champ_etiquette Label1{fiche, "Label1", {1440, 60, 3585, 270}, {.legende = "A.D \\ Azimut"}};
inline constinit champ_etiquette lblazl{fiche, "lblazl", {1440, 420, 870, 270}, {.legende = "Lente"}};
inline constinit champ_etiquette lblazm{fiche, "lblazm", {1440, 825, 870, 270}, {.legende = "Moyenne"}};
inline constinit champ_etiquette lblazr{fiche, "lblazr", {1440, 1230, 870, 270}, {.legende = "Rapide"}};
inline constinit champ_barre HScrollazl{fiche, "HScrollazl", {2340, 405, 1680, 300}, vitesse_raquette};
inline constinit champ_barre HScrollazm{fiche, "HScrollazm", {2340, 810, 1680, 300}, vitesse_raquette};
inline constinit champ_barre HScrollazr{fiche, "HScrollazr", {2340, 1215, 1680, 300}, vitesse_raquette};
inline constinit tableau<champ_texte, 3> txtaz{
    fiche, "txtaz", {{4065, 375, 960, 345}, {4065, 780, 960, 345}, {4065, 1185, 960, 345}}};

inline constinit champ_etiquette Label3{
    fiche, "Label3", {1440, 1605, 3585, 270}, {.legende = "Déc. \\ Altitude"}};
inline constinit champ_etiquette lblaltl{fiche, "lblaltl", {1440, 1965, 870, 270}, {.legende = "Lente"}};
inline constinit champ_etiquette lblaltm{fiche, "lblaltm", {1440, 2370, 870, 270}, {.legende = "Moyenne"}};
inline constinit champ_etiquette lblaltr{fiche, "lblaltr", {1440, 2775, 870, 270}, {.legende = "Rapide"}};
inline constinit champ_barre HScrollaltl{fiche, "HScrollaltl", {2340, 1950, 1680, 300}, vitesse_raquette};
inline constinit champ_barre HScrollaltm{fiche, "HScrollaltm", {2340, 2355, 1680, 300}, vitesse_raquette};
inline constinit champ_barre HScrollaltr{fiche, "HScrollaltr", {2340, 2760, 1680, 300}, vitesse_raquette};
inline constinit tableau<champ_texte, 3> txtalt{
    fiche, "txtalt", {{4065, 1920, 960, 345}, {4065, 2325, 960, 345}, {4065, 2730, 960, 345}}};

inline constinit champ_cadre Frame2{
    fiche, "Frame2", {90, 3150, 4935, 690}, {.legende = "Inversion des commandes"}};
inline constinit champ_coche chkaz{
    fiche, "chkaz", {120, 285, 2010, 330}, {.legende = "A.D. \\ Azimut", .cadre = &Frame2}};
inline constinit champ_coche chkalt{
    fiche, "chkalt", {2190, 285, 2640, 330}, {.legende = "Déclinaison \\ Altitude", .cadre = &Frame2}};

inline constinit champ_bouton Cmdquit{fiche, "Cmdquit", {90, 3915, 1110, 420}, {.legende = "Quitter"}};
inline constinit champ_bouton cmdvalid{fiche, "cmdvalid", {1260, 3915, 1320, 420}, {.legende = "Sauvegarde"}};
inline constinit champ_etiquette Label2{
    fiche, "Label2", {2715, 3990, 1680, 270}, {.legende = "Réglage backlash"}};
inline constinit champ_etiquette lblbacklash{
    fiche, "lblbacklash", {4425, 3915, 600, 420}, {.legende = fleches::ouvre, .traits = symbole | centre}};

// The backlash section, behind the right edge of the closed panel.
inline constinit champ_etiquette Label4{fiche, "Label4", {5265, 60, 2025, 270}, {.legende = "A.D \\ Azimut"}};
inline constinit champ_bouton cmdjeuaz_deb{
    fiche, "cmdjeuaz_deb", {5265, 390, 975, 420}, {.legende = "Début"}};
inline constinit champ_bouton cmdjeuaz_fin{fiche, "cmdjeuaz_fin", {6315, 390, 975, 420}, {.legende = "Fin"}};
inline constinit champ_texte txtbacklash_az{fiche, "txtbacklash_az", {5265, 870, 2025, 345}};
inline constinit champ_etiquette Label5{
    fiche, "Label5", {5265, 1605, 2025, 270}, {.legende = "Déc. \\ Altitude"}};
inline constinit champ_bouton cmdjeualt_deb{
    fiche, "cmdjeualt_deb", {5265, 1935, 975, 420}, {.legende = "Début"}};
inline constinit champ_bouton cmdjeualt_fin{
    fiche, "cmdjeualt_fin", {6315, 1935, 975, 420}, {.legende = "Fin"}};
inline constinit champ_texte txtbacklash_alt{fiche, "txtbacklash_alt", {5265, 2415, 2025, 345}};
inline constinit champ_texte txtinp{fiche, "txtinp", {5265, 3435, 2025, 345}};

inline std::vector<controle*> controles() {
    return liste(Shape1, Shape2, Image1, Image2, Image3, Image4, Image5, Image6, Label1, lblazl, HScrollazl,
                 lblazm, HScrollazm, lblazr, HScrollazr, txtaz, Label3, lblaltl, HScrollaltl, lblaltm,
                 HScrollaltm, lblaltr, HScrollaltr, txtalt, Frame2, chkaz, chkalt, Cmdquit, cmdvalid, Label2,
                 lblbacklash, Label4, cmdjeuaz_deb, cmdjeuaz_fin, txtbacklash_az, Label5, cmdjeualt_deb,
                 cmdjeualt_fin, txtbacklash_alt, txtinp);
}

} // namespace frmraquette
