#include "drive/position.h"
#include "essai.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "sky/affichage.h"
#include "sky/almanach.h"
#include "sky/calendrier.h"
#include "sky/conversion.h"
#include "sky/horloge_equivalente.h"
#include "sky/math.h"
#include "sky/temps_sideral.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>

namespace {

using base::cause;
using essais::attend_echec;
using essais::machine;

// Site and time of an instant at which the local sidereal time is so many seconds.
void pose(const std::string& latitude, int tsl) {
    for (auto* champ : {&frmcoord::txth, &frmcoord::txtmin, &frmcoord::txts, &frmcoord::txtms,
                        &frmconfig::txtdegre, &frmconfig::txtmin, &frmconfig::txtlatmin})
        champ->ecrit("0");
    frmconfig::txtlatdeg.ecrit(latitude);
    frmcoord::txtessai.ecrit(base::entier32(tsl, "tsl"));
}

// Angle on the sky between the position and a place in degrees, arcseconds.
double ecart(double az, double alt) {
    const double daz = std::remainder(general::posaz - az * 3600, 1296000) * std::cos(alt * M_PI / 180);
    return std::hypot(daz, general::posalt - alt * 3600);
}

std::vector<std::vector<std::string>> references(const std::string& nom) {
    std::ifstream f{std::filesystem::path{VELMORIA_ESSAIS} / "sky" / nom};
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

// Sets date, universal time, site and object, the first columns of both tables.
void pose(const std::vector<std::string>& r) {
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
    general::lit_almanach();
}

// Where the stars of an evening to come truly stand, and where the equivalent night has the telescope look.
TEST(conversion, etoiles_du_soir) {
    const machine m;
    frmcoord::fiche.charge();
    std::vector<double> ecarts;
    for (auto r : references("etoiles_du_soir.csv")) {
        ASSERT_EQ(r.size(), 19u);
        plateforme::instant soir{std::stoi(r[0]), std::stoi(r[1]), std::stoi(r[2]), std::stoi(r[3]),
                                 std::stoi(r[4])};
        const auto d = plateforme::date_civile(plateforme::instant_equivalent(plateforme::depuis_date(soir)));
        const int n[] = {d.annee, d.mois, d.jour, d.heure, d.minute, d.seconde, d.milliseconde};
        for (std::size_t i = 0; i < std::size(n); ++i)
            r[i] = std::to_string(n[i]);
        pose(r);
        general::calcul_altaz();
        ecarts.push_back(ecart(std::stod(r[16]), std::stod(r[17])) / 60);
        EXPECT_LT(ecarts.back(), 15) << testing::PrintToString(r);
    }
    ASSERT_EQ(ecarts.size(), 30u);
    std::nth_element(ecarts.begin(), ecarts.begin() + 15, ecarts.end());
    EXPECT_LT(ecarts[15], 10);
}

TEST(conversion, table_de_reference) {
    const machine m;
    const auto toutes = references("references_horizontales.csv");
    ASSERT_GT(toutes.size(), 100u);
    frmcoord::fiche.charge();
    for (const auto& r : toutes) {
        ASSERT_EQ(r.size(), 21u);
        pose(r);
        general::ecartaz = general::ecartalt = 7;
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

TEST(temps_sideral, ecoule_et_base) {
    EXPECT_NEAR(general::tempsecoule(12, 0, 0, 0), 43318.28, 0.005);
    EXPECT_NEAR(general::tempsecoule(0, 0, 1, 500) * 0.99726957, 1.5, 1e-12);
    EXPECT_EQ(general::tslbase(2, 20, 100), 660);
    EXPECT_EQ(general::tslbase(-2, 20, 0), -400) << "the sign of the degrees does not reach the minutes";
    EXPECT_EQ(general::tslbase(0.00625, 0, 0), 2) << "1.5 rounds to the even number";
    attend_echec(cause::depassement, [] { general::tslbase(1e8, 0, 0); });
}

TEST(temps_sideral, un_jour_ote_une_fois) {
    const machine m;
    for (auto* champ :
         {&frmcoord::txth, &frmcoord::txtmin, &frmcoord::txts, &frmconfig::txtdegre, &frmconfig::txtmin})
        champ->ecrit("");
    const struct {
        const char* t0;
        double tsl;
        int tslsec;
    } cas[] = {{"86399", 86399, 86399}, {"86400", 0, 0}, {"172801", 86401, 1}, {"-5", -5, -5}};
    for (const auto& c : cas) {
        frmcoord::txtessai.ecrit(c.t0);
        const double tsl = general::lit_tsl();
        EXPECT_EQ(tsl, c.tsl);
        general::fixe_tslsec(tsl);
        EXPECT_EQ(general::tslsec, c.tslsec);
    }
    general::fixe_tslsec(86399.5);
    EXPECT_EQ(general::tslsec, 0) << "the rounded value is folded, not the time";
    general::fixe_tslsec(2.5);
    EXPECT_EQ(general::tslsec, 2);
    frmcoord::txtms.ecrit("32768");
    attend_echec(cause::depassement, general::lit_tsl);
}

TEST(math, inverses) {
    EXPECT_DOUBLE_EQ(math::arcsin(0.5), 0.5235987755982989);
    EXPECT_DOUBLE_EQ(math::arcsin(-0.5), -0.5235987755982989);
    EXPECT_NEAR(math::arccos(0.5), 1.0471975512, 1e-10);
    EXPECT_NEAR(math::arccos(-0.5), -1.0471975512, 1e-10) << "the arccosine less pi";
    EXPECT_EQ(math::arccos(1), 0);
    attend_echec(cause::division_par_zero, [] { math::arcsin(1); });
    attend_echec(cause::division_par_zero, [] { math::arcsin(-1); });
    attend_echec(cause::racine_negative, [] { math::arcsin(1.0000000001); });
    attend_echec(cause::division_par_zero, [] { math::arccos(0); });
    attend_echec(cause::racine_negative, [] { math::arccos(-1.0000000001); });
}

} // namespace
