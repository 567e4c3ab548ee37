#include "base/octets.h"
#include "echec.h"

#include <cstdlib>
#include <fstream>

TEST(Octets, EveryByteSurvivesALoadAndASave) {
    std::string tous;
    for (int i = 0; i < 256; ++i)
        tous += static_cast<char>(i);
    EXPECT_EQ(base::vers_1252(base::de_1252(tous)), tous);
    EXPECT_EQ(base::de_1252("\xE9t\xE9 \x80 \x9C"), "été € œ");
}

TEST(Octets, ACharacterWithoutAByteBecomesAQuestionMark) {
    EXPECT_EQ(base::vers_1252("α Vég\u00e9tal 🔭 \u0080"), "? V\xE9g\xE9tal ? ?");
    EXPECT_EQ(base::vers_1252("\xC3"), "?");
    EXPECT_EQ(base::vers_1252("\xE2\x82"), "??");
    EXPECT_EQ(base::vers_1252("\xFF"
                              "a"),
              "?a");
}

class Fichiers : public testing::Test {
  protected:
    void SetUp() override {
        std::string modele = (std::filesystem::temp_directory_path() / "velmoria-XXXXXX").string();
        ASSERT_NE(mkdtemp(modele.data()), nullptr);
        dossier_ = modele;
    }
    void TearDown() override { std::filesystem::remove_all(dossier_); }
    std::filesystem::path dossier_;
};

TEST_F(Fichiers, AreWrittenAndReadWhole) {
    const std::string contenu{"a\r\n\0b\n", 6};
    base::ecrit_fichier(dossier_ / "f", "a much longer text that must go");
    base::ecrit_fichier(dossier_ / "f", contenu);
    EXPECT_EQ(base::lit_fichier(dossier_ / "f"), contenu);
}

TEST_F(Fichiers, MissingUnreadableOrUnwritableIsFatalAndNamesTheFile) {
    const auto nomme = [](const std::string& detail, const char* nom) {
        EXPECT_NE(detail.find(nom), std::string::npos) << detail;
    };
    const auto c = base::cause::fichier_introuvable;
    nomme(essais::attend_echec(c, [&] { base::lit_fichier(dossier_ / "absent.ini"); }), "absent.ini");
    nomme(essais::attend_echec(c, [&] { base::lit_fichier(dossier_); }), dossier_.c_str());
    nomme(essais::attend_echec(c, [&] { base::ecrit_fichier(dossier_ / "sans" / "dossier.ini", "x"); }),
          "dossier.ini");
    nomme(essais::attend_echec(c, [&] { base::ecrit_fichier("/dev/full", std::string(100'000, 'x')); }),
          "/dev/full");
}
