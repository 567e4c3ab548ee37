#include "bench/vcd.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <unistd.h>

namespace {

struct Vcd : testing::Test {
    std::string fichier = testing::TempDir() + "banc_" + std::to_string(::getpid()) + ".vcd";
    banc::vcd enregistreur;
    ~Vcd() override { std::remove(fichier.c_str()); }

    std::string contenu() const {
        std::ifstream f(fichier, std::ios::binary);
        return (std::ostringstream{} << f.rdbuf()).str();
    }
    // What comes after the header and the values at time 0.
    std::string changements() const {
        const std::string tout = contenu();
        const std::size_t i = tout.find("$dumpvars");
        return i == std::string::npos ? "no $dumpvars" : tout.substr(tout.find("$end\n", i) + 5);
    }
};

TEST_F(Vcd, WritesChangesOnly) {
    ASSERT_TRUE(enregistreur.ouvre(fichier, 100, 4, 0xCB));
    EXPECT_TRUE(enregistreur.note(150, 4, 11));
    EXPECT_TRUE(enregistreur.note(160, 12, 11));
    EXPECT_TRUE(enregistreur.note(9'000'000'170, 128, 1));
    EXPECT_TRUE(enregistreur.ferme());
    EXPECT_EQ(changements(), "#60\n1$\n#9000000070\n0#\n0$\n1(\nb0001 )\n");
    EXPECT_NE(contenu().find("$dumpvars\n0!\n0\"\n1#\n0$\n0%\n0&\n0'\n0(\nb1011 )\n$end\n"),
              std::string::npos);
}

// A pulse that takes no time, then a clock that goes back: each change comes a nanosecond after the last.
TEST_F(Vcd, KeepsAPulseThatTakesNoTime) {
    ASSERT_TRUE(enregistreur.ouvre(fichier, 1000, 0, 1));
    for (const auto& [instant, octet] : {std::pair{1010, 4}, {1010, 0}, {900, 4}, {1100, 0}})
        EXPECT_TRUE(enregistreur.note(instant, static_cast<std::uint8_t>(octet), 1));
    EXPECT_TRUE(enregistreur.ferme());
    EXPECT_EQ(changements(), "#10\n1#\n#11\n0#\n#12\n1#\n#100\n0#\n");
}

TEST_F(Vcd, AFailureIsToldAndEndsTheRecordingOnly) {
    for (const auto& impossible : {fichier + "/absent/x.vcd", std::string{"/dev/full"}}) {
        EXPECT_FALSE(enregistreur.ouvre(impossible, 0, 0, 1));
        EXPECT_FALSE(enregistreur.ouvert());
        EXPECT_FALSE(enregistreur.note(1, 4, 1));
        EXPECT_TRUE(enregistreur.ferme());
    }
    ASSERT_TRUE(enregistreur.ouvre(fichier, 0, 0, 1)); // and the next one is whole again
    EXPECT_TRUE(enregistreur.ferme());
    EXPECT_EQ(changements(), "");
}

} // namespace
