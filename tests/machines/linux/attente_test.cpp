#include "machines/linux/attente_precise.h"
#include "machines/linux/horloge_systeme.h"

#include <csignal>
#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/time.h>
#include <thread>

using namespace plateforme;

namespace {

volatile std::sig_atomic_t signaux = 0;

/// Interrupts whatever sleeps, every 2 ms.
class reveils_intempestifs {
  public:
    reveils_intempestifs() {
        struct sigaction action {};
        action.sa_handler = [](int) { signaux = signaux + 1; };
        sigaction(SIGALRM, &action, &avant_);
        const itimerval periode{{0, 2000}, {0, 2000}};
        setitimer(ITIMER_REAL, &periode, nullptr);
    }
    ~reveils_intempestifs() {
        const itimerval arret{};
        setitimer(ITIMER_REAL, &arret, nullptr);
        sigaction(SIGALRM, &avant_, nullptr);
    }

  private:
    struct sigaction avant_ {};
};

std::int64_t duree(attente_precise& attente, std::int64_t ns) {
    const auto avant = horloge_monotone();
    attente.attend(ns);
    return horloge_monotone() - avant;
}

std::int64_t temps_processeur() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return std::int64_t{t.tv_sec} * 1'000'000'000 + t.tv_nsec;
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

TEST(Attente, ASignalNeitherShortensItNorTurnsItIntoASpin) {
    attente_precise attente;
    const reveils_intempestifs signal;
    signaux = 0;
    const auto avant = temps_processeur();
    for (int i = 0; i < 3; ++i)
        EXPECT_GE(duree(attente, 20'000'000), 20'000'000);
    EXPECT_GT(signaux, 0);
    // 60 ms waited; a sleep given up at its first signal would burn more than 50 of them.
    EXPECT_LT(temps_processeur() - avant, 30'000'000);
}

TEST(Attente, WorstLatenessStandsUntilForgotten) {
    attente_precise attente;
    for (const std::int64_t ns : {std::int64_t{0}, std::int64_t{-1}, INT64_MIN})
        attente.attend(ns);
    EXPECT_EQ(attente.pire_retard(), 0) << "no wait, no count";
    std::int64_t pire_vu = 0;
    std::int64_t avant = 0;
    for (int i = 0; i < 300; ++i) {
        pire_vu = std::max(pire_vu, duree(attente, 3'000) - 3'000);
        ASSERT_GE(attente.pire_retard(), avant);
        avant = attente.pire_retard();
    }
    // What it says of itself lies within what is seen from outside.
    EXPECT_GT(attente.pire_retard(), 0);
    EXPECT_LE(attente.pire_retard(), pire_vu);
    attente.oublie_retard();
    EXPECT_EQ(attente.pire_retard(), 0);
}

TEST(Attente, AsksForATimerSlackOfOneNanosecond) {
    std::thread{[] {
        prctl(PR_SET_TIMERSLACK, 50'000UL, 0UL, 0UL, 0UL);
        const attente_precise attente;
        EXPECT_EQ(prctl(PR_GET_TIMERSLACK, 0UL, 0UL, 0UL, 0UL), 1);
    }}.join();
}

TEST(Attente, AWideMarginComesDownUnderWaitsItKeepsFromSleeping) {
    attente_precise attente;
    const auto au_debut = attente.marge();
    for (int i = 0; i < 50; ++i)
        attente.attend(marge_de_reveil::minimum / 2);
    EXPECT_EQ(attente.marge(), au_debut) << "the shortest waits never sleep and have no say";
    for (int i = 0; i < 50; ++i)
        attente.attend(50'000);
    EXPECT_LT(attente.marge(), au_debut * 97 / 100); // (1023 / 1024) ^ 50 = 0.952
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

TEST(HorlogeSysteme, ShowsLocalTimeAndCountsUniversalTime) {
    setenv("TZ", "HORS-3:30", 1); // three and a half hours ahead
    const std::time_t avant = std::time(nullptr);
    const auto i = horloge_systeme{}.maintenant();
    const auto universel = temps_universel();
    const std::time_t apres = std::time(nullptr);
    std::tm local{i.seconde, i.minute, i.heure, i.jour, i.mois - 1, i.annee - 1900, 0, 0, 0, 0, nullptr};
    const auto vue = timegm(&local) - 12'600;
    EXPECT_TRUE(avant <= vue && vue <= apres);
    EXPECT_TRUE(avant <= universel / 1000 && universel / 1000 <= apres);
    EXPECT_TRUE(i.milliseconde >= 0 && i.milliseconde < 1000);
}
