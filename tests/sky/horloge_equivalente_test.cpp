#include "sky/calendrier.h"
#include "sky/horloge_equivalente.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace {

using plateforme::date_civile;
using plateforme::depuis_date;
using plateforme::instant_equivalent;

constexpr std::int64_t jour = 86'400'000;
const std::int64_t debut = depuis_date({.annee = 2002});
const std::int64_t fin = depuis_date({.annee = 2100});

std::vector<std::int64_t> instants(int n) {
    std::mt19937_64 hasard{2002};
    std::uniform_int_distribution<std::int64_t> ou{debut, fin - 1};
    std::vector<std::int64_t> tous{
        depuis_date({.annee = 2024, .mois = 2, .jour = 29, .heure = 23, .minute = 59}),
        depuis_date({.annee = 2026, .mois = 6, .jour = 30, .heure = 23, .minute = 59}),
        depuis_date({.annee = 2026, .mois = 7}), depuis_date({.annee = 2096, .mois = 3})};
    while (tous.size() < static_cast<std::size_t>(n))
        tous.push_back(ou(hasard));
    return tous;
}

// Which sky it is, the stars of tests/sky/conversion_test.cpp tell.
TEST(horloge_equivalente, dans_les_annees_de_l_almanach) {
    EXPECT_EQ(depuis_date({.annee = 2001, .mois = 9, .jour = 9, .heure = 1, .minute = 46, .seconde = 40}),
              1'000'000'000'000);
    for (const auto reel : instants(1000)) {
        const auto montre = instant_equivalent(reel);
        const auto d = date_civile(reel);
        const auto annee = d.mois >= 7 ? 2000 : 2001;
        const auto la = depuis_date({.annee = annee, .mois = d.mois, .jour = d.jour, .heure = d.heure});
        if (d.mois * 100 + d.jour != 229) {
            EXPECT_LT(std::abs(montre - la), jour / 2 + 3'600'000) << "not the nearest: " << reel;
        }
        EXPECT_TRUE(montre > depuis_date({.annee = 2000, .mois = 6, .jour = 30}) &&
                    montre < depuis_date({.annee = 2001, .mois = 7, .jour = 2}));
    }
}

TEST(horloge_equivalente, decalage_et_marche) {
    const auto reel = depuis_date({.annee = 2026, .mois = 8, .jour = 15, .heure = 20});
    std::int64_t ecoule = 77;
    int decalage = 0;
    plateforme::horloge_equivalente horloge{{[&] { return reel; }, [&] { return ecoule; }},
                                            [&] { return decalage; }};
    const auto minutes = [&] {
        const auto t = horloge.maintenant();
        return t.heure * 60 + t.minute;
    };
    EXPECT_EQ(horloge.maintenant().annee, 2000);
    EXPECT_EQ(horloge.maintenant().mois, 8);
    const int ete = minutes();
    EXPECT_NEAR(ete, 22 * 60, 5) << "the month's two hours";
    decalage = 1;
    EXPECT_EQ(minutes(), ete - 60);
    ecoule += 3'600'000;
    EXPECT_EQ(minutes(), ete);
}

} // namespace
