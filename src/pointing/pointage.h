// What the two pointing panels do alike: their speed lists, and the free entry of a position.
#pragma once

#include "base/entier.h"
#include "fields/pointage_champs.h"
#include "fields/selecteur_champs.h"

#include <string>

namespace pointing {

/// Fills the speed lists with "1" to "5" and puts them at the two values of a
/// settings file, less 1. Fatal: a missing or short file, a value outside 0 to 5 (0: none selected).
void charge_reglages(champs_pointage& c, const std::string& fichier);

/// Saves the positions of the speed lists, plus 1.
void enregistre_vitesses(champs_pointage& c, const std::string& fichier);

/// The number of an entry's field, rounded down.
double entiers(shell::champ_texte& champ);

/// Degrees and minutes of the free entry, rounded down, into `cibledec` and the label; the minutes are added
/// whatever the degrees' sign. Gives the degrees. Fatal beyond 16 bits, the degrees' minutes included.
base::entier16 entre_declinaison(catalogue::champs_selecteur& c);

/// Shows a right ascension of whole hours and minutes.
void affiche_ad(catalogue::champs_selecteur& c, double heures, double minutes);

} // namespace pointing
