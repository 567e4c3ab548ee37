// The pointing panel of the alt-azimuth mount, as designed.
#pragma once

#include "fields/pointage_champs.h"
#include "fields/selecteur_champs.h"

namespace frmaltazpointage {

using namespace shell;

inline constinit panneau fiche{"frmaltazpointage", "pointage", 7680, 6075};

inline constinit catalogue::champs_selecteur choix{fiche, {90, 90, 3600, 1560}, {90, 1740, 3600, 2940}, 4830};
inline constinit pointing::champs_pointage reglages{fiche, "Azimut", "Altitude"};

/// The target, and how far the telescope is from it.
inline constinit champ_cadre Frame3{fiche, "Frame3", {3780, 2010, 3660, 2070}};
inline constinit champ_etiquette lblcoordaz{
    fiche, "lblcoordaz", {120, 315, 870, 270}, {.legende = "Azimut", .cadre = &Frame3}};
inline constinit champ_texte txtcoordaz1{
    fiche, "txtcoordaz1", {1020, 270, 600, 345}, {.cadre = &Frame3, .traits = centre}};
inline constinit champ_etiquette lblazdeg{
    fiche, "lblazdeg", {1665, 315, 150, 270}, {.legende = "°", .cadre = &Frame3}};
inline constinit champ_texte txtcoordaz2{
    fiche, "txtcoordaz2", {1830, 270, 480, 345}, {.cadre = &Frame3, .traits = centre}};
inline constinit champ_etiquette lblazmin{
    fiche, "lblazmin", {2355, 315, 150, 270}, {.legende = "'", .cadre = &Frame3}};
inline constinit champ_texte txtcoordaz3{
    fiche, "txtcoordaz3", {2520, 270, 480, 345}, {.cadre = &Frame3, .traits = centre}};
inline constinit champ_etiquette lblazsec{
    fiche, "lblazsec", {3045, 315, 195, 270}, {.legende = "''", .cadre = &Frame3}};
inline constinit champ_etiquette lblcoordalt{
    fiche, "lblcoordalt", {120, 735, 870, 270}, {.legende = "Altitude", .cadre = &Frame3}};
inline constinit champ_texte txtcoordalt1{
    fiche, "txtcoordalt1", {1020, 690, 600, 345}, {.cadre = &Frame3, .traits = centre}};
inline constinit champ_etiquette lblaltdeg{
    fiche, "lblaltdeg", {1665, 735, 150, 270}, {.legende = "°", .cadre = &Frame3}};
inline constinit champ_texte txtcoordalt2{
    fiche, "txtcoordalt2", {1830, 690, 480, 345}, {.cadre = &Frame3, .traits = centre}};
inline constinit champ_etiquette lblaltmin{
    fiche, "lblaltmin", {2355, 735, 150, 270}, {.legende = "'", .cadre = &Frame3}};
inline constinit champ_texte txtcoordalt3{
    fiche, "txtcoordalt3", {2520, 690, 480, 345}, {.cadre = &Frame3, .traits = centre}};
inline constinit champ_etiquette lblaltsec{
    fiche, "lblaltsec", {3045, 735, 195, 270}, {.legende = "''", .cadre = &Frame3}};
inline constinit champ_etiquette lbldistaz{
    fiche, "lbldistaz", {120, 1140, 1260, 420}, {.legende = "écart azimut ('')", .cadre = &Frame3}};
inline constinit champ_texte txtdistaz{fiche, "txtdistaz", {1410, 1170, 2130, 345}, {.cadre = &Frame3}};
inline constinit champ_etiquette lbldistalt{
    fiche, "lbldistalt", {120, 1560, 1260, 420}, {.legende = "écart altitude ('')", .cadre = &Frame3}};
inline constinit champ_texte txtdistalt{fiche, "txtdistalt", {1410, 1590, 2130, 345}, {.cadre = &Frame3}};

inline constinit champ_bouton cmdpointage_graph{
    fiche, "cmdpointage_graph", {3780, 4290, 3660, 450}, {.legende = "Pointage"}};

inline std::vector<controle*> controles() {
    return liste(choix, reglages, Frame3, lblcoordaz, txtcoordaz1, lblazdeg, txtcoordaz2, lblazmin,
                 txtcoordaz3, lblazsec, lblcoordalt, txtcoordalt1, lblaltdeg, txtcoordalt2, lblaltmin,
                 txtcoordalt3, lblaltsec, lbldistaz, txtdistaz, lbldistalt, txtdistalt, cmdpointage_graph,
                 reglages.cmdsave, reglages.Cmdquit);
}

} // namespace frmaltazpointage
