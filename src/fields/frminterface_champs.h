// The main frame, as designed: its toolbars, its menu, its two system timers.
#pragma once

#include "store/controles.h"

namespace frminterface {

using namespace shell;

inline constinit panneau fiche{
    "frminterface",
    "Velmoria : Pilotage de télescopes",
    15000,
    12000, // the tallest panel, the chart, finds room under the bars
    {.boite_de_fermeture = fermeture::termine, .taille_fixe = false, .principal = true}};

// A toolbar button's value is the index of its icon in the image list.
inline constinit champ_barre_outils bargeneral{fiche, "bargeneral", {.visible = false}};
inline constinit tableau<champ_outil, 7> bargeneral_boutons{
    fiche,
    "bargeneral",
    {{.legende = "pilotage informatique", .cadre = &bargeneral, .icone = 9},
     {.legende = "pilotage manuel", .cadre = &bargeneral, .icone = 1},
     {.legende = "mode équatorial", .cadre = &bargeneral, .icone = 19},
     {.legende = "mode altazimutal", .cadre = &bargeneral, .icone = 18},
     {.legende = "observations", .cadre = &bargeneral, .icone = 10},
     {.legende = "aide", .cadre = &bargeneral, .icone = 12},
     {.legende = "à propos de ...", .cadre = &bargeneral, .icone = 11}},
    1};

inline constinit champ_barre_outils barequa{fiche, "barequa", {.visible = false}};
inline constinit tableau<champ_outil, 5> barequa_boutons{
    fiche,
    "barequa",
    {{.legende = "Mode informatique", .cadre = &barequa, .icone = 9},
     {.legende = "Mode manuel", .cadre = &barequa, .icone = 1},
     {.legende = "Pilotage", .cadre = &barequa, .icone = 14},
     {.legende = "Pointage automatique", .cadre = &barequa, .icone = 15},
     {.legende = "Paramètres", .cadre = &barequa, .icone = 7}},
    1};

inline constinit champ_barre_outils baraltaz{fiche, "baraltaz", {.visible = false}};
inline constinit tableau<champ_outil, 7> baraltaz_boutons{
    fiche,
    "baraltaz",
    {{.legende = "Mode informatique", .cadre = &baraltaz, .icone = 9},
     {.legende = "Mode manuel", .cadre = &baraltaz, .icone = 1},
     {.legende = "Pilotage", .cadre = &baraltaz, .icone = 14},
     {.legende = "Pointage automatique", .cadre = &baraltaz, .icone = 15},
     {.legende = "Suivi sidéral", .cadre = &baraltaz, .icone = 16},
     {.legende = "Initialisations", .cadre = &baraltaz, .icone = 7},
     {.legende = "Coordonnées", .cadre = &baraltaz, .icone = 2}},
    1};

inline constinit champ_barre_outils barchoix{fiche, "barchoix", {}};
inline constinit tableau<champ_outil, 2> barchoix_boutons{
    fiche,
    "barchoix",
    {{.legende = "Mode équatorial", .cadre = &barchoix, .icone = 19},
     {.legende = "Mode altazimutal", .cadre = &barchoix, .icone = 18}},
    1};

inline constinit champ_barre_etat StatusBar{fiche, "StatusBar", {}};

inline constinit minuteur Timer{fiche, "Timer", {.intervalle = 100}};
inline constinit minuteur heuretimer{fiche, "heuretimer", {.intervalle = 100}};

inline constinit entree Quitter{fiche, "Quitter", {.legende = "Quitter"}};
inline constinit entree mnutelescope{fiche, "mnutelescope", {.legende = "Télescope"}};
inline constinit entree Equatorial{fiche, "Equatorial", {.legende = "Equatorial", .cadre = &mnutelescope}};
inline constinit entree mnupilotageequa{
    fiche, "mnupilotageequa", {.legende = "Pilotage", .cadre = &Equatorial}};
inline constinit entree mnupointequa{
    fiche, "mnupointequa", {.legende = "Pointage automatique", .cadre = &Equatorial}};
inline constinit entree mnuparaequa{fiche, "mnuparaequa", {.legende = "Paramètres", .cadre = &Equatorial}};
inline constinit entree altazimutal{fiche, "altazimutal", {.legende = "Altazimutal", .cadre = &mnutelescope}};
inline constinit entree mnupilotagealtaz{
    fiche, "mnupilotagealtaz", {.legende = "Pilotage", .cadre = &altazimutal}};
inline constinit entree mnupointaltaz{
    fiche, "mnupointaltaz", {.legende = "Pointage automatique", .cadre = &altazimutal}};
inline constinit entree mnusuivi{fiche, "mnusuivi", {.legende = "Suivi sidéral", .cadre = &altazimutal}};
inline constinit entree mnuparaaltaz{fiche, "mnuparaaltaz", {.legende = "Paramètres", .cadre = &altazimutal}};
inline constinit entree Observations{fiche, "Observations", {.legende = "Observations"}};
inline constinit entree Aide{fiche, "Aide", {.legende = "Aide"}};
inline constinit entree propos{fiche, "propos", {.legende = "A propos de "}};

inline std::vector<controle*> controles() {
    return liste(bargeneral, bargeneral_boutons, barequa, barequa_boutons, baraltaz, baraltaz_boutons,
                 barchoix, barchoix_boutons, StatusBar, Timer, heuretimer, Quitter, mnutelescope, Equatorial,
                 mnupilotageequa, mnupointequa, mnuparaequa, altazimutal, mnupilotagealtaz, mnupointaltaz,
                 mnusuivi, mnuparaaltaz, Observations, Aide, propos);
}

} // namespace frminterface
