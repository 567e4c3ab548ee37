// One pass of the alt-azimuth slew by the ways it has to go, and both mounts' ends of ranges.
#include "drive/etat_moteur.h"
#include "drive/position.h"
#include "essai.h"
#include "fields/frmDepl_champs.h"
#include "fields/frmaltazpointage_champs.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "fields/frmequapointage_champs.h"
#include "fields/frminterface_champs.h"
#include "slewing/etat_pointage.h"
#include "slewing/pointealtaz.h"

namespace {

using general::angpasalt;
using general::angpasaz;
using general::posalt;
using general::posaz;

// A site at 48 degrees, a sky that stands still at 4 h sidereal time, steps of 40 and 60 arcseconds; the
// target, 6 h 0, +20 degrees, is in the south-east.
class Altaz : public essais::Essai {
  protected:
    Altaz() {
        programme::demarre();
        frmcoord::fiche.charge();
        frminterface::heuretimer.marche(false);
        for (auto* champ : {&frmcoord::txth, &frmcoord::txtmin, &frmcoord::txts, &frmcoord::txtms,
                            &frmconfig::txtdegre, &frmconfig::txtmin, &frmconfig::txtlatmin})
            champ->ecrit("0");
        frmconfig::txtlatdeg.ecrit("48");
        frmcoord::txtessai.ecrit("14400");
        angpasaz = 40;
        angpasalt = 60;
        cmd_moteur::vitessealtaz.fill(1000);
        frmaltazpointage::fiche.montre();
        pointing::ciblehr = 6;
        pointing::cibledeg = 20;
        pointing::calchoriz({.heures = 6, .minutes = 0, .degres = 20, .minutesarc = 0, .positive = true});
        az = general::azdeg * 3600;
        alt = general::hautdeg * 3600;
    }

    // A pass of a telescope so many steps short of the target.
    void passe(double pas_az, double pas_alt) {
        posaz = az - pas_az * angpasaz;
        posalt = alt - pas_alt * angpasalt;
        monture.zero();
        pointing::pointealtaz();
    }

    double az = 0;
    double alt = 0;
};

// Pulses, and the position believed, by the ways in steps. A count of 0 leaves its bar at 0, which then says
// that the axis has not arrived.
TEST_F(Altaz, une_passe) {
    struct cas {
        double pas_az, pas_alt;
        std::uint64_t az, alt;
        double reste_az, reste_alt; // target less position believed, in steps
    };
    const cas tous[] = {
        {5.5, 7.5, 11, 15, 0, 0},
        {-5.5, -7.5, 13, 17, 0, 0},
        {0.4, 7.5, 1, 15, 0.4 - 7.5, 7.5},     // azimuth takes the altitude loop's pulses
        {-0.4, -7.5, 3, 17, 0, 0},             // 2 counts back: the bar was written
        {5.5, 0.4, 11, 1, 0, 0.4 - 0.5},       // altitude goes on by its own one pulse
        {0.4, 0.4, 1, 1, 0.4 - 0.5, 0.4},      //
        {-700.5, 900.25, 1403, 1801, 0, 0},    //
        {20000.5, 0.5, 40001, 1, 0, 0.5 - 0.5} // over 200 degrees: never the shorter way
    };
    for (const auto& c : tous) {
        passe(c.pas_az, c.pas_alt);
        EXPECT_EQ(monture.compte(), (banc::impulsions{c.az, 0, c.alt, 0})) << c.pas_az << " " << c.pas_alt;
        EXPECT_NEAR((az - posaz) / angpasaz, c.reste_az, 1e-6) << c.pas_az << " " << c.pas_alt;
        EXPECT_NEAR((alt - posalt) / angpasalt, c.reste_alt, 1e-6) << c.pas_az << " " << c.pas_alt;
        frmDepl::fiche.decharge();
    }
}

// What does not fit 16 bits is fatal before anything moves; a target beyond the sky is none of its business.
TEST_F(Altaz, entree_equatoriale) {
    auto& choix = frmequapointage::choix;
    frmequapointage::lbEtoiles.double_clic(7);
    choix.lbCatalogue.choisit(0);
    monture.zero();
    const auto entre = [&](std::array<const char*, 4> e) {
        choix.tAD(0).ecrit(e[0]);
        choix.tAD(1).ecrit(e[1]);
        choix.tDec(0).ecrit(e[2]);
        choix.tDec(1).ecrit(e[3]);
        choix.bOK.clic();
    };
    for (const auto& e : {std::array{"55", "0", "0", "0"}, std::array{"54", "37", "0", "0"},
                          std::array{"-55", "0", "0", "0"}, std::array{"0", "0", "547", "0"},
                          std::array{"0", "0", "0", "32768"}, std::array{"1e300", "0", "0", "0"}})
        essais::attend_echec(base::cause::depassement, [&] { entre(e); });
    EXPECT_EQ(monture.compte(), banc::impulsions{});
    // Only right ascension has its half steps a turn rounded: 2 x 24.2 = 48.4 counts as 48.
    fichier("config_equa.ini", "24.2\r\n24.2\r\n100\r\n100\r\n");
    pointing::reticulead = pointing::reticuledec = 0;
    entre({"10", "0", "80", "0"});
    EXPECT_EQ(monture.compte().az8, 2001u);       // 6000 / (14400 / 4800) = 2000 units
    EXPECT_EQ(monture.compte().alt0, 1075u + 1u); // 48000 / (216000 / 4840) = 1075.6
    entre({"-1", "-0.5", "546", "32767"});
    EXPECT_EQ(pointing::ciblead, -610);
    EXPECT_EQ(pointing::cibledec, 546 * 600 + 327670);
}

} // namespace
