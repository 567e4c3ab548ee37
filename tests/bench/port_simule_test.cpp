#include "bench/port_simule.h"

#include <gtest/gtest.h>

namespace {

using banc::ecriture;

struct banc_port : testing::Test {
    banc::monture monture;
    banc::port_simule port{monture};

    int code(int baseline) { return port.lit(890) + (port.lit(888) - baseline); }
};

struct touche {
    int code, donnees, controle;
};
// The keys of a paddle: control lines, and one data line for the other direction of an axis.
constexpr touche touches[] = {{2, 0, 2},     {3, 0, 3},      {9, 0, 9},     {10, 0, 10}, {11, 0, 11},
                              {13, 0, 13},   {15, 0, 15},    {18, 16, 2},   {19, 16, 3}, {26, 16, 10},
                              {137, 128, 9}, {141, 128, 13}, {143, 128, 15}};

TEST_F(banc_port, APaddleKeyReadsAsItsCodeInPaddleModeOnly) {
    for (const touche& t : touches) {
        SCOPED_TRACE(t.code);
        ASSERT_TRUE(port.presente(t.code));
        port.ecrit(890, 1);
        port.ecrit(888, 5);
        EXPECT_EQ(port.lit(890), 1);
        EXPECT_EQ(port.lit(888), 5);
        port.ecrit(890, 11);
        port.ecrit(888, 0);
        EXPECT_EQ(port.lit(890), t.controle);
        EXPECT_EQ(port.lit(888), t.donnees);
        EXPECT_EQ(code(0), t.code);
        port.ecrit(888, 12); // a paddle step in azimuth, the program's baseline with it
        EXPECT_EQ(port.lit(888), 12 + t.donnees);
        EXPECT_EQ(code(12), t.code);
        ASSERT_TRUE(port.presente(11));
        EXPECT_EQ(code(12), 11);
        EXPECT_EQ(code(0), 23); // a stale baseline shows as a wrong code
    }
    port.ecrit(890, 0);
    EXPECT_EQ(port.lit(890), 0);
}

TEST_F(banc_port, TheControlRegisterHasFourLines) {
    port.ecrit(890, 0xCB);
    EXPECT_EQ(port.lit(890), 11);
    EXPECT_TRUE(port.mode_raquette());
    port.ecrit(890, 0x21);
    EXPECT_EQ(port.lit(890), 1);
    EXPECT_EQ(port.lit(889), 255);
}

TEST_F(banc_port, RemembersTheLastWritesInOrder) {
    EXPECT_TRUE(port.dernieres(5).empty());
    port.ecrit(890, 1);
    port.ecrit(888, 0);
    port.ecrit(888, 0); // changes nothing and is a write all the same
    port.ecrit(889, 7); // no register of ours
    EXPECT_EQ(port.total_ecritures(), 3U);
    EXPECT_EQ(port.dernieres(2), (std::vector<ecriture>{{888, 0}, {888, 0}}));
    EXPECT_EQ(port.dernieres(9), (std::vector<ecriture>{{890, 1}, {888, 0}, {888, 0}}));
    port.oublie_ecritures();
    EXPECT_TRUE(port.dernieres(9).empty());
    port.ecrit(888, 255);
    EXPECT_EQ(port.dernieres(9), (std::vector<ecriture>{{888, 255}}));
    EXPECT_EQ(port.total_ecritures(), 4U);
}

} // namespace
