// The mount behind the lines, the port before them, the rate shown and the recording of the lines.
#include "bench/monture.h"
#include "bench/port_simule.h"
#include "bench/vcd.h"

#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <sstream>

namespace {

using banc::ecriture;
using banc::impulsions;
using banc::monture;

constexpr std::int64_t ms = 1'000'000;

TEST(Monture, CountsRisingEdgesByDirection) {
    struct {
        const char* quoi;
        std::vector<int> octets;
        impulsions attendues;
    } const cas[] = {
        {"the first byte rises from nothing", {4}, {1, 0, 0, 0}},
        {"two pulses each way in azimuth", {8, 12, 8, 12, 0, 4, 0, 4}, {2, 2, 0, 0}},
        {"two pulses each way in altitude", {2, 3, 2, 3, 0, 1, 0, 1}, {0, 0, 2, 2}},
        {"a step line held high is one edge", {12, 12, 12}, {0, 1, 0, 0}},
        {"a direction that changes under a high step line is none", {4, 12, 4, 1, 3}, {1, 0, 1, 0}},
        {"both step lines in one byte", {5, 0, 15}, {1, 1, 1, 1}},
        {"one line falls while the other rises", {4, 1, 4, 1}, {2, 0, 2, 0}},
        {"a direction alone moves nothing, nor do the free lines", {8, 2, 10, 240, 0}, {0, 0, 0, 0}},
        {"the direction of the other axis does not matter", {6, 0, 9}, {1, 0, 1, 0}},
    };
    for (const auto& c : cas) {
        SCOPED_TRACE(c.quoi);
        monture m;
        for (const int o : c.octets)
            m.recoit(static_cast<std::uint8_t>(o));
        EXPECT_TRUE(m.compte() == c.attendues)
            << m.compte().az0 << ' ' << m.compte().az8 << ' ' << m.compte().alt0 << ' ' << m.compte().alt2;
    }
}

TEST(unites, AStepWithoutASizeIsNoFailure) {
    EXPECT_DOUBLE_EQ(banc::unite(360.0, 200.0), 9.0); // 648000 / 72000
    EXPECT_EQ(banc::unite(0.0, 200.0), 0.0);
    EXPECT_EQ(banc::unite(1e-200, 1e-200), 0.0);
    EXPECT_EQ(banc::unite(std::numeric_limits<double>::infinity(), 0.0), 0.0);
}

// The rate shown, once settled, for a motion of `par_seconde` evenly spaced pulses looked at every `pas_ms`.
void attend_cadence(double par_seconde, int pas_ms, double tolerance) {
    SCOPED_TRACE(par_seconde);
    banc::cadence c;
    for (std::int64_t t = 0; t <= 12'000 * ms; t += pas_ms * ms) {
        const auto total = static_cast<std::uint64_t>(par_seconde * static_cast<double>(t) / 1e9);
        const double vue = c.mesure(total, t);
        if (t >= 5000 * ms) {
            ASSERT_NEAR(vue, par_seconde, par_seconde * tolerance) << "at " << t / ms << " ms";
        }
    }
}

TEST(Cadence, IsSteadyForSlowAndFastMotions) {
    attend_cadence(0.5, 100, 0.05);
    attend_cadence(15.04, 100, 0.06);
    attend_cadence(300.0, 50, 0.02);
    attend_cadence(250'000.0, 1, 1e-4);
}

TEST(port_simule, RemembersTheLastWritesOfItsLines) {
    banc::monture monture;
    banc::port_simule port{monture};
    port.ecrit(890, 0xCB);
    EXPECT_EQ(port.lit(890), 11);
    EXPECT_TRUE(port.mode_raquette());
    port.ecrit(890, 0x21);
    EXPECT_EQ(port.lit(890), 1);
    EXPECT_EQ(port.lit(889), 255);
    port.oublie_ecritures();
    EXPECT_TRUE(port.dernieres(5).empty());
    port.ecrit(890, 1);
    port.ecrit(888, 0);
    port.ecrit(888, 0); // changes nothing and is a write all the same
    port.ecrit(889, 7); // no register of ours
    EXPECT_EQ(port.total_ecritures(), 5U);
    EXPECT_EQ(port.dernieres(2), (std::vector<ecriture>{{888, 0}, {888, 0}}));
    EXPECT_EQ(port.dernieres(9), (std::vector<ecriture>{{890, 1}, {888, 0}, {888, 0}}));
    port.oublie_ecritures();
    EXPECT_TRUE(port.dernieres(9).empty());
    port.ecrit(888, 255);
    EXPECT_EQ(port.dernieres(9), (std::vector<ecriture>{{888, 255}}));
    EXPECT_EQ(port.total_ecritures(), 6U);
}

// What comes after the header; a pulse that takes no time and a clock that goes back keep their order.
TEST(Vcd, WritesChangesOnly) {
    const std::string fichier = testing::TempDir() + "banc.vcd";
    banc::vcd enregistreur;
    for (const auto& impossible : {fichier + "/absent/x.vcd", std::string{"/dev/full"}}) {
        EXPECT_FALSE(enregistreur.ouvre(impossible, 0, 0, 1));
        EXPECT_FALSE(enregistreur.ouvert());
        EXPECT_FALSE(enregistreur.note(1, 4, 1));
        EXPECT_TRUE(enregistreur.ferme());
    }
    ASSERT_TRUE(enregistreur.ouvre(fichier, 100, 4, 0xCB));
    const std::tuple<std::int64_t, int, int> notes[] = {
        {150, 4, 11}, {160, 12, 11}, {160, 8, 11}, {90, 12, 11}, {9'000'000'170, 128, 1}};
    for (const auto& [instant, donnees, controle] : notes)
        EXPECT_TRUE(enregistreur.note(instant, static_cast<std::uint8_t>(donnees),
                                      static_cast<std::uint8_t>(controle)));
    EXPECT_TRUE(enregistreur.ferme());
    std::ostringstream lu;
    lu << std::ifstream{fichier}.rdbuf();
    std::remove(fichier.c_str());
    EXPECT_EQ(lu.str().substr(lu.str().find("$dumpvars")),
              "$dumpvars\n0!\n0\"\n1#\n0$\n0%\n0&\n0'\n0(\nb1011 )\n$end\n"
              "#60\n1$\n#61\n0#\n#62\n1#\n#9000000070\n0#\n0$\n1(\nb0001 )\n");
}

} // namespace
