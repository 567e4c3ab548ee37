// The object picker: catalogues, their objects filtered by type, and the menus that tell what an object is.
// The picker reads and shows; what a double click does is its panel's affair.
#pragma once

#include "catalogue/catalogue.h"
#include "fields/selecteur_champs.h"

namespace catalogue {

/// What the picker keeps while its panel is loaded.
struct memoire_selecteur {
    table<objets_panneau> objets;
    table<etoiles_panneau> etoiles;                       ///< the bright stars
    base::entier16 filtreobjets;                          ///< 0 none, 1 to 7 in the order of the menu
    std::array<base::entier16, objets_panneau> mapfiltre; ///< place in `objets` of each filtered line
    base::entier16 nbfiltre;                              ///< last filtered line, -1 for none
};

/// One panel's picker. Line 0 of its catalogues is the free entry; `premiere` is the place in `entrees` of
/// line 1.
struct selecteur {
    champs_selecteur& champs;
    int premiere;
    memoire_selecteur memoire = {};
};

/// Wires the lists and the menus. The description must live as long as the program.
void branche(selecteur& s);

/// Reads the bright stars; gives their names. Fatal beyond `etoiles_panneau`.
std::vector<std::string> charge_etoiles(selecteur& s);

/// Fills the list of catalogues and selects Messier's, which loads it.
void remplit_catalogues(selecteur& s);

/// A position in catalogue units: 600 to the hour, 600 to the degree.
struct place {
    base::entier32 ad;
    base::entier32 dec;
};

/// The selected object's position. Fatal with none selected.
place position_choisie(const selecteur& s);

/// Opens the popup of the star on the selected line of a list of bright stars. Fatal with none selected.
void ouvre_menu_etoile(const selecteur& s, shell::champ_liste& liste);

} // namespace catalogue
