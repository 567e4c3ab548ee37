// The two axes of a mount: azimuth and altitude, or right ascension and declination.
#pragma once

#include "drive/etat_moteur.h"
#include "seam/port.h"

#include <cstddef>

namespace cmd_moteur {

/// An axis: its lines on the data register and its share of the drive state.
struct axe {
    int pas;              ///< step line
    int sens;             ///< direction line
    const entier16& plus; ///< direction values
    const entier16& moins;
    const booleen16& inverse; ///< its commands are inverted
    const entier16& classe;   ///< its speed class
    std::size_t rangee;       ///< of its first class in the speed tables
    entier32& compte;         ///< steps not yet folded into the position
    double& jeu;              ///< steps of the last paddle press
    entier32& encode;         ///< steps of all paddle presses
};

inline constexpr axe azimut{plateforme::ligne_pas_az,
                            plateforme::ligne_sens_az,
                            azplus,
                            azmoins,
                            invaz,
                            classevitaz,
                            0,
                            compteaz,
                            jeucourantaz,
                            pasencodeaz};
inline constexpr axe altitude{plateforme::ligne_pas_alt,
                              plateforme::ligne_sens_alt,
                              altplus,
                              altmoins,
                              invalt,
                              classevitalt,
                              5,
                              comptealt,
                              jeucourantalt,
                              pasencodealt};

} // namespace cmd_moteur
