#include "chart/astres_carte.h"
#include "chart/vue_carte.h"
#include "essai.h"

namespace {

using chart::espece;

class carte : public essais::Essai {
  protected:
    void pose(std::size_t i, chart::astre_carte a, bool etoile) {
        (etoile ? chart::astres.etoiles[i] : chart::astres.objets[i]) = std::move(a);
    }
};

TEST_F(carte, pris_dans_un_carre) {
    chart::libere_astres();
    pose(0, {"A", "", 0, 0, 1000, 1000}, true);
    pose(1, {"B", "", 0, 0, 5010, 5050}, true);
    pose(2, {"C", "", 0, 0, 5020, 5005}, true);
    pose(3, {"D", "", 0, 0, 7000, 7050}, true);
    pose(4, {"E", "", 0, 0, 7010, 7010}, true);
    pose(5, {"F", "", 0, 0, 7009, 7009}, true);
    pose(0, {"O", "", 0, 0, 1090, 1000}, false);
    pose(1, {"P", "", 0, 0, 3000, 3000}, false);
    pose(3, {"Q", "", 0, 0, 8000, 8000}, false); // behind a free entry
    const struct {
        float x, y;
        espece quoi;
        int indice;
    } cas[] = {
        {1000, 1099, espece::etoile, 0}, {1000, 1100, espece::aucune, -1}, {901, 1000, espece::etoile, 0},
        {900, 1000, espece::aucune, -1}, {1090, 1000, espece::etoile, 0},  {1100, 1000, espece::objet, 0},
        {5000, 5000, espece::etoile, 1}, // the second is nearer, but not on both axes
        {7000, 7000, espece::etoile, 3}, // nor are the third and fourth
        {7020, 7020, espece::etoile, 4}, {3099, 2901, espece::objet, 1},   {8000, 8000, espece::aucune, -1},
    };
    for (const auto& c : cas) {
        const auto p = chart::procheobjet(c.x, c.y);
        EXPECT_EQ(static_cast<int>(p.quoi), static_cast<int>(c.quoi)) << c.x << " " << c.y;
        EXPECT_EQ(p.indice, c.indice) << c.x << " " << c.y;
    }
}

} // namespace
