#include "base/entier.h"
#include "essai.h"

using base::entier16;
using base::entier32;

TEST(Entier, RoundsTiesToTheEvenNumber) {
    const struct {
        double x;
        int n;
    } cas[] = {{2.5, 2},   {3.5, 4},       {-0.5, 0},        {-1.5, -2},
               {-2.5, -2}, {2.4999999, 2}, {32767.4, 32767}, {-32768.5, -32768}};
    for (const auto& c : cas)
        EXPECT_EQ(entier16(c.x, "x"), c.n) << c.x;
}

TEST(Entier, WhatDoesNotFitIsFatalAndNamesItsPlace) {
    const auto trop = [](auto f) {
        const auto detail = essais::attend_echec(base::cause::depassement, f);
        EXPECT_TRUE(detail.starts_with("frmX.txty(2) : ")) << detail;
    };
    const base::lieu ou{"frmX", "txty", 2};
    trop([&] { entier16(32767.5, ou); });
    trop([&] { entier16(-32769, ou); });
    trop([&] { entier16(entier32{40000}, ou); });
    trop([&] { entier32(2147483647.5, ou); });
    trop([&] { entier32(std::nan(""), ou); });
    trop([&] { entier16(entier16{30000} + 2768, ou); });
    trop([&] { entier16(entier16{600} * 55, ou); });
    trop([&] { entier32(entier32{65536} * entier32{32768}, ou); });
    trop([&] { entier32(entier32{-2147483647 - 1} - 1, ou); });
    static_assert(!std::is_constructible_v<entier16, double> && !std::is_constructible_v<entier16, entier32>);
}
