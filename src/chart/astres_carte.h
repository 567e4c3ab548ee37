// The stars and objects of the chart with the places at which they were last drawn: what a pick searches.
//
// They live as long as the chart's window. A redraw fills them from the start and cleans nothing up: entries
// past a shorter file's end keep what they held, at their old place.
#pragma once

#include "base/entier.h"
#include "catalogue/catalogue.h"

#include <array>
#include <string>

namespace chart {

struct astre_carte {
    std::string nom; ///< `libre` for an entry never filled since the window was loaded
    std::string code;
    double ad = 0; ///< catalogue units
    double dec = 0;
    double x = 0; ///< chart units
    double y = 0;
};

inline constexpr const char* libre = "XXX";

struct memoire_carte {
    std::array<astre_carte, catalogue::etoiles_carte> etoiles;
    std::array<astre_carte, catalogue::objets_carte> objets;
};
inline memoire_carte astres;

/// Marks the entries free, all but the last of each table.
void libere_astres();

enum class espece { aucune = -1, etoile = 0, objet = 1 };

/// What was picked: its place in its table, -1 for none.
struct pris {
    int indice = -1;
    espece quoi = espece::aucune;
};

/// The star at a place of the chart, or where there is none the object: within a square of half-side 100
/// chart units, the edge excluded. Of several, a later one takes the place of an earlier one only if it is
/// nearer on both axes. Fatal (`indice`) if a search comes past the last entry.
pris procheobjet(float x, float y);

} // namespace chart
