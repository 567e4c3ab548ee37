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
        EXPECT_EQ(entier16{c.x}, entier16{c.n}) << c.x;
}

TEST(Entier, WhatDoesNotFitIsFatal) {
    const auto trop = [](auto f) { essais::attend_echec(base::cause::depassement, f); };
    trop([] { entier16{32767.5}; });
    trop([] { entier16{-32769}; });
    trop([] { entier16{entier32{40000}}; });
    trop([] { entier32{2147483647.5}; });
    trop([] { entier32{std::nan("")}; });
    trop([] { entier16{30000} + entier16{2768}; });
    trop([] { entier16{-30000} - entier16{2769}; });
    trop([] { entier16{600} * entier16{55}; });
    trop([] { entier32{65536} * entier32{32768}; });
    trop([] { -entier16{-32768}; });
    trop([] { entier32{-2147483647 - 1} / entier32{-1}; });
    essais::attend_echec(base::cause::division_par_zero, [] { entier16{1} / entier16{0}; });
    essais::attend_echec(base::cause::division_par_zero, [] { entier16{1} % entier16{0}; });
}
