#include "base/valeurs.h"
#include "essai.h"

using base::cause;
using essais::attend_echec;
using valeurs::lecteur;

namespace {

class Valeurs : public testing::Test {
  protected:
    lecteur de(const std::string& octets, valeurs::separateurs s = valeurs::separateurs::virgule) {
        base::ecrit_fichier(dossier.chemin / "essai.ini", octets);
        return lecteur{dossier.chemin / "essai.ini", s};
    }
    essais::dossier_prive dossier;
};

} // namespace

TEST_F(Valeurs, EndAtACommaOrALineEnd) {
    auto f = de(" a b ,, 3\r\n\r\n\t4 \nfin");
    for (const char* attendu : {"a b", "", "3", "", "4", "fin"}) {
        EXPECT_FALSE(f.fini());
        EXPECT_EQ(f.texte(), attendu);
    }
    EXPECT_TRUE(f.fini());
    EXPECT_EQ(f.lues(), 6);
    EXPECT_NE(attend_echec(cause::fin_de_fichier, [&] { f.texte(); }).find("essai.ini, valeur 7"),
              std::string::npos);
    EXPECT_TRUE(de("").fini());
    auto virgule = de("1,");
    virgule.texte();
    EXPECT_TRUE(virgule.fini());
}

TEST_F(Valeurs, AreTakenAsNumbersTextsAndBooleans) {
    auto f =
        de(" 250 \r\n-1.5x\r\n\r\n2.5\r\n3.5\r\n40000\r\nVrai\r\n vrai\r\nFaux\r\nVrai \r\n\xE9t\xE9\r\n");
    EXPECT_EQ(f.nombre(), 250);
    EXPECT_EQ(f.nombre(), -1.5);
    EXPECT_EQ(f.nombre(), 0);
    EXPECT_EQ(f.nombre16(), 2);
    EXPECT_EQ(f.nombre32(), 4);
    attend_echec(cause::depassement, [&] { f.nombre16(); });
    EXPECT_TRUE(f.vrai());
    EXPECT_FALSE(f.vrai());
    EXPECT_FALSE(f.vrai());
    EXPECT_TRUE(f.vrai());
    EXPECT_EQ(f.texte(), "été");
}

TEST_F(Valeurs, TheAlmanacPartsThemByBlanksToo) {
    auto f = de("1, 6 39  52\r\n  2,6,43,49 \r\n3\t6\t47\t45\n", valeurs::separateurs::virgule_ou_blanc);
    for (int attendu : {1, 6, 39, 52, 2, 6, 43, 49, 3, 6, 47, 45})
        EXPECT_EQ(f.nombre16(), attendu);
    EXPECT_TRUE(f.fini());
}
