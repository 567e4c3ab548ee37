// The about window, as designed. The address is filled in at its load.
#pragma once

#include "store/controles.h"

namespace frmcopyright {

using namespace shell;

inline constinit panneau fiche{"frmcopyright", "A propos de ...", 4000, 5640};

// The background is drawn to fill the window; the texts stand on its pale lower part.
inline constinit champ_image Image2{
    fiche, "Image2", {0, 0, 3850, 5160}, {.image = "fenetres/fond", .traits = fond}};
inline constinit champ_image Image1{fiche, "Image1", {2595, 195, 1050, 1050}, {.image = "fenetres/lune"}};
inline constinit champ_image Image3{fiche, "Image3", {150, 1860, 720, 720}, {.image = "velmoria-64"}};
inline constinit champ_etiquette Label2{
    fiche, "Label2", {1020, 1905, 2680, 315}, {.legende = "Velmoria", .traits = gras}};
inline constinit champ_etiquette Label4{fiche, "Label4", {1020, 2235, 2680, 270}, {.legende = "Version 2.0"}};
inline constinit champ_etiquette Label3{
    fiche, "Label3", {150, 2700, 3550, 540}, {.legende = "Les auteurs de Velmoria, licence MIT"}};
inline constinit champ_etiquette Label1{fiche, "Label1", {150, 3240, 3550, 1260}, {.traits = copiable}};
inline constinit champ_bouton cmdok1{fiche, "cmdok1", {1265, 4620, 1320, 420}, {.legende = "OK"}};

inline std::vector<controle*> controles() {
    return liste(Image2, Image1, Image3, Label2, Label4, Label3, Label1, cmdok1);
}

} // namespace frmcopyright
