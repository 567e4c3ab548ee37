// The help window, as designed. The address is filled in at its load.
#pragma once

#include "store/controles.h"

namespace frmaide {

using namespace shell;

inline constinit panneau fiche{"frmaide", "Aide", 6000, 3600, {.taille_fixe = false}};

inline constinit champ_image Image1{fiche, "Image1", {150, 150, 720, 720}, {.image = "fenetres/aide"}};
inline constinit champ_etiquette Label2{
    fiche,
    "Label2",
    {1020, 150, 4680, 780},
    {.legende = "Consultez les pages d'aides présentes sur le site Internet à l'adresse suivante :"}};
inline constinit champ_etiquette Label1{fiche, "Label1", {150, 1050, 5550, 1350}, {.traits = copiable}};
inline constinit champ_bouton cmdok1{fiche, "cmdok1", {2265, 2565, 1320, 420}, {.legende = "OK"}};

inline std::vector<controle*> controles() { return liste(Image1, Label2, Label1, cmdok1); }

} // namespace frmaide
