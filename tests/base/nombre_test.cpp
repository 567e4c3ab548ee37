#include "base/nombre.h"
#include "essai.h"

#include <cmath>
#include <limits>

using base::texte;

static double nombre(std::string_view t) { return base::nombre(t, "t"); }

TEST(Nombre, ReadsTheLeadingNumberAndIgnoresTheRest) {
    const struct {
        const char* texte;
        double valeur;
    } cas[] = {
        {"12abc", 12},   {"abc", 0},    {"", 0},
        {"-3.5x", -3.5}, {"+4", 4},     {"- 4", -4},
        {"1 000", 1000}, {".5", 0.5},   {"5.", 5},
        {".", 0},        {"2e3", 2000}, {"2e", 2},
        {"1e-400", 0},   {"0x10", 0},   {"045", 45},
        {"é5", 0},       {"nan", 0},    {"0.000000000000000000001e20", 0.1},
    };
    for (const auto& c : cas)
        EXPECT_EQ(nombre(c.texte), c.valeur) << '"' << c.texte << '"';
    EXPECT_FALSE(std::signbit(nombre("-0")));
}

TEST(Nombre, BeyondADoubleIsFatal) {
    for (const char* t : {"1e309", "-1e400", "0.001e400", "1e99999999999999999999"})
        essais::attend_echec(base::cause::depassement, [&] { nombre(t); });
    const std::string long_entier(400, '9');
    essais::attend_echec(base::cause::depassement, [&] { nombre(long_entier); });
    EXPECT_EQ(nombre("0." + std::string(400, '0') + "1"), 0.0);
}

TEST(Nombre, KnowsAWholeNumberFromATextThatBeginsWithOne) {
    for (const char* t : {"1", " 250 ", "-.5", "1e5", "+3."})
        EXPECT_TRUE(base::est_nombre(t)) << t;
    for (const char* t : {"", " ", "12abc", "1 2", "-", ".", "1e", "Vrai", "1,5"})
        EXPECT_FALSE(base::est_nombre(t)) << t;
}

TEST(Texte, IsTheShortestPlainDecimal) {
    EXPECT_EQ(texte(0.0), "0");
    EXPECT_EQ(texte(-0.0), "0");
    EXPECT_EQ(texte(24.68), "24.68");
    EXPECT_EQ(texte(-7.5), "-7.5");
    EXPECT_EQ(texte(648000.0), "648000");
    EXPECT_EQ(texte(1e21), "1000000000000000000000");
    EXPECT_EQ(texte(1e-7), "0.0000001");
    EXPECT_EQ(texte(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(base::texte_signe(5.0), " 5");
    EXPECT_EQ(base::texte_signe(-12.0), "-12");
    EXPECT_EQ(base::texte_signe(0.0), " 0");
}

TEST(Arithmetique, ZeroDivisorNegativeRootAndPlaceOutsideATableAreFatal) {
    EXPECT_EQ(base::divise(1, 4, "q"), 0.25);
    EXPECT_EQ(base::racine(6.25, "r"), 2.5);
    essais::attend_echec(base::cause::division_par_zero, [] { base::divise(1, 0.0, "q"); });
    essais::attend_echec(base::cause::division_par_zero, [] { base::divise(0, -0.0, "q"); });
    essais::attend_echec(base::cause::racine_negative, [] { base::racine(-1e-300, "r"); });
    std::array<int, 3> t{1, 2, 3};
    EXPECT_EQ(base::element(t, 2, "t"), 3);
    EXPECT_EQ(essais::attend_echec(base::cause::indice, [&] { base::element(t, 3, "t"); }), "t(3)");
    EXPECT_EQ(essais::attend_echec(base::cause::indice, [&] { base::element(t, -1, "t"); }), "t(-1)");
}
