#include "echec.h"
#include "machine_essai.h"
#include "shell/frmcoord_champs.h"
#include "tracking/horloge_suivi.h"

#include <gtest/gtest.h>

namespace {

using base::cause;
using essais::attend_echec;
using essais::machine_essai;
using namespace frmcoord;

std::string lit_heure() { return txth.lit() + ":" + txtmin.lit() + ":" + txts.lit() + "." + txtms.lit(); }

void ecrit_heure(double h, double n, double s, double m) {
    txth.ecrit(h);
    txtmin.ecrit(n);
    txts.ecrit(s);
    txtms.ecrit(m);
}

// August 10th, universal time; the almanac's rows of the 10th and 11th are 21 h 14 min 11 s and 21 h 18 min 7
// s.
constexpr int le_10 = 9;

TEST(horloge_suivi, les_quatre_cas) {
    const struct {
        int increment;
        double h, n, s, m;
        const char* attendue;
        int jour; // position in the list
    } cas[] = {
        // A: the second is below 59.
        {1000, 10, 20, 30, 0, "10:20:31.0", le_10},
        {100, 10, 20, 30, 800, "10:20:30.900", le_10},
        {100, 10, 20, 30, 900, "10:20:31.0", le_10},
        {2000, 10, 20, 57, 0, "10:20:59.0", le_10},
        {2000, 10, 20, 58, 0, "10:21:0.0", le_10},
        {3000, 10, 59, 58, 0, "11:0:1.0", le_10},
        {2000, 23, 59, 58, 0, "0:0:0.0", le_10},
        {1500, 10, 20, 30, 600, "10:20:31.1100", le_10},
        {1500, 10, 20, 31, 1100, "10:20:32.1600", le_10},
        {32767, 10, 20, 58, 0, "10:21:30.767", le_10},
        // B: 59 s, before the last minute.
        {1000, 10, 20, 59, 0, "10:21:0.0", le_10},
        {2000, 23, 58, 59, 0, "23:59:1.0", le_10},
        {100, 10, 20, 59, 899, "10:20:59.999", le_10},
        {250, 10, 20, 59, 750, "10:21:0.0", le_10},
        // C: 59 min 59 s, before the last hour.
        {1000, 22, 59, 59, 0, "23:0:0.0", le_10},
        {2500, 10, 59, 59, 0, "11:0:1.500", le_10},
        // D: the day rolls, and the milliseconds stay.
        {1000, 23, 59, 59, 0, "0:0:0.0", le_10 + 1},
        {2500, 23, 59, 59, 300, "0:0:1.300", le_10 + 1},
        {100, 23, 59, 59, 899, "23:59:59.999", le_10},
        {100, 23, 59, 59, 900, "0:0:0.900", le_10 + 1},
        {1000, 24, 10, 20, 0, "0:0:-39.0", le_10 + 1},
        {1000, 10, 10, 75, 0, "0:0:16.0", le_10 + 1},
        // No increment: one second a carry, which never comes; a negative one goes back without a carry.
        {0, 10, 20, 30, 0, "10:20:30.0", le_10},
        {-500, 10, 20, 30, 0, "10:20:30.-500", le_10},
    };
    machine_essai m;
    fiche.charge();
    for (const auto& c : cas) {
        cbjour.position(le_10);
        txtessai.ecrit("?");
        ecrit_heure(c.h, c.n, c.s, c.m);
        tracking::incrementms = c.increment;
        tracking::avance_horloge();
        const auto ou = std::to_string(c.increment) + " ms, " + c.attendue;
        EXPECT_EQ(lit_heure(), c.attendue) << ou;
        EXPECT_EQ(cbjour.position(), c.jour) << ou;
        EXPECT_EQ(txtessai.lit(), c.jour == le_10 ? "?" : "76687") << ou;
    }
}

TEST(horloge_suivi, pas_de_32_du_mois) {
    machine_essai m;
    fiche.charge();
    cbjour.position(30);
    ecrit_heure(23, 59, 59, 0);
    tracking::incrementms = 1000;
    attend_echec(cause::propriete, tracking::avance_horloge);
}

TEST(horloge_suivi, recalage) {
    machine_essai m;
    fiche.charge(); // 22 h of August 15th, summer
    m.horloge.t.minute = 34;
    m.horloge.t.seconde = 56;
    const struct {
        int increment;
        const char *ms, *attendue;
    } cas[] = {{1000, "0", "20:34:56.0"},    {1000, "400", "20:34:56.400"}, {999, "0", "20:34:56.0"},
               {999, "400", "1:2:3.400"},    {100, "", "20:34:56."},        {100, "-100", "1:2:3.-100"},
               {-500, "-500", "1:2:3.-500"}, {100, "abc", "20:34:56.abc"}};
    for (const auto& c : cas) {
        ecrit_heure(1, 2, 3, 0);
        txtms.ecrit(c.ms);
        tracking::incrementms = c.increment;
        tracking::recale_horloge();
        EXPECT_EQ(lit_heure(), c.attendue);
    }
}

// At universal midnight the lists go to the computer's date, with a synchronisation or without.
TEST(horloge_suivi, minuit_remet_la_date) {
    machine_essai m;
    fiche.charge();
    m.horloge.t = {.annee = 2001, .mois = 8, .jour = 11, .heure = 2};
    for (const char* ms : {"0", "300"}) {
        cbjour.position(27);
        cbmois.position(2);
        ecrit_heure(0, 0, 0, 0);
        txtms.ecrit(ms);
        tracking::incrementms = 100;
        tracking::recale_horloge();
        EXPECT_EQ(cbjour.position(), 10);
        EXPECT_EQ(cbmois.position(), 7);
        EXPECT_EQ(cbannee.position(), 1);
        EXPECT_EQ(txtessai.lit(), "76687");
    }
}

} // namespace
