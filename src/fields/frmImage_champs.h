// The photograph of an object, as designed: the window takes the picture's size when one is shown.
#pragma once

#include "store/controles.h"

namespace frmImage {

using namespace shell;

inline constinit panneau fiche{"frmImage", "Image", 2400, 1500};

inline constinit champ_image oPicture{fiche, "oPicture", {60, 60, 100, 100}};
inline constinit champ_bouton bFin{fiche, "bFin", {1020, 540, 870, 420}, {.legende = "fin"}};

inline std::vector<controle*> controles() { return liste(oPicture, bFin); }

} // namespace frmImage
