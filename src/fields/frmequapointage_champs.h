// The pointing panel of the equatorial mount, as designed.
#pragma once

#include "fields/pointage_champs.h"
#include "fields/selecteur_champs.h"

namespace frmequapointage {

using namespace shell;

inline constinit panneau fiche{"frmequapointage", "pointage", 7680, 6075};

// One star is always selected.
inline constinit champ_liste lbEtoiles{fiche, "lbEtoiles", {90, 90, 3600, 1350}, {.traits = sans_vide}};
inline constinit catalogue::champs_selecteur choix{
    fiche, {90, 1530, 3600, 1350}, {90, 2970, 3600, 1770}, 4890};
inline constinit pointing::champs_pointage reglages{fiche, "A.D", "Déclinaison"};

inline constinit champ_cadre Frame6{
    fiche, "Frame6", {3780, 2010, 3660, 720}, {.legende = "Inversion des axes"}};
inline constinit champ_coche chkpointad{
    fiche, "chkpointad", {120, 285, 1380, 330}, {.legende = "A.D. ", .cadre = &Frame6}};
inline constinit champ_coche chkpointdec{
    fiche, "chkpointdec", {1620, 285, 1920, 330}, {.legende = "Déclinaison ", .cadre = &Frame6}};

// Drawn buttons: the picture takes the mouse, its inner label lets it through. They
// keep the pictures' proportions; the label stands right of the drawing.
inline constinit champ_image Picinit{fiche, "Picinit", {4602, 2850, 2016, 612}};
inline constinit champ_etiquette lblinit{
    fiche,
    "lblinit",
    {510, 156, 1440, 300},
    {.legende = "Initialisation", .cadre = &Picinit, .traits = centre | traverse}};
inline constinit champ_image picpointage{fiche, "picpointage", {4602, 3570, 2016, 612}};
inline constinit champ_etiquette lblpointage{
    fiche,
    "lblpointage",
    {510, 156, 1440, 300},
    {.legende = "Pointage", .cadre = &picpointage, .traits = centre | traverse}};

inline std::vector<controle*> controles() {
    return liste(lbEtoiles, choix, reglages, Frame6, chkpointad, chkpointdec, Picinit, lblinit, picpointage,
                 lblpointage, reglages.cmdsave, reglages.Cmdquit);
}

} // namespace frmequapointage
