#include "machines/linux/attente_precise.h"

#include <gtest/gtest.h>

using namespace plateforme;

namespace {

std::int64_t duree(attente_precise& attente, std::int64_t ns) {
    const auto avant = horloge_monotone();
    attente.attend(ns);
    return horloge_monotone() - avant;
}

} // namespace

TEST(Attente, NeverShorterThanNominal) {
    attente_precise attente;
    const struct {
        std::int64_t ns;
        int fois;
    } cas[] = {{1, 200},        {30, 200},      {999, 200},      {10'000, 200},   {20'001, 100},
               {99'999, 100},   {100'001, 100}, {200'001, 100},  {1'000'000, 50}, {10'000'000, 5},
               {1'000'000, 20}, {100'001, 50},  {150'000'000, 1}};
    for (const auto& c : cas)
        for (int i = 0; i < c.fois; ++i)
            ASSERT_GE(duree(attente, c.ns), c.ns);
}

TEST(Marge, FollowsTheLatenessWithinItsBounds) {
    const struct {
        const char* nom;
        std::int64_t retard;
        int reveils;
        std::int64_t au_moins, au_plus;
    } cas[] = {
        {"wake-ups in time: down to the minimum", 0, 3000, 20'000, 20'000},
        {"down slowly: after ten, hardly moved", 0, 10, 98'000, 99'999},
        {"80 us are within the margin at start, and it comes down onto them", 80'000, 3000, 81'000, 83'000},
        {"150 us: covered but for a microsecond within ten wake-ups", 150'000, 10, 151'000, 152'000},
        {"199 us: at the maximum, never above", 199'000, 1000, 199'000, 200'000},
        {"one lost time slice: hardly moved", 5'000'000, 1, 100'001, 102'000},
        {"nothing but lost slices: towards the maximum", 5'000'000, 1000, 199'000, 200'000},
    };
    for (const auto& c : cas) {
        marge_de_reveil marge;
        ASSERT_EQ(marge.valeur(), 100'000);
        for (int i = 0; i < c.reveils; ++i) {
            marge.apprend(c.retard);
            ASSERT_GE(marge.valeur(), marge_de_reveil::minimum) << c.nom;
            ASSERT_LE(marge.valeur(), marge_de_reveil::maximum) << c.nom;
        }
        EXPECT_GE(marge.valeur(), c.au_moins) << c.nom;
        EXPECT_LE(marge.valeur(), c.au_plus) << c.nom;
    }
}
