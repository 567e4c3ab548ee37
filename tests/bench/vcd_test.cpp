#include "bench/port_simule.h"
#include "bench/vcd.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/resource.h>
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
    // The reader that shares nothing with the writer: edges and, if given, the time of the last change.
    bool verifie(const std::string& arguments) const {
        const std::string commande =
            std::string("\"" PYTHON "\" \"" VERIFIE_VCD "\" \"") + fichier + "\" " + arguments;
        return std::system(commande.c_str()) == 0;
    }
};

// Notes the lines at a time that goes on by 2 microseconds a write.
struct temoin_vcd : banc::temoin {
    explicit temoin_vcd(banc::vcd& v) : enregistreur(v) {}
    void lignes(std::uint8_t donnees, std::uint8_t controle) override {
        EXPECT_TRUE(enregistreur.note(instant += 2000, donnees, controle));
    }
    banc::vcd& enregistreur;
    std::int64_t instant = 5'000'000'000;
};

TEST_F(Vcd, AnotherReaderFindsEveryPulse) {
    banc::monture monture;
    banc::port_simule port(monture);
    port.ecrit(890, 1);
    ASSERT_TRUE(enregistreur.ouvre(fichier, 5'000'000'000, port.donnees(), port.controle()));
    temoin_vcd temoin(enregistreur);
    port.observe(&temoin);
    const auto pulse = [&](std::uint8_t sens, std::uint8_t pas, int n) {
        for (int i = 0; i < n; ++i) {
            port.ecrit(888, sens);
            port.ecrit(888, static_cast<std::uint8_t>(sens + pas));
        }
    };
    pulse(0, 4, 20'000);
    pulse(8, 4, 7);
    pulse(0, 1, 11);
    port.ecrit(890, 11);
    ASSERT_TRUE(port.presente(19));
    pulse(2, 1, 13);
    port.ecrit(888, 0);
    port.ecrit(888, 5);
    EXPECT_TRUE(enregistreur.ferme());
    // 40066 times 2 microseconds: two for each of 20031 pulses, mode, key, and the two writes at the end.
    EXPECT_TRUE(verifie("--az0 20001 --az8 7 --alt0 12 --alt2 13 --fin 80132000"));
    EXPECT_FALSE(verifie("--az0 20000 --az8 7 --alt0 12 --alt2 13 2>/dev/null"));
}

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

TEST_F(Vcd, KeepsAPulseThatTakesNoTime) {
    ASSERT_TRUE(enregistreur.ouvre(fichier, 1000, 0, 1));
    for (const std::uint8_t octet : std::array<std::uint8_t, 5>{4, 0, 4, 0, 4})
        EXPECT_TRUE(enregistreur.note(1010, octet, 1));
    EXPECT_TRUE(enregistreur.note(900, 8, 1)); // a clock that goes back
    EXPECT_TRUE(enregistreur.note(1100, 12, 1));
    EXPECT_TRUE(enregistreur.ferme());
    EXPECT_TRUE(verifie("--az0 3 --az8 1 --fin 100"));
}

TEST_F(Vcd, IsCompleteWhenItsOwnerGoesAndAfterANewStart) {
    {
        banc::vcd autre;
        ASSERT_TRUE(autre.ouvre(fichier, 0, 0, 1));
        EXPECT_TRUE(autre.note(5, 12, 1));
    }
    EXPECT_TRUE(verifie("--az8 1 --fin 5"));
    ASSERT_TRUE(enregistreur.ouvre(fichier, 0, 0, 1));
    EXPECT_TRUE(enregistreur.note(50, 1, 1));
    ASSERT_TRUE(enregistreur.ouvre(fichier, 70, 1, 1));
    EXPECT_TRUE(enregistreur.note(80, 2, 1));
    EXPECT_TRUE(enregistreur.ferme());
    EXPECT_EQ(changements(), "#10\n0!\n1\"\n");
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
    EXPECT_TRUE(verifie("--fin 0"));
}

TEST_F(Vcd, ADiskThatFillsUpEndsTheRecording) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limite{200'000, RLIM_INFINITY};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limite), 0);
    ASSERT_TRUE(enregistreur.ouvre(fichier, 0, 0, 1));
    std::int64_t t = 0;
    while (t < 100'000 && enregistreur.note(t + 1, static_cast<std::uint8_t>(t % 2 * 4), 1))
        ++t;
    EXPECT_GT(t, 10'000); // some 10 bytes a change
    EXPECT_LT(t, 50'000);
    EXPECT_FALSE(enregistreur.ouvert());
    EXPECT_FALSE(enregistreur.note(t + 1000, 12, 1));
    EXPECT_FALSE(enregistreur.ferme());
}

} // namespace
