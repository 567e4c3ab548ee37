#include "drive/etat_moteur.h"
#include "echec.h"
#include "machine_essai.h"
#include "settings/etat_suivi.h"
#include "settings/frmconfig_champs.h"
#include "shell/frmcoord_champs.h"
#include "sky/position.h"
#include "sky/temps_sideral.h"
#include "tracking/affichage_suivi.h"
#include "tracking/frmaltazsuivi_champs.h"
#include "tracking/tic_suivi.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using base::cause;
using essais::attend_echec;
using essais::machine_essai;
using namespace tracking;
using frmaltazsuivi::timcompteur;

// Tracking with a clock that stands still: the object stays, and a tick moves by what is taken off the place
// of the tick before.
struct suivi_arrete : machine_essai {
    suivi_arrete() {
        frmaltazsuivi::fiche.charge();
        frmconfig::txtsign.ecrit("+");
        frmconfig::txtdec_deg.ecrit("20");
        frmconfig::Txtad_h.ecrit("21");
        frmaltazsuivi::txtincrement.ecrit("0");
        objetchoisi = true;
        frmaltazsuivi::cmdcalcul.clic();
        general::angpasaz = general::angpasalt = 10;
        cmd_moteur::azmoins = 8;
        cmd_moteur::altmoins = 2;
        port.ecritures.clear();
    }
    void tic(double ecartaz, double ecartalt) {
        prive.azold = general::posaz - ecartaz;
        prive.altold = general::posalt - ecartalt;
        port.ecritures.clear();
        boucle.tic(timcompteur);
    }
    long leves(int valeur) {
        return std::count(port.ecritures.begin(), port.ecritures.end(), std::pair{888, valeur});
    }
};

TEST(tic_suivi, reports) {
    const struct {
        const char* quoi;
        std::vector<double> ecarts; // of successive ticks, arcseconds
        std::vector<int> pas;
        double somme; // at their end
    } cas[] = {
        {"0.4 three times", {14, 14, 14}, {1, 1, 2}, 0.2},
        {"ties to the even number", {25, 35}, {2, 4}, 0},
        {"a half twice", {5, 5}, {0, 1}, 0},
        {"a half too much twice", {15, 15}, {2, 1}, 0},
        {"-0.4 three times", {16, 16, 16, 16}, {2, 2, 1, 2}, -0.6},
        {"an exact sum of 1", {12.5, 12.5, 12.5, 12.5, 10}, {1, 1, 1, 2, 1}, 0},
        {"just below 1", {12.5, 12.5, 12.5, 12.25}, {1, 1, 1, 1}, 0.975},
        {"counts know no sense", {14, -14, 14}, {1, 1, 2}, 0.2},
        {"nothing to do", {0, 0}, {0, 0}, 0},
    };
    for (const auto& c : cas) {
        suivi_arrete m;
        for (std::size_t i = 0; i < c.ecarts.size(); ++i) {
            m.tic(c.ecarts[i], -c.ecarts[i]);
            EXPECT_EQ(cmd_moteur::nbpasaz, c.pas[i]) << c.quoi << ", tick " << i;
            EXPECT_EQ(cmd_moteur::nbpasalt, c.pas[i]) << c.quoi << ", tick " << i;
            const bool plus = c.ecarts[i] > 0;
            EXPECT_EQ(m.leves(plus ? 4 : 12), c.pas[i]) << c.quoi;
            EXPECT_EQ(m.leves(plus ? 3 : 1), c.pas[i]) << c.quoi;
            EXPECT_EQ(m.port.ecritures.size(), 4U * static_cast<unsigned>(c.pas[i])) << c.quoi;
        }
        EXPECT_NEAR(sommeaz, c.somme, 1e-9) << c.quoi;
        EXPECT_NEAR(sommealt, c.somme, 1e-9) << c.quoi;
    }
}

// Only one step a tick is paid, however much is owed; below a whole one none.
TEST(tic_suivi, un_pas_a_la_fois) {
    const struct {
        double somme;
        int pas;
        double reste;
    } cas[] = {{2.5, 2, 1.5}, {-2.5, 0, -1.5}, {1, 2, 0}, {-1, 0, 0}, {0.999, 1, 0.999}, {-0.999, 1, -0.999}};
    for (const auto& c : cas) {
        suivi_arrete m;
        sommeaz = sommealt = c.somme;
        m.tic(10, 10);
        EXPECT_EQ(cmd_moteur::nbpasaz, c.pas) << c.somme;
        EXPECT_EQ(cmd_moteur::nbpasalt, c.pas) << c.somme;
        EXPECT_EQ(sommeaz, c.reste);
        EXPECT_EQ(sommealt, c.reste);
    }
}

// A sum that takes the count below 0 sends nothing.
TEST(tic_suivi, compte_negatif) {
    suivi_arrete m;
    sommeaz = sommealt = -1;
    m.tic(0, 0);
    EXPECT_EQ(cmd_moteur::nbpasaz, -1);
    EXPECT_EQ(cmd_moteur::nbpasalt, -1);
    EXPECT_TRUE(m.port.ecritures.empty());
}

