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

// Greenwich mean sidereal time in seconds, by another way than the clock's: Earth rotation angle and the
// precession polynomial of IAU 2006, terrestrial time taken 70 s ahead.
double tsmg_2006(std::int64_t ms) {
    const double j = static_cast<double>(ms - 946'728'000'000) / static_cast<double>(jour);
    const double tours = 0.7790572732640 + 0.00273781191135448 * j + std::fmod(j, 1.0);
    const double t = (j + 70.0 / 86400) / 36525;
    const double arcsec =
        0.014506 + (4612.156534 + (1.3915817 + (-0.00000044 - 0.000029956 * t) * t) * t) * t;
    return std::fmod(tours * 86400 + arcsec / 15, 86400);
}

double ecart(double a, double b) { return std::abs(std::remainder(a - b, 86400)); }

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

TEST(horloge_equivalente, meme_ciel) {
    EXPECT_EQ(depuis_date({.annee = 2001, .mois = 9, .jour = 9, .heure = 1, .minute = 46, .seconde = 40}),
              1'000'000'000'000);
    // 2000 January 1, 12 h: 18 h 41 min 50.548 s, in every textbook.
    ASSERT_NEAR(tsmg_2006(946'728'000'000), 67310.548, 0.01);
    for (const auto reel : instants(1000)) {
        const auto montre = instant_equivalent(reel);
        const auto d = date_civile(reel);
        const auto annee = date_civile(reel).mois >= 7 ? 2000 : 2001;
        EXPECT_LT(ecart(tsmg_2006(montre), tsmg_2006(reel)), 0.1) << reel;
        const auto jours_31 = depuis_date({.annee = annee, .mois = d.mois, .jour = d.jour, .heure = d.heure});
        if (d.mois * 100 + d.jour != 229) {
            EXPECT_LT(std::abs(montre - jours_31), jour / 2) << "not the nearest: " << reel;
        }
        EXPECT_TRUE(montre > depuis_date({.annee = 2000, .mois = 6, .jour = 30}) &&
                    montre < depuis_date({.annee = 2001, .mois = 7, .jour = 2}));
    }
}

TEST(horloge_equivalente, decalage_et_marche) {
    std::int64_t reel = depuis_date({.annee = 2026, .mois = 8, .jour = 15, .heure = 20});
    int decalage = 0;
    plateforme::horloge_equivalente horloge{[&] { return reel; }, [&] { return decalage; }};
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
    reel += 3'600'000;
    EXPECT_EQ(minutes(), ete);
}

} // namespace
