#include "bench/monture.h"
#include "bench/port_simule.h"

#include <gtest/gtest.h>

namespace {

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

void avance(monture& m, int octet, int n) {
    for (int i = 0; i < n; ++i) {
        m.recoit(0);
        m.recoit(static_cast<std::uint8_t>(octet));
    }
}

TEST(Monture, AnglesFollowTheEdgesFromWhereItWasSet) {
    monture m;
    avance(m, 4, 10);
    avance(m, 12, 3);
    avance(m, 3, 5);
    EXPECT_DOUBLE_EQ(m.position(0.5, 2.0).az, 3.5);
    EXPECT_DOUBLE_EQ(m.position(0.5, 2.0).alt, -10.0);

    m.pose(3600.0, 162000.0);
    EXPECT_EQ(m.position(0.5, 2.0).az, 3600.0);
    EXPECT_EQ(m.position(7.0, 9.0).alt, 162000.0); // steps before do not come back with another unit
    avance(m, 12, 4);
    avance(m, 1, 1);
    EXPECT_DOUBLE_EQ(m.position(0.5, 2.0).az, 3598.0);
    EXPECT_DOUBLE_EQ(m.position(0.5, 2.0).alt, 162002.0);
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
    attend_cadence(1.0, 70, 0.08);
    attend_cadence(15.04, 100, 0.06);
    attend_cadence(300.0, 50, 0.02);
    attend_cadence(250'000.0, 50, 1e-4);
    attend_cadence(250'000.0, 1, 1e-4);
}

} // namespace
