// The clock and position panel, as designed: universal time, date, sidereal time at 0 h, and the telescope's
// position. Its fields are the program's store of time and date.
#pragma once

#include "store/controles.h"

namespace frmcoord {

using namespace shell;

inline constinit panneau fiche{
    "frmcoord", "Coordonnées altazimutales", 5880, 2655, {.boite_de_fermeture = fermeture::aucune}};

inline constinit champ_cadre frheure{fiche, "frheure", {0, 0, 5775, 1140}};
inline constinit champ_etiquette lblheure{
    fiche, "lblheure", {120, 255, 870, 270}, {.legende = "Heure TU", .cadre = &frheure}};
inline constinit champ_texte txth{
    fiche, "txth", {1020, 210, 480, 345}, {.cadre = &frheure, .traits = centre}};
inline constinit champ_etiquette lblh{
    fiche, "lblh", {1545, 255, 180, 270}, {.legende = "h", .cadre = &frheure}};
inline constinit champ_texte txtmin{
    fiche, "txtmin", {1740, 210, 480, 345}, {.cadre = &frheure, .traits = centre}};
inline constinit champ_etiquette lblmin{
    fiche, "lblmin", {2265, 255, 375, 270}, {.legende = "min", .cadre = &frheure}};
inline constinit champ_texte txts{
    fiche, "txts", {2670, 210, 480, 345}, {.cadre = &frheure, .traits = centre}};
inline constinit champ_etiquette lbls{
    fiche, "lbls", {3195, 255, 180, 270}, {.legende = "s", .cadre = &frheure}};
inline constinit champ_texte txtms{
    fiche, "txtms", {3390, 210, 600, 345}, {.legende = "0", .cadre = &frheure, .traits = centre}};
inline constinit champ_etiquette lblms{
    fiche, "lblms", {4035, 255, 330, 270}, {.legende = "ms", .cadre = &frheure}};
inline constinit champ_option opthivers{
    fiche, "opthivers", {4680, 225, 945, 330}, {.legende = "hivers", .cadre = &frheure}};

inline constinit champ_etiquette lbldate{
    fiche, "lbldate", {120, 735, 870, 270}, {.legende = "Date", .cadre = &frheure}};
inline constinit champ_deroulante cbjour{fiche, "cbjour", {1020, 690, 690, 345}, {.cadre = &frheure}};
inline constinit champ_deroulante cbmois{fiche, "cbmois", {1740, 690, 1500, 345}, {.cadre = &frheure}};
// It has no "no selection": position -1, the year 1999, is as fatal as 10.
inline constinit champ_deroulante cbannee{
    fiche, "cbannee", {3270, 690, 570, 345}, {.cadre = &frheure, .traits = sans_vide}};
inline constinit champ_texte txtessai{
    fiche, "txtessai", {3870, 690, 720, 345}, {.cadre = &frheure, .traits = centre}};
inline constinit champ_option optété{
    fiche, "optété", {4680, 705, 945, 330}, {.legende = "été", .cadre = &frheure}};

inline constinit champ_etiquette lblaz{fiche, "lblaz", {120, 1305, 870, 270}, {.legende = "Azimut"}};
inline constinit champ_texte txtcoordaz1{fiche, "txtcoordaz1", {1020, 1260, 600, 345}, {.traits = centre}};
inline constinit champ_etiquette lblazdeg{fiche, "lblazdeg", {1665, 1305, 150, 270}, {.legende = "°"}};
inline constinit champ_texte txtcoordaz2{fiche, "txtcoordaz2", {1830, 1260, 480, 345}, {.traits = centre}};
inline constinit champ_etiquette lblazmin{fiche, "lblazmin", {2355, 1305, 150, 270}, {.legende = "'"}};
inline constinit champ_texte txtcoordaz3{fiche, "txtcoordaz3", {2520, 1260, 480, 345}, {.traits = centre}};
inline constinit champ_etiquette lblazsec{fiche, "lblazsec", {3045, 1305, 195, 270}, {.legende = "''"}};
inline constinit champ_texte txtaztos{fiche, "txtaztos", {3390, 1260, 2235, 345}};

inline constinit champ_etiquette lblalt{fiche, "lblalt", {120, 1740, 870, 270}, {.legende = "Altitude"}};
inline constinit champ_texte txtcoordalt1{fiche, "txtcoordalt1", {1020, 1695, 600, 345}, {.traits = centre}};
inline constinit champ_etiquette lblaltdeg{fiche, "lblaltdeg", {1665, 1740, 150, 270}, {.legende = "°"}};
inline constinit champ_texte txtcoordalt2{fiche, "txtcoordalt2", {1830, 1695, 480, 345}, {.traits = centre}};
inline constinit champ_etiquette lblaltmin{fiche, "lblaltmin", {2355, 1740, 150, 270}, {.legende = "'"}};
inline constinit champ_texte txtcoordalt3{fiche, "txtcoordalt3", {2520, 1695, 480, 345}, {.traits = centre}};
inline constinit champ_etiquette lblaltsec{fiche, "lblaltsec", {3045, 1740, 195, 270}, {.legende = "''"}};
inline constinit champ_texte txtalttos{fiche, "txtalttos", {3390, 1695, 2235, 345}};

inline std::vector<controle*> controles() {
    return liste(frheure, lblheure, txth, lblh, txtmin, lblmin, txts, lbls, txtms, lblms, lbldate, cbjour,
                 cbmois, cbannee, txtessai, opthivers, optété, lblaz, txtcoordaz1, lblazdeg, txtcoordaz2,
                 lblazmin, txtcoordaz3, lblazsec, txtaztos, lblalt, txtcoordalt1, lblaltdeg, txtcoordalt2,
                 lblaltmin, txtcoordalt3, lblaltsec, txtalttos);
}

} // namespace frmcoord
