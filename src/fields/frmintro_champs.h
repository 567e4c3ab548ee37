// The splash shown while the program starts.
#pragma once

#include "store/controles.h"

namespace frmintro {

using namespace shell;

inline constinit panneau fiche{
    "frmintro", "Velmoria", 7200, 4800, {.boite_de_fermeture = fermeture::aucune, .sans_bord = true}};

inline constinit champ_image Image2{
    fiche, "Image2", {0, 0, 7200, 4800}, {.image = "accueil", .traits = fond}};
inline constinit champ_etiquette Shape1{fiche, "Shape1", {300, 3960, 4350, 645}, {.traits = aplat}};
inline constinit champ_etiquette Label{
    fiche, "Label", {360, 3990, 4230, 300}, {.legende = "Chargement en cours ..."}};
inline constinit champ_etiquette Label3{
    fiche, "Label3", {360, 4290, 4230, 300}, {.legende = "Les auteurs de Velmoria, licence MIT"}};

inline std::vector<controle*> controles() { return liste(Image2, Shape1, Label, Label3); }

} // namespace frmintro