TEST(tic_suivi, passage_par_le_nord) {
    const struct {
        double ecart;
        int pas, plus;
    } cas[] = {{-1295980, 1, 1},   {1295980, 1, 0},    {360000, 9000, 1},
               {-360000, 9000, 0}, {360040, 23399, 0}, {-360040, 23399, 1}};
    for (const auto& c : cas) {
        suivi_arrete m;
        general::angpasaz = 40;
        sommeaz = c.pas == 1 ? 0.5 : 0; // 20 arcseconds are half a step, and the sum makes it one
        m.tic(c.ecart, 0);
        EXPECT_EQ(cmd_moteur::nbpasaz, c.pas) << c.ecart;
        EXPECT_EQ(m.leves(c.plus ? 4 : 12), c.pas) << c.ecart;
        EXPECT_EQ(general::ecartaz > 0, c.plus == 1);
    }
}

TEST(tic_suivi, limites_de_16_bits) {
    {
        suivi_arrete m;
        m.tic(327670, 327670);
        EXPECT_EQ(m.leves(4), 32767);
        EXPECT_EQ(m.leves(1), 32767);
    }
    {
        suivi_arrete m;
        sommeaz = 1;
        attend_echec(cause::depassement, [&] { m.tic(327670, 0); });
        EXPECT_TRUE(m.port.ecritures.empty());
    }
    {
        suivi_arrete m;
        attend_echec(cause::depassement, [&] { m.tic(327680, 0); });
        EXPECT_TRUE(m.port.ecritures.empty());
    }
    {
        suivi_arrete m;
        attend_echec(cause::depassement, [&] { m.tic(20, 327680); });
        EXPECT_EQ(m.leves(4), 2) << "the other axis had gone before";
        EXPECT_EQ(m.leves(1) + m.leves(3), 0);
    }
    {
        suivi_arrete m;
        general::angpasalt = 0;
        attend_echec(cause::division_par_zero, [&] { m.tic(10, 10); });
    }
}

// The fields act at the next tick; the interval is the number in 32 bits, the increment in 16.
TEST(tic_suivi, champs_lus_a_chaque_tic) {
    suivi_arrete m;
    frmaltazsuivi::txtincrement.ecrit("250.5");
    frmaltazsuivi::txttempoa.ecrit("1e3");
    frmaltazsuivi::txttempoh.ecrit("2.5 fois");
    m.tic(0, 0);
    EXPECT_EQ(timcompteur.intervalle(), 250);
    EXPECT_EQ(m.boucle.armes[&timcompteur], 250);
    EXPECT_EQ(cmd_moteur::tempoaz, 1000);
    EXPECT_EQ(cmd_moteur::tempoalt, 2);
    frmaltazsuivi::txtincrement.ecrit("32767.5");
    attend_echec(cause::depassement, [&] { m.tic(0, 0); });
}

TEST(tic_suivi, affichage) {
    const struct {
        double az, alt;
        const char *ah, *amin, *hh, *hmin, *az3, *alt3;
    } cas[] = {{648000, 108030, "180", "0", "30", "0.5", "180 0 0", "30 0 30"},
               {3599.6, 59.6, "0", "59.99333333333333", "0", "0.9933333333333334", "0 59 60", "0 0 60"},
               // Above 0 and below: -5400 is -2 degrees and 30 minutes up, which shows as 60 less 30.
               {1295999, -5400, "359", "59.983333333333334", "-2", "30", "359 59 59", "-2 30 0"},
               {0, 0, "0", "0", "0", "60", "0 0 0", "0 60 0"},
               {-3600, -90.5, "-1", "0", "-1", "1.508333333333333", "-1 0 0", "-1 1 30"}};
    machine_essai m;
    frmaltazsuivi::fiche.charge();
    for (const auto& c : cas) {
        general::posaz = c.az;
        general::posalt = c.alt;
        affiche();
        using namespace frmaltazsuivi;
        EXPECT_EQ(txtah.lit(), c.ah);
        EXPECT_NEAR(txtamin.nombre(), base::nombre(c.amin), 1e-12);
        EXPECT_EQ(txthh.lit(), c.hh);
        EXPECT_NEAR(txthmin.nombre(), base::nombre(c.hmin), 1e-12);
        using namespace frmcoord;
        EXPECT_EQ(txtcoordaz1.lit() + " " + txtcoordaz2.lit() + " " + txtcoordaz3.lit(), c.az3);
        EXPECT_EQ(txtcoordalt1.lit() + " " + txtcoordalt2.lit() + " " + txtcoordalt3.lit(), c.alt3);
    }
    for (const auto& [t, h] :
         {std::pair{45296, "12 34 56"}, {0, "0 0 0"}, {86399, "23 59 59"}, {-1, "-1 59 59"}}) {
        general::tslsec = t;
        affiche();
        using namespace frmaltazsuivi;
        EXPECT_EQ(txth2.lit() + " " + txtmin2.lit() + " " + txts2.lit(), h);
    }
}

} // namespace
