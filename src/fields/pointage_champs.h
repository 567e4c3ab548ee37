// What stands in both pointing panels beside the picker: the speed of each axis, the encoder's option, which
// has no effect, saving and leaving. In the right half of the panel.
#pragma once

#include "store/controles.h"

namespace pointing {

struct champs_pointage {
    shell::champ_cadre frame5;
    shell::champ_etiquette lblpointaz;
    shell::champ_deroulante cbpointaz; ///< speed class of the first axis by its position
    shell::champ_etiquette lblpointalt;
    shell::champ_deroulante cbpointalt;
    shell::champ_cadre Frame2;
    shell::champ_option optcodeur;
    shell::champ_option optsscodeur;
    shell::champ_bouton cmdsave;
    shell::champ_bouton Cmdquit;

    constexpr champs_pointage(shell::panneau& p, const char* premier_axe, const char* second_axe)
        : frame5{p, "frame5", {3780, 30, 3660, 1140}, {.legende = "Vitesses de pointage"}},
          lblpointaz{p, "lblpointaz", {120, 360, 1260, 270}, {.legende = premier_axe, .cadre = &frame5}},
          cbpointaz{p, "cbpointaz", {1440, 315, 1200, 345}, {.cadre = &frame5}},
          lblpointalt{p, "lblpointalt", {120, 765, 1260, 270}, {.legende = second_axe, .cadre = &frame5}},
          cbpointalt{p, "cbpointalt", {1440, 720, 1200, 345}, {.cadre = &frame5}},
          Frame2{p, "Frame2", {3780, 1230, 3660, 720}}, optcodeur{p,
                                                                  "optcodeur",
                                                                  {120, 285, 1380, 330},
                                                                  {.legende = "codeur", .cadre = &Frame2}},
          optsscodeur{p, "optsscodeur", {1620, 285, 1920, 330}, {.legende = "sans codeur", .cadre = &Frame2}},
          cmdsave{p, "cmdsave", {3780, 5070, 2400, 450}, {.legende = "Sauvegarde réglages"}},
          Cmdquit{p, "Cmdquit", {6240, 5070, 1200, 450}, {.legende = "Quitter"}} {}

    /// But for the two buttons, which come last.
    std::vector<shell::controle*> controles() {
        return shell::liste(frame5, lblpointaz, cbpointaz, lblpointalt, cbpointalt, Frame2, optcodeur,
                            optsscodeur);
    }
};

} // namespace pointing
