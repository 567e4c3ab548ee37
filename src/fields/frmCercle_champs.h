// The window of the sky chart, as designed: black, kept as it was drawn, with one popup for all its commands.
// The menu's ticks are those of the design at each load, whatever the chart then shows.
#pragma once

#include "base/nombre.h"
#include "fields/fleches.h"
#include "store/controles.h"

#include <array>

namespace frmCercle {

using namespace shell;

inline constinit panneau fiche{"frmCercle", "Visualisation graphique [1:1]", 9240, 9570};

inline constinit champ_surface ciel{fiche, "ciel", {0, 0, 9150, 9150}, {.traits = fond}};
// In the corners that the disc leaves.
inline constinit champ_bouton bEsc{fiche, "bEsc", {8130, 90, 870, 420}, {.legende = "Fin"}};
inline constinit champ_etiquette Label1{
    fiche, "Label1", {8580, 8700, 420, 300}, {.legende = fleches::ouvre, .traits = symbole | centre | aplat}};

inline constinit entree mnuName{fiche, "mnuName", {.traits = surgissant}};
inline constinit entree mnuNom{fiche, "mnuNom", {.cadre = &mnuName}};
inline constinit entree mnuvoir{fiche, "mnuvoir", {.legende = "Voir...", .cadre = &mnuName}};
inline constinit entree mnuSep1{fiche, "mnuSep1", {.cadre = &mnuName, .traits = separateur}};
inline constinit entree mnuRep{fiche, "mnuRep", {.legende = "Repère", .cadre = &mnuName, .coche = true}};
inline constinit entree mnuConst{
    fiche, "mnuConst", {.legende = "Constellations", .cadre = &mnuName, .coche = true}};

inline constinit entree mnuObjets{fiche, "mnuObjets", {.legende = "Objets", .cadre = &mnuName}};
inline constinit entree mnuTyp{fiche, "mnuTyp", {.legende = "Type", .cadre = &mnuObjets}};
inline constinit entree mnuMessier{
    fiche, "mnuMessier", {.legende = "Messier", .cadre = &mnuTyp, .coche = true}};
inline constinit entree mnuIc{fiche, "mnuIc", {.legende = "IC", .cadre = &mnuTyp}};
inline constinit entree mnuNgc0{fiche, "mnuNgc0", {.legende = "NGC0xxx", .cadre = &mnuTyp}};
inline constinit entree mnuNgc1{fiche, "mnuNgc1", {.legende = "NGC1xxx", .cadre = &mnuTyp}};
inline constinit entree mnuNgc2{fiche, "mnuNgc2", {.legende = "NGC2xxx", .cadre = &mnuTyp}};
inline constinit entree mnuNgc3{fiche, "mnuNgc3", {.legende = "NGC3xxx", .cadre = &mnuTyp}};
inline constinit entree mnuNgc4{fiche, "mnuNgc4", {.legende = "NGC4xxx", .cadre = &mnuTyp}};
inline constinit entree mnuNgc5{fiche, "mnuNgc5", {.legende = "NGC5xxx", .cadre = &mnuTyp}};
inline constinit entree mnuNgc6{fiche, "mnuNgc6", {.legende = "NGC6xxx", .cadre = &mnuTyp}};
inline constinit entree mnuNgc7{fiche, "mnuNgc7", {.legende = "NGC7xxx", .cadre = &mnuTyp}};
inline constinit entree mnuaucun{fiche, "mnuaucun", {.legende = "Aucun", .cadre = &mnuObjets, .coche = true}};
inline constinit entree mnuTous{fiche, "mnuTous", {.legende = "Tous", .cadre = &mnuObjets}};
inline constinit entree mnuGalaxie{fiche, "mnuGalaxie", {.legende = "Galaxies", .cadre = &mnuObjets}};
inline constinit entree mnuAmas{fiche, "mnuAmas", {.legende = "Amas", .cadre = &mnuObjets}};
inline constinit entree mnuNebuleuse{fiche, "mnuNebuleuse", {.legende = "Nébuleuses", .cadre = &mnuObjets}};

inline constinit entree mnuSep2{fiche, "mnuSep2", {.cadre = &mnuName, .traits = separateur}};
inline constinit entree mnuZ{fiche, "mnuZ", {.legende = "Zoom (1:1)", .cadre = &mnuName}};
inline constinit entree mnuRaz{fiche, "mnuRaz", {.legende = "R.A.Z", .cadre = &mnuZ}};
inline constinit entree mnuZUn{fiche, "mnuZUn", {.legende = "1:1", .cadre = &mnuZ, .coche = true}};
inline constinit entree mnuZDeux{fiche, "mnuZDeux", {.legende = "2:1", .cadre = &mnuZ}};
inline constinit entree mnuZTrois{fiche, "mnuZTrois", {.legende = "3:1", .cadre = &mnuZ}};
inline constinit entree mnuZQuatre{fiche, "mnuZQuatre", {.legende = "4:1", .cadre = &mnuZ}};
inline constinit entree mnuZCinq{fiche, "mnuZCinq", {.legende = "5:1", .cadre = &mnuZ}};
inline constinit entree mnuZSix{fiche, "mnuZSix", {.legende = "6:1", .cadre = &mnuZ}};
inline constinit entree mnuZSept{fiche, "mnuZSept", {.legende = "7:1", .cadre = &mnuZ}};
inline constinit entree mnuRot{fiche, "mnuRot", {.legende = "Rotation", .cadre = &mnuName}};
inline constinit entree mnuCw{fiche, "mnuCw", {.legende = "+ 10°", .cadre = &mnuRot}};
inline constinit entree mnuCcw{fiche, "mnuCcw", {.legende = "- 10°", .cadre = &mnuRot}};
// The panel that opens the chart sets its caption.
inline constinit entree mnuPoint{fiche, "mnuPoint", {.legende = "Opération", .cadre = &mnuName}};

/// The entry of a zoom, 1 to 7.
inline entree& entree_zoom(int zoom) {
    constexpr std::array entrees{&mnuZUn, &mnuZDeux, &mnuZTrois, &mnuZQuatre, &mnuZCinq, &mnuZSix, &mnuZSept};
    return *base::element(entrees, zoom - 1, "zoomcercle");
}

inline std::vector<controle*> controles() {
    return liste(ciel, bEsc, Label1, mnuName, mnuNom, mnuvoir, mnuSep1, mnuRep, mnuConst, mnuObjets, mnuTyp,
                 mnuMessier, mnuIc, mnuNgc0, mnuNgc1, mnuNgc2, mnuNgc3, mnuNgc4, mnuNgc5, mnuNgc6, mnuNgc7,
                 mnuaucun, mnuTous, mnuGalaxie, mnuAmas, mnuNebuleuse, mnuSep2, mnuZ, mnuRaz, mnuZUn,
                 mnuZDeux, mnuZTrois, mnuZQuatre, mnuZCinq, mnuZSix, mnuZSept, mnuRot, mnuCw, mnuCcw,
                 mnuPoint);
}

} // namespace frmCercle
