#include "programs/options.h"

#include <gtest/gtest.h>

TEST(Options, TakeTheirValueBehindABlankOrASign) {
    std::string port;
    bool nuit = false;
    const options::programme p{.nom = "essai",
                               .role = "",
                               .options = {{"--port", "ADRESSE", "",
                                            [&](std::string_view v) {
                                                port = v;
                                                return std::string{v == "9" ? "pas 9" : ""};
                                            }},
                                           {"--nuit", "", "", [&](std::string_view) {
                                                nuit = true;
                                                return std::string{};
                                            }}}};
    const auto lit = [&](std::vector<const char*> mots) {
        port.clear();
        nuit = false;
        mots.insert(mots.begin(), "essai");
        testing::internal::CaptureStderr();
        const auto statut = options::lit(p, static_cast<int>(mots.size()), mots.data()).statut.value_or(-1);
        return std::to_string(statut) + testing::internal::GetCapturedStderr();
    };
    EXPECT_EQ(lit({"--port", "888", "--nuit"}), "-1");
    EXPECT_TRUE(port == "888" && nuit);
    EXPECT_EQ(lit({"--port=a=b"}), "-1");
    EXPECT_TRUE(port == "a=b" && !nuit);
    EXPECT_EQ(lit({"--nuit", "--port"}), "2essai : il manque la valeur de l'option : --port ADRESSE\n");
    EXPECT_EQ(lit({"--port=9", "--help"}), "2essai : --port ADRESSE : pas 9\n");
}
