#include "drive/position.h"
#include "essai.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "sky/affichage.h"
#include "sky/almanach.h"
#include "sky/conversion.h"

#include <cmath>
#include <fstream>
#include <sstream>

namespace {

using essais::machine;

// Site and time of an instant at which the local sidereal time is so many seconds.
void pose(const std::string& latitude, int tsl) {
    for (auto* champ : {&frmcoord::txth, &frmcoord::txtmin, &frmcoord::txts, &frmcoord::txtms,
                        &frmconfig::txtdegre, &frmconfig::txtmin, &frmconfig::txtlatmin})
        champ->ecrit("0");
    frmconfig::txtlatdeg.ecrit(latitude);
    frmcoord::txtessai.ecrit(base::entier32{tsl});
}

// Angle on the sky between the position and a place in degrees, arcseconds.
double ecart(double az, double alt) {
    const double daz = std::remainder(general::posaz - az * 3600, 1296000) * std::cos(alt * M_PI / 180);
    return std::hypot(daz, general::posalt - alt * 3600);
}

std::vector<std::vector<std::string>> references() {
    std::ifstream f{std::string{VELMORIA_ESSAIS} + "/sky/references_horizontales.csv"};
    std::vector<std::vector<std::string>> toutes;
    std::string ligne;
    std::getline(f, ligne); // the source
    std::getline(f, ligne); // the columns
    while (std::getline(f, ligne)) {
        std::istringstream l{ligne};
        auto& champs = toutes.emplace_back();
        for (std::string c; std::getline(l, c, ',');)
            champs.push_back(c);
    }
    return toutes;
}

TEST(conversion, table_de_reference) {
    const machine m;
    const auto toutes = references();
    ASSERT_GT(toutes.size(), 100u);
    frmcoord::fiche.charge();
    for (const auto& r : toutes) {
        ASSERT_EQ(r.size(), 21u);
        frmcoord::cbannee.position(std::stoi(r[0]) - 2000);
        frmcoord::cbmois.position(std::stoi(r[1]) - 1);
        frmcoord::cbjour.position(std::stoi(r[2]) - 1);
        shell::champ_texte* const champs[] = {
            &frmcoord::txth,       &frmcoord::txtmin,     &frmcoord::txts,       &frmcoord::txtms,
            &frmconfig::txtdegre,  &frmconfig::txtmin,    &frmconfig::txtlatdeg, &frmconfig::txtlatmin,
            &frmconfig::Txtad_h,   &frmconfig::txtad_min, &frmconfig::txtsign,   &frmconfig::txtdec_deg,
            &frmconfig::txtdec_min};
        for (std::size_t i = 0; i < std::size(champs); ++i)
            champs[i]->ecrit(r[3 + i]);
        general::ecartaz = general::ecartalt = 7;
        general::lit_almanach();
        EXPECT_EQ(frmcoord::txtessai.lit(), r[16]);
        general::calcul_altaz();
        EXPECT_LT(ecart(std::stod(r[17]), std::stod(r[18])), 2) << testing::PrintToString(r);
        EXPECT_LT(ecart(std::stod(r[19]), std::stod(r[20])), 8) << testing::PrintToString(r);
        EXPECT_EQ(general::ecartaz, 0);
        EXPECT_EQ(general::ecartalt, 0);
    }
}

// The place computed from a position and shown on the panels is at that position at the same instant.
TEST(conversion, aller_et_retour) {
    const machine m;
    frmcoord::fiche.charge();
    int essayees = 0;
    for (const char* latitude : {"48.16", "5", "-33.5"})
        for (double az = 3.7; az < 360; az += 8.9)
            for (double alt = -72; alt < 85; alt += 12.7) {
                pose(latitude, 0);
                frmcoord::txth.ecrit("20");
                general::posaz = az * 3600;
                general::posalt = alt * 3600;
                general::calcul_equa();
                general::affiche_equa();
                general::posaz = general::posalt = 0;
                general::calcul_altaz();
                EXPECT_LT(ecart(az, alt), 0.01) << latitude << " az " << az << " alt " << alt;
                ++essayees;
            }
    EXPECT_GT(essayees, 1000);
}

// The exact south is taken for the north, and only that one value.
TEST(conversion, plein_sud) {
    const machine m;
    frmcoord::fiche.charge();
    pose("48", 0);
    general::posalt = 108000;
    general::posaz = 648000;
    general::calcul_equa();
    EXPECT_NEAR(general::decdeg, 90 - (48 - 30), 1e-6);
    general::posaz = 648001;
    general::calcul_equa();
    EXPECT_NEAR(general::decdeg, 30 + 48 - 90, 1e-6);
}

} // namespace
