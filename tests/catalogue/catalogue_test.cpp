#include "catalogue/catalogue.h"
#include "essai.h"

namespace {

using base::entier32;
using essais::machine;

TEST(catalogue, enregistrements) {
    const machine m;
    m.fichier("ic.cat", "\"Gamma, dite la Belle\" , GL,3305,-7500\r\nM 1,DN\r\n2.5,-3.5,\"é\",ST,1,2");
    catalogue::table<catalogue::objets_panneau, entier32> panneau;
    EXPECT_EQ(catalogue::charge("ic.cat", panneau),
              (std::vector<std::string>{"Gamma, dite la Belle", "M 1", "é"}));
    EXPECT_EQ(panneau.nombre, 3);
    EXPECT_EQ(panneau.codes[1], "DN");
    EXPECT_EQ(panneau.dec[0], -7500);
    EXPECT_EQ(panneau.ad[1], 2) << "a panel rounds, ties to the even number";
    EXPECT_EQ(panneau.dec[1], -4);
    catalogue::table<catalogue::objets_carte, double> carte;
    catalogue::charge("ic.cat", carte);
    EXPECT_EQ(carte.ad[1], 2.5) << "the chart keeps a fraction";
    EXPECT_EQ(carte.dec[1], -3.5);
}

TEST(catalogue, fichiers_livres) {
    const machine m;
    EXPECT_EQ(catalogue::lit("messier.cat", catalogue::objets_panneau).size(), 110u);
    for (const auto& e : catalogue::entrees)
        for (const auto& a : catalogue::lit(e.fichier, catalogue::objets_panneau)) {
            EXPECT_TRUE(a.ad >= 0 && a.ad < 14400 && a.dec >= -54000 && a.dec <= 54000)
                << e.fichier << " " << a.nom;
            EXPECT_EQ(catalogue::nom_type(a.code).empty(), std::string{e.fichier} == "5magstar.cat") << a.nom;
        }
    EXPECT_GE(catalogue::lit("5magstar.cat", catalogue::etoiles_panneau).size(), 36u);
    const auto etoiles = catalogue::lit("vstar.cat", catalogue::etoiles_carte);
    for (const auto& e : etoiles)
        EXPECT_NE(catalogue::constellation(e.code), "") << e.code;
    for (const auto& t : catalogue::lit_traits())
        EXPECT_TRUE(t.de >= 0 && t.a >= 0 && t.de < static_cast<int>(etoiles.size()) &&
                    t.a < static_cast<int>(etoiles.size()));
}

TEST(catalogue, noms) {
    const machine m;
    EXPECT_EQ(catalogue::constellation("And"), "Andromède");
    EXPECT_EQ(catalogue::constellation("and"), "");
    m.fichier("const.cat", "And,Un\r\nOri,Orion\r\nAnd,\"Deux, vraiment\"\r\n");
    EXPECT_EQ(catalogue::constellation("And"), "Deux, vraiment");

    const std::pair<const char*, const char*> lettres[] = {
        {"DELTA", "d"}, {"UPSILON", "u"}, {"MU", "m"},   {"GAMMA", "g"}, {"EPSILON", "e"}, {"ETA", "h"},
        {"ZETA", "z"},  {"PHI", "f"},     {"RHO", "r"},  {"KAPPA", "k"}, {"TAU", "t"},     {"THETA", "q"},
        {"IOTA", "i"},  {"SIGMA", "s"},   {"PI", "p"},   {"CHI", "c"},   {"ALPHA", " "},   {"BETA", " "},
        {"delta", " "}, {"", " "},        {"OMEGA", " "}};
    for (const auto& [nom, lettre] : lettres)
        EXPECT_EQ(catalogue::lettregrecque(nom), lettre) << nom;

    EXPECT_EQ(catalogue::nom_type("DN"), "NEBULEUSE DIFFUSE");
    EXPECT_EQ(catalogue::nom_type("XX"), "");
}

TEST(catalogue, partage) {
    const struct {
        int coordonnee, entiers;
        double minutes;
    } cas[] = {{3305, 5, 30.5},   {-7500, -12, -30}, {-300, 0, -30},
               {14399, 23, 59.9}, {600, 1, 0},       {-54000, -90, 0}};
    for (const auto& c : cas) {
        const auto p = catalogue::partage(c.coordonnee);
        EXPECT_EQ(p.entiers, c.entiers) << c.coordonnee;
        EXPECT_EQ(p.minutes, c.minutes) << c.coordonnee;
    }
}

} // namespace
