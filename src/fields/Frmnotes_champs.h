// The observer's notebook, as designed.
#pragma once

#include "store/controles.h"

namespace Frmnotes {

using namespace shell;

inline constinit panneau fiche{"Frmnotes", "Notes d'observation", 7485, 6705};

inline constinit champ_image Image1{fiche, "Image1", {120, 75, 540, 540}, {.image = "fenetres/carnet"}};
inline constinit champ_etiquette Label9{
    fiche, "Label9", {780, 210, 6000, 270}, {.legende = "Notes d'observation", .traits = gras}};
inline constinit champ_texte txtnotes{fiche, "txtnotes", {120, 690, 7095, 4770}, {.traits = multiligne}};
inline constinit champ_image Picturesave{fiche, "Picturesave", {120, 5565, 540, 540}};
inline constinit champ_bouton effacer{fiche, "effacer", {3945, 5625, 1560, 420}, {.legende = "&Effacer"}};
inline constinit champ_bouton cmdnotesquit{
    fiche, "cmdnotesquit", {5655, 5625, 1560, 420}, {.legende = "&Quitter"}};

inline std::vector<controle*> controles() {
    return liste(Image1, Label9, txtnotes, Picturesave, effacer, cmdnotesquit);
}

} // namespace Frmnotes
