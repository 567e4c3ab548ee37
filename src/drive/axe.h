// The two axes of a mount: azimuth and altitude, or right ascension and declination.
#pragma once

#include "drive/etat_moteur.h"
#include "seam/port.h"

#include <cstddef>

namespace cmd_moteur {

/// An axis: its lines on the data register and its share of the drive state.
struct axe {
    entier16 pas;         ///< step line
    entier16 sens;        ///< direction line
    const entier16& plus; ///< direction values
    const entier16& moins;
    const booleen16& inverse; ///< its commands are inverted
    const entier16& classe;   ///< its speed class
    std::size_t rangee;       ///< of its first class in the speed tables
    entier32& compte;         ///< steps not yet folded into the position
    double& jeu;              ///< steps of the last paddle press
    entier32& encode;         ///< steps of all paddle presses
    const char* nom_plus;     ///< the fields of the direction values, for a message
    const char* nom_moins;
};

inline constexpr axe azimut{.pas = plateforme::ligne_pas_az,
                            .sens = plateforme::ligne_sens_az,
                            .plus = azplus,
                            .moins = azmoins,
                            .inverse = invaz,
                            .classe = classevitaz,
                            .rangee = 0,
                            .compte = compteaz,
                            .jeu = jeucourantaz,
                            .encode = pasencodeaz,
                            .nom_plus = "frmconfig.txtazplus",
                            .nom_moins = "frmconfig.txtazmoins"};
inline constexpr axe altitude{.pas = plateforme::ligne_pas_alt,
                              .sens = plateforme::ligne_sens_alt,
                              .plus = altplus,
                              .moins = altmoins,
                              .inverse = invalt,
                              .classe = classevitalt,
                              .rangee = 5,
                              .compte = comptealt,
                              .jeu = jeucourantalt,
                              .encode = pasencodealt,
                              .nom_plus = "frmconfig.txtaltplus",
                              .nom_moins = "frmconfig.txtaltmoins"};

} // namespace cmd_moteur
