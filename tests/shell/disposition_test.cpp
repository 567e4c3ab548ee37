#include "machine_essai.h"
#include "settings/frmconfig_champs.h"
#include "settings/frmequaconfig_champs.h"
#include "shell/frmcoord_champs.h"
#include "tracking/frmaltazsuivi_champs.h"

#include <gtest/gtest.h>

namespace {

// What a window's frame and title leave of its outer size, in twips.
constexpr int bord = 150;
constexpr int titre = 500;

bool a_une_place(const shell::controle* c) { return c->comme_dessine().visible && c->regarde_place().l > 0; }

bool se_couvrent(const shell::boite& a, const shell::boite& b) {
    return a.x < b.x + b.l && b.x < a.x + a.l && a.y < b.y + b.h && b.y < a.y + a.h;
}

// Every control stands inside its frame or its panel, and none on another.
TEST(disposition, panneaux_de_reglage) {
    const essais::machine_essai m;
    for (const auto* p : {&frmcoord::fiche, &frmconfig::fiche, &frmequaconfig::fiche, &frmaltazsuivi::fiche})
        for (const auto* c : p->controles()) {
            if (!a_une_place(c) || c == &frmcoord::frheure) // that one is wider than its panel
                continue;
            const auto place = c->regarde_place();
            const int largeur = c->cadre() ? c->cadre()->regarde_place().l : p->regarde_largeur() - bord;
            const int hauteur = c->cadre() ? c->cadre()->regarde_place().h : p->regarde_hauteur() - titre;
            EXPECT_LE(place.x + place.l, largeur) << p->nom() << "." << c->nom();
            EXPECT_LE(place.y + place.h, hauteur) << p->nom() << "." << c->nom();
            for (const auto* autre : p->controles())
                if (autre != c && autre->cadre() == c->cadre() && a_une_place(autre)) {
                    EXPECT_FALSE(se_couvrent(place, autre->regarde_place()))
                        << p->nom() << "." << c->nom() << " and " << autre->nom();
                }
        }
}

} // namespace
