// The controls of the object picker, which two panels have alike: catalogues, objects, the free entry in the
// place of the objects, the position chosen, and the two popups.
#pragma once

#include "store/controles.h"

namespace catalogue {

struct champs_selecteur {
    shell::champ_liste lbCatalogue;
    shell::champ_cadre Frame4; ///< behind `lbObjets`, in the same place
    shell::champ_etiquette lbltAD;
    shell::tableau<shell::champ_texte, 2> tAD; ///< hours, minutes
    shell::champ_etiquette lbltADh;
    shell::champ_etiquette lbltADmin;
    shell::champ_etiquette lbltDec;
    shell::tableau<shell::champ_texte, 2> tDec; ///< degrees, minutes
    shell::champ_etiquette lbltDecdeg;
    shell::champ_etiquette lbltDecmin;
    shell::champ_etiquette bOK;
    shell::champ_liste lbObjets;
    shell::champ_etiquette lblADpos;
    shell::champ_etiquette tADpos;
    shell::champ_etiquette lbldcpos;
    shell::champ_etiquette tdcpos;

    shell::entree mnufiltre; ///< popup of an object
    shell::entree mnutype1;
    shell::entree mnufilt;
    shell::entree mnuaucun;
    shell::entree mnugalaxies;
    shell::entree mnuAmas;
    shell::entree mnuATous;
    shell::entree mnuAOuverts;
    shell::entree mnuAGlobul;
    shell::entree mnuNebul;
    shell::entree mnuNtoutes;
    shell::entree mnuNPlanet;
    shell::entree mnuNDiffus;
    shell::entree mnunearest;
    shell::entree mnuvoir;

    shell::entree mnuConst; ///< popup of a star
    shell::entree mnutype;
    shell::entree mnuAD;
    shell::entree mnuDc;

    /// Places in twips: the two lists, and the top of the two lines of the position.
    constexpr champs_selecteur(shell::panneau& p, shell::boite catalogues, shell::boite objets, int y)
        : lbCatalogue{p, "lbCatalogue", catalogues}, Frame4{p, "Frame4", objets, {.visible = false}},
          lbltAD{p, "lbltAD", {120, 405, 600, 270}, {.legende = "A.D", .cadre = &Frame4}},
          tAD{p, "tAD", {{780, 360, 720, 345}, {1800, 360, 900, 345}}, {.cadre = &Frame4}},
          lbltADh{p, "lbltADh", {1545, 405, 180, 270}, {.legende = "h", .cadre = &Frame4}},
          lbltADmin{p, "lbltADmin", {2745, 405, 180, 270}, {.legende = "'", .cadre = &Frame4}},
          lbltDec{p, "lbltDec", {120, 825, 600, 270}, {.legende = "Déc.", .cadre = &Frame4}},
          tDec{p, "tDec", {{780, 780, 720, 345}, {1800, 780, 900, 345}}, {.cadre = &Frame4}},
          lbltDecdeg{p, "lbltDecdeg", {1545, 825, 180, 270}, {.legende = "°", .cadre = &Frame4}},
          lbltDecmin{p, "lbltDecmin", {2745, 825, 180, 270}, {.legende = "'", .cadre = &Frame4}},
          bOK{p,
              "bOK",
              {780, 1245, 1920, 345},
              {.legende = "OK", .cadre = &Frame4, .traits = shell::centre | shell::gras | shell::aplat}},
          lbObjets{p, "lbObjets", objets}, lblADpos{p, "lblADpos", {90, y, 540, 270}, {.legende = "A.D"}},
          tADpos{p, "tADpos", {690, y, 3000, 270}}, lbldcpos{p,
                                                             "lbldcpos",
                                                             {90, y + 330, 540, 270},
                                                             {.legende = "Déc."}},
          tdcpos{p, "tdcpos", {690, y + 330, 3000, 270}}, mnufiltre{p,
                                                                    "mnufiltre",
                                                                    {.traits = shell::surgissant}},
          mnutype1{p, "mnutype1", {.legende = "type:[?]", .cadre = &mnufiltre}},
          mnufilt{p, "mnufilt", {.legende = "Filtre:[Aucun]", .cadre = &mnufiltre}},
          mnuaucun{p, "mnuaucun", {.legende = "Aucun", .cadre = &mnufilt}},
          mnugalaxies{p, "mnugalaxies", {.legende = "Galaxies", .cadre = &mnufilt}},
          mnuAmas{p, "mnuAmas", {.legende = "Amas", .cadre = &mnufilt}}, mnuATous{p,
                                                                                  "mnuATous",
                                                                                  {.legende = "Tous",
                                                                                   .cadre = &mnuAmas}},
          mnuAOuverts{p, "mnuAOuverts", {.legende = "Ouverts", .cadre = &mnuAmas}},
          mnuAGlobul{p, "mnuAGlobul", {.legende = "Globulaires", .cadre = &mnuAmas}},
          mnuNebul{p, "mnuNebul", {.legende = "Nébuleuses", .cadre = &mnufilt}},
          mnuNtoutes{p, "mnuNtoutes", {.legende = "Toutes", .cadre = &mnuNebul}},
          mnuNPlanet{p, "mnuNPlanet", {.legende = "Planétaires", .cadre = &mnuNebul}},
          mnuNDiffus{p, "mnuNDiffus", {.legende = "Diffuses", .cadre = &mnuNebul}},
          mnunearest{p, "mnunearest", {.legende = "Etoile la plus proche", .cadre = &mnufiltre}},
          mnuvoir{p, "mnuvoir", {.legende = "voir...", .cadre = &mnufiltre}},
          mnuConst{p, "mnuConst", {.traits = shell::surgissant}}, mnutype{p, "mnutype", {.cadre = &mnuConst}},
          mnuAD{p, "mnuAD", {.cadre = &mnuConst}}, mnuDc{p, "mnuDc", {.cadre = &mnuConst}} {}

    std::vector<shell::controle*> controles() {
        return shell::liste(lbCatalogue, Frame4, lbltAD, tAD, lbltADh, lbltADmin, lbltDec, tDec, lbltDecdeg,
                            lbltDecmin, bOK, lbObjets, lblADpos, tADpos, lbldcpos, tdcpos, mnufiltre,
                            mnutype1, mnufilt, mnuaucun, mnugalaxies, mnuAmas, mnuATous, mnuAOuverts,
                            mnuAGlobul, mnuNebul, mnuNtoutes, mnuNPlanet, mnuNDiffus, mnunearest, mnuvoir,
                            mnuConst, mnutype, mnuAD, mnuDc);
    }
};

} // namespace catalogue
