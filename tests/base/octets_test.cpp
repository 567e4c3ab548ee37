#include "base/octets.h"
#include "essai.h"

TEST(Octets, ACharacterWithoutAByteBecomesAQuestionMark) {
    EXPECT_EQ(base::de_1252("\xE9t\xE9 \x80 \x9C"), "été € œ");
    EXPECT_EQ(base::vers_1252("α Vég\u00e9tal 🔭 \u0080"), "? V\xE9g\xE9tal ? ?");
    for (const auto& [malforme, attendu] : {std::pair{"\xC3", "?"},
                                            {"\xE2\x82", "??"},
                                            {"\xFF"
                                             "a",
                                             "?a"},
                                            {"\xC3(", "?("}})
        EXPECT_EQ(base::vers_1252(malforme), attendu);
}

TEST(Fichiers, AreWrittenAndReadWhole) {
    const essais::dossier_prive dossier;
    const std::string contenu{"a\r\n\0b\n", 6};
    base::ecrit_fichier(dossier.chemin / "f", "a much longer text that must go");
    base::ecrit_fichier(dossier.chemin / "f", contenu);
    EXPECT_EQ(base::lit_fichier(dossier.chemin / "f"), contenu);
    // Missing, unreadable or unwritable: the message names the file.
    const auto nomme = [](const std::filesystem::path& chemin, auto f) {
        const auto detail = essais::attend_echec(base::cause::fichier_introuvable, [&] { f(chemin); });
        EXPECT_NE(detail.find(chemin.string()), std::string::npos) << detail;
    };
    nomme(dossier.chemin / "absent.ini", base::lit_fichier);
    nomme(dossier.chemin, base::lit_fichier);
    const auto ecrit = [](const auto& chemin) { base::ecrit_fichier(chemin, std::string(100'000, 'x')); };
    nomme(dossier.chemin / "sans/dossier.ini", ecrit);
    nomme("/dev/full", ecrit);
}
