#include "drive/etat_moteur.h"
#include "echec.h"
#include "machine_essai.h"
#include "shell/frmcoord_champs.h"
#include "shell/frminterface.h"
#include "shell/frminterface_champs.h"
#include "sky/heure.h"
#include "sky/position.h"

namespace {

using base::cause;
using essais::attend_echec;
using essais::machine_essai;

plateforme::instant le(int mois, int jour, int heure, int minute = 30, int seconde = 15) {
    return {.annee = 2001, .mois = mois, .jour = jour, .heure = heure, .minute = minute, .seconde = seconde};
}

// Sidereal times at 0 h of the day before (2001 August 14 and February 9), from ERFA's gmst82.
TEST(frmcoord, chargement) {
    const struct {
        plateforme::instant t;
        const char* txth;
        int jour, decalage;
        const char* txtessai; // "" where the load doesn't read the almanac
    } cas[] = {{le(8, 15, 22), "20", 14, 2, ""},     {le(8, 15, 0), "22", 13, 2, "77396"},
               {le(8, 15, 1), "23", 13, 2, "77396"}, {le(8, 15, 2), "0", 14, 2, ""},
               {le(8, 1, 0), "22", -1, 2, "0"},      {le(2, 10, 0), "22", 9, 1, ""},
               {le(2, 10, 1), "23", 8, 1, "33397"},  {le(2, 10, 15), "13", 9, 1, ""},
               {le(4, 30, 12), "10", 29, 1, ""},     {le(5, 1, 12), "10", 0, 2, ""},
               {le(10, 31, 12), "10", 30, 2, ""},    {le(11, 1, 12), "10", 0, 1, ""}};
    for (const auto& c : cas) {
        machine_essai m;
        m.horloge.t = c.t;
        frmcoord::fiche.charge();
        const auto ou =
            std::to_string(c.t.mois) + "/" + std::to_string(c.t.jour) + " " + std::to_string(c.t.heure);
        EXPECT_EQ(frmcoord::txth.lit(), c.txth) << ou;
        EXPECT_EQ(frmcoord::txtmin.lit() + " " + frmcoord::txts.lit(), "30 15") << ou;
        EXPECT_EQ(frmcoord::cbjour.position(), c.jour) << ou;
        EXPECT_EQ(frmcoord::cbmois.position(), c.t.mois - 1) << ou;
        EXPECT_EQ(frmcoord::cbannee.position(), 1) << ou;
        EXPECT_EQ(general::decalageheure, c.decalage) << ou;
        EXPECT_EQ(frmcoord::optété.coche(), c.decalage == 2) << ou;
        EXPECT_EQ(frmcoord::opthivers.coche(), c.decalage == 1) << ou;
        EXPECT_EQ(frmcoord::txtessai.lit(), c.txtessai) << ou;
        EXPECT_EQ(frmcoord::txtcoordalt3.lit(), "?") << ou;
        EXPECT_TRUE(frminterface::heuretimer.marche()) << ou;
        EXPECT_EQ(frminterface::coordvisible, true) << ou;
        EXPECT_FALSE(frmcoord::fiche.est_visible()) << "an access loads and does not show";
    }
}

TEST(frmcoord, annees_de_la_liste) {
    machine_essai m;
    for (const int annee : {1999, 2010}) {
        m.horloge.t = {.annee = annee, .mois = 6, .jour = 1, .heure = 12};
        attend_echec(cause::propriete, [] { frmcoord::fiche.charge(); });
        frmcoord::fiche.decharge();
    }
    m.horloge.t.annee = 2009;
    frmcoord::fiche.charge();
    EXPECT_EQ(frmcoord::cbannee.position(), 9);
}

TEST(frmcoord, tic_et_minuit_universel) {
    machine_essai m;
    m.horloge.t = le(8, 15, 0);
    frmcoord::fiche.montre();
    const auto tic = [&m](const plateforme::instant& t) {
        m.horloge.t = t;
        ASSERT_TRUE(m.boucle.tic(frminterface::heuretimer));
    };
    tic(le(8, 15, 1, 59, 59));
    EXPECT_EQ(frmcoord::txth.lit(), "23");
    EXPECT_EQ(frmcoord::cbjour.position(), 13) << "the universal day before";
    EXPECT_EQ(frmcoord::txtessai.lit(), "77396");
    tic(le(8, 15, 2, 0, 0));
    EXPECT_EQ(frmcoord::cbjour.position(), 14);
    EXPECT_EQ(frmcoord::txtessai.lit(), "77633");
    frmcoord::cbjour.choisit(3);
    tic(le(8, 15, 2, 0, 1));
    EXPECT_EQ(frmcoord::cbjour.position(), 3) << "a day picked by the user stays";
    EXPECT_EQ(frmcoord::txtessai.lit(), "77633");
    tic(le(8, 16, 2, 0, 0));
    EXPECT_EQ(frmcoord::cbjour.position(), 15) << "until universal midnight";
    frmcoord::opthivers.clic();
    tic(le(8, 16, 3));
    EXPECT_EQ(frmcoord::txth.lit(), "2");
    EXPECT_EQ(frmcoord::cbjour.position(), 15);
    EXPECT_FALSE(frmcoord::optété.coche());
    // A winter start in hour 0 shows a summer hour; the first tick puts it right.
    frmcoord::fiche.decharge();
    m.horloge.t = le(2, 10, 0);
    frmcoord::fiche.charge();
    tic(le(2, 10, 0));
    EXPECT_EQ(frmcoord::txth.lit(), "23");
    EXPECT_EQ(frmcoord::cbjour.position(), 8);
}

TEST(frmcoord, pas_comptes) {
    machine_essai m;
    frmcoord::fiche.montre();
    general::posaz = 0.1 + 0.2;
    general::posalt = 3599.6;
    general::angpasaz = 22.5;
    general::angpasalt = 10;
    ASSERT_TRUE(m.boucle.tic(frminterface::heuretimer));
    EXPECT_EQ(general::posaz, 0.1 + 0.2) << "bit for bit";
    EXPECT_EQ(frmcoord::txtaztos.lit(), "0.30000000000000004");
    EXPECT_EQ(frmcoord::txtcoordalt1.lit() + " " + frmcoord::txtcoordalt2.lit() + " " +
                  frmcoord::txtcoordalt3.lit(),
              "0 59 60");
    general::posaz = 0;
    cmd_moteur::compteaz = 10;
    cmd_moteur::comptealt = -360;
    ASSERT_TRUE(m.boucle.tic(frminterface::heuretimer));
    EXPECT_EQ(general::posaz, 225);
    EXPECT_EQ(frmcoord::txtcoordaz2.lit() + " " + frmcoord::txtcoordaz3.lit(), "3 45");
    EXPECT_NEAR(general::posalt, -0.4, 1e-9);
    EXPECT_EQ(frmcoord::txtcoordalt1.lit(), "-1");
    EXPECT_EQ(cmd_moteur::compteaz, 0);
    EXPECT_EQ(cmd_moteur::comptealt, 0);
    // A load forgets steps not yet folded, and leaves the position.
    cmd_moteur::compteaz = cmd_moteur::comptealt = 10;
    frmcoord::fiche.decharge();
    frmcoord::fiche.charge();
    EXPECT_EQ(cmd_moteur::compteaz, 0);
    EXPECT_EQ(cmd_moteur::comptealt, 0);
    EXPECT_EQ(general::posaz, 225);
    // So does a tick's first access, which then goes by the season that the load chose.
    m.horloge.t = le(2, 10, 15);
    cmd_moteur::compteaz = 10;
    frmcoord::fiche.decharge();
    ASSERT_TRUE(m.boucle.tic(frminterface::heuretimer));
    EXPECT_EQ(frmcoord::txth.lit(), "14");
    EXPECT_EQ(frmcoord::txtcoordaz3.lit(), "45") << "the tick goes on after the load";
    EXPECT_EQ(general::posaz, 225);
}

} // namespace
