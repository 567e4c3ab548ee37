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

TEST_F(Valeurs, ANumberComesBackIntoAFieldAsItsPlainText) {
    auto f = de("045\r\n 2.50\r\n1e3\r\n12abc\r\n-0\r\n\r\n+7\r\n1,5\r\n");
    for (const char* attendu : {"45", "2.5", "1000", "12abc", "0", "", "7", "1", "5"})
        EXPECT_EQ(f.champ(), attendu);
    EXPECT_TRUE(f.fini());
}

TEST_F(Valeurs, QuotesKeepCommas) {
    auto f = de(" \"Chiens de chasse, les\" ,CVn\r\n\"\" , \"a\"reste,x\r\n\"ouvert");
    for (const char* attendu : {"Chiens de chasse, les", "CVn", "", "a", "x", "ouvert"})
        EXPECT_EQ(f.texte_entre_guillemets(), attendu);
    EXPECT_TRUE(f.fini());
    EXPECT_EQ(de("\"a\"\r\n").texte(), "\"a\"") << "quotes mean nothing in settings files";
}

TEST_F(Valeurs, TheAlmanacPartsThemByBlanksToo) {
    auto f = de("1, 6 39  52\r\n  2,6,43,49 \r\n3\t6\t47\t45\n", valeurs::separateurs::virgule_ou_blanc);
    for (int attendu : {1, 6, 39, 52, 2, 6, 43, 49, 3, 6, 47, 45})
        EXPECT_EQ(f.nombre16(), attendu);
    EXPECT_TRUE(f.fini());
}

TEST_F(Valeurs, AreWrittenOneALine) {
    valeurs::ecrivain e;
    e.texte("été α");
    e.texte("");
    e.nombre(250.0);
    e.nombre(-2.5);
    e.nombre(base::entier32{0});
    e.booleen(true);
    e.booleen(false);
    e.enregistre(dossier.chemin / "e.ini");
    EXPECT_EQ(base::lit_fichier(dossier.chemin / "e.ini"),
              "\xE9t\xE9 ?\r\n\r\n 250 \r\n-2.5 \r\n 0 \r\nVrai\r\nFaux\r\n");
}
