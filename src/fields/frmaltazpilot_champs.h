// The pilot panel of the alt-azimuth mount, as designed.
#pragma once

#include "fields/pilote_champs.h"

namespace frmaltazpilot {

using namespace shell;

inline constexpr int largeur_fermee = 5500;
inline constexpr int largeur_ouverte = 10200;

inline constinit panneau fiche{"frmaltazpilot", "Pilotage", largeur_fermee, 4710};

inline constinit piloting::champs_deplacement deplacement{fiche, 3180, 630, 720};

inline constexpr piloting::champs_classe::places dans_le_cadre{
    {90, 420, 1860, 390}, {2040, 420, 480, 375}, {120, 975, 2400, 375}};
inline constinit champ_cadre Fraz{fiche, "Fraz", {2640, 60, 2640, 1530}, {.legende = "Azimut"}};
inline constinit piloting::champs_classe azimut{fiche, Fraz, piloting::premier_axe, dans_le_cadre};
inline constinit champ_cadre Fralt{fiche, "Fralt", {2640, 1710, 2640, 1530}, {.legende = "Altitude"}};
inline constinit piloting::champs_classe altitude{fiche, Fralt, piloting::second_axe, dans_le_cadre};

inline constinit piloting::champs_pied pied{fiche,
                                            3510,
                                            450,
                                            4680,
                                            5490,
                                            {"Vitesses Azimut", "tAZ", piloting::barres_1_a_5},
                                            {"Vitesses Altitude", "tAlt", piloting::barres_6_a_10}};

inline std::vector<controle*> controles() { return liste(deplacement, Fraz, azimut, Fralt, altitude, pied); }

} // namespace frmaltazpilot
