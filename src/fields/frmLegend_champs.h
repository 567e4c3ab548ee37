// What the chart's colours and signs mean, as designed: a button over a picture.
#pragma once

#include "store/controles.h"

namespace frmLegend {

using namespace shell;

inline constinit panneau fiche{"frmLegend", "Légende", 4260, 3240};

inline constinit champ_image signes{
    fiche, "signes", {0, 0, 4170, 2820}, {.image = "legende", .traits = fond}};
inline constinit champ_bouton bFin{fiche, "bFin", {2880, 2340, 1170, 390}, {.legende = "Command1"}};

inline std::vector<controle*> controles() { return liste(signes, bFin); }

} // namespace frmLegend
