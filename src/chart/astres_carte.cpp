#include "chart/astres_carte.h"

#include "base/nombre.h"

#include <cmath>

namespace chart {

namespace {

constexpr double demi_cote = 100;
constexpr double loin = 99999;

template <class Table> void libere(Table& t) {
    for (std::size_t i = 0; i + 1 < t.size(); ++i)
        t[i].nom = libre;
}

template <class Table> int cherche(const Table& t, float x, float y, const char* nom) {
    int trouve = -1;
    double bx = loin;
    double by = loin;
    for (int i = 0; base::element(t, i, nom).nom != libre; ++i) {
        const auto& a = t[static_cast<std::size_t>(i)];
        const double dx = std::abs(double{x} - a.x);
        const double dy = std::abs(double{y} - a.y);
        if (dx < demi_cote && dy < demi_cote && dx < bx && dy < by) {
            trouve = i;
            bx = dx;
            by = dy;
        }
    }
    return trouve;
}

} // namespace

void libere_astres() {
    libere(astres.etoiles);
    libere(astres.objets);
}

pris procheobjet(float x, float y) {
    if (const int i = cherche(astres.etoiles, x, y, "vstar.cat, étoiles de la carte"); i >= 0)
        return {i, espece::etoile};
    if (const int i = cherche(astres.objets, x, y, "objets de la carte"); i >= 0)
        return {i, espece::objet};
    return {};
}

} // namespace chart
