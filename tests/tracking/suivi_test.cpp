// The tracking's arithmetic: its clock at every carry, the steps of a tick and what is carried over, a
// night's sum.
#include "drive/etat_moteur.h"
#include "drive/position.h"
#include "essai.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "fields/frmequapilot_champs.h"
#include "sky/calendrier.h"
#include "sky/horloge_equivalente.h"
#include "sky/temps_sideral.h"
#include "tracking/affichage_suivi.h"
#include "tracking/etat_suivi.h"
#include "tracking/horloge_suivi.h"
#include "tracking/tic_suivi.h"

#include <cmath>

namespace {

class horloge_suivi : public essais::Essai {
  protected:
    horloge_suivi() { frmcoord::fiche.charge(); }
    std::string heure() {
        using namespace frmcoord;
        return txth.lit() + ":" + txtmin.lit() + ":" + txts.lit() + "." + txtms.lit();
    }
    void heure(double h, double n, double s) {
        frmcoord::txth.ecrit(h);
        frmcoord::txtmin.ecrit(n);
        frmcoord::txts.ecrit(s);
    }
};

// August 10th, universal time; the almanac's row of the 11th is 21 h 18 min 7 s.
TEST_F(horloge_suivi, les_quatre_cas) {
    constexpr int le_10 = 9;
    const struct {
        int increment;
        double h, n, s, m;
        const char* attendue;
        int jour; // position in the list
    } cas[] = {
        // A: the second is below 59.
        {1000, 10, 20, 30, 0, "10:20:31.0", le_10},
        {100, 10, 20, 30, 900, "10:20:31.0", le_10},
        {2000, 10, 20, 58, 0, "10:21:0.0", le_10},
        {2000, 23, 59, 58, 0, "0:0:0.0", le_10},
        {1500, 10, 20, 30, 600, "10:20:31.1100", le_10},
        {32767, 10, 20, 58, 0, "10:21:30.767", le_10},
        // B: 59 s, before the last minute.
        {1000, 10, 20, 59, 0, "10:21:0.0", le_10},
        {100, 10, 20, 59, 899, "10:20:59.999", le_10},
        // C: 59 min 59 s, before the last hour.
        {1000, 22, 59, 59, 0, "23:0:0.0", le_10},
        // D: the day rolls, and the milliseconds stay.
        {1000, 23, 59, 59, 0, "0:0:0.0", le_10 + 1},
        {2500, 23, 59, 59, 300, "0:0:1.300", le_10 + 1},
        {100, 23, 59, 59, 900, "0:0:0.900", le_10 + 1},
        {1000, 24, 10, 20, 0, "0:0:-39.0", le_10 + 1},
        {1000, 10, 10, 75, 0, "0:0:16.0", le_10 + 1},
        // No increment: one second a carry, which never comes; a negative one goes back without a carry.
        {0, 10, 20, 30, 0, "10:20:30.0", le_10},
        {-500, 10, 20, 30, 0, "10:20:30.-500", le_10},
    };
    for (const auto& c : cas) {
        frmcoord::cbjour.position(le_10);
        frmcoord::txtessai.ecrit("?");
        heure(c.h, c.n, c.s);
        frmcoord::txtms.ecrit(c.m);
        tracking::incrementms = {c.increment, "increment"};
        tracking::avance_horloge();
        EXPECT_EQ(heure(), c.attendue) << c.increment;
        EXPECT_EQ(frmcoord::cbjour.position(), c.jour) << c.attendue;
        EXPECT_EQ(frmcoord::txtessai.lit(), c.jour == le_10 ? "?" : "76687") << c.attendue;
    }
}

// With a clock that stands still the object stays, and a tick moves by what is taken off the place of the
// tick before.
class tic_suivi : public essais::Essai {
  protected:
    tic_suivi() {
        frmaltazsuivi::fiche.charge();
        frmconfig::txtsign.ecrit("+");
        frmconfig::txtdec_deg.ecrit("20");
        frmconfig::Txtad_h.ecrit("21");
        for (auto* champ :
             {&frmaltazsuivi::txtincrement, &frmaltazsuivi::txttempoa, &frmaltazsuivi::txttempoh})
            champ->ecrit("0");
        tracking::objetchoisi = true;
        frmaltazsuivi::cmdcalcul.clic();
        general::angpasaz = general::angpasalt = 10;
        cmd_moteur::azmoins = 8;
        cmd_moteur::altmoins = 2;
    }
    void tic(double ecartaz, double ecartalt) {
        boucle.regle_horloge({.annee = 2001, .mois = 8, .jour = 15, .heure = 22});
        tracking::azold = general::posaz - ecartaz;
        tracking::altold = general::posalt - ecartalt;
        monture.zero();
        tracking::tic();
    }
};

TEST_F(tic_suivi, reports) {
    const struct {
        const char* quoi;
        double debut;               // the sum carried over
        std::vector<double> ecarts; // of successive ticks, arcseconds
        std::vector<int> pas;
        double somme; // at their end
    } cas[] = {
        {"0.4 three times", 0, {14, 14, 14}, {1, 1, 2}, 0.2},
        {"ties to the even number", 0, {25, 35}, {2, 4}, 0},
        {"a half twice", 0, {5, 5}, {0, 1}, 0},
        {"a half too much twice", 0, {15, 15}, {2, 1}, 0},
        {"-0.4 three times", 0, {16, 16, 16, 16}, {2, 2, 1, 2}, -0.6},
        {"an exact sum of 1", 0, {12.5, 12.5, 12.5, 12.5, 10}, {1, 1, 1, 2, 1}, 0},
        {"just below 1", 0, {12.5, 12.5, 12.5, 12.25}, {1, 1, 1, 1}, 0.975},
        {"counts know no sense", 0, {14, -14, 14}, {1, 1, 2}, 0.2},
        {"nothing to do", 0, {0, 0}, {0, 0}, 0},
        {"one step paid a tick, however much is owed", 2.5, {10}, {2}, 1.5},
        {"the same the other way", -2.5, {10}, {0}, -1.5},
        {"below a whole one", 0.999, {10}, {1}, 0.999},
        {"below 0 nothing is sent", -1, {0}, {-1}, 0},
        {"a count of 16 bits", 0, {327670}, {32767}, 0},
    };
    for (const auto& c : cas) {
        tracking::sommeaz = tracking::sommealt = c.debut;
        for (std::size_t i = 0; i < c.ecarts.size(); ++i) {
            tic(c.ecarts[i], -c.ecarts[i]);
            EXPECT_EQ(cmd_moteur::nbpasaz, c.pas[i]) << c.quoi << ", tick " << i;
            EXPECT_EQ(cmd_moteur::nbpasalt, c.pas[i]) << c.quoi << ", tick " << i;
            const auto n = static_cast<std::uint64_t>(std::max(0, c.pas[i]));
            const bool plus = c.ecarts[i] > 0; // altitude goes the other way
            EXPECT_EQ(monture.compte(), (plus ? banc::impulsions{n, 0, 0, n} : banc::impulsions{0, n, n, 0}))
                << c.quoi << ", tick " << i;
        }
        EXPECT_NEAR(tracking::sommeaz, c.somme, 1e-9) << c.quoi;
        EXPECT_NEAR(tracking::sommealt, c.somme, 1e-9) << c.quoi;
    }
}

// The equivalent clock has asked the computer's once: setting that moves nothing, only time does.
TEST_F(tic_suivi, saut_de_l_horloge) {
    std::int64_t civil = plateforme::depuis_date({.annee = 2026, .mois = 8, .jour = 15, .heure = 20});
    std::int64_t ecoule = 0;
    plateforme::horloge_equivalente horloge{{[&] { return civil; }, [&] { return ecoule; }},
                                            [] { return 2; }};
    plateforme::courante.horloge = &horloge;
    frmaltazsuivi::cmdcalcul.clic();
    monture.zero();
    for (const int secondes : {90, 3600, -7200}) {
        civil += secondes * 1000;
        tracking::tic();
        EXPECT_EQ(monture.compte(), banc::impulsions{}) << secondes;
    }
    ecoule += 90'000;
    tracking::tic();
    EXPECT_NE(monture.compte(), banc::impulsions{});
}

// Steps of 40 arcseconds: beyond 100 degrees the way is the other one around.
TEST_F(tic_suivi, passage_par_le_nord) {
    const struct {
        double ecart, somme;
        std::uint64_t plus, moins;
    } cas[] = {{-1295980, 0.5, 1, 0}, {1295980, 0.5, 0, 1},  {360000, 0, 9000, 0},
               {-360000, 0, 0, 9000}, {360040, 0, 0, 23399}, {-360040, 0, 23399, 0}};
    general::angpasaz = 40;
    for (const auto& c : cas) {
        tracking::sommeaz = c.somme;
        tic(c.ecart, 0);
        EXPECT_EQ(monture.compte().az0, c.plus) << c.ecart;
        EXPECT_EQ(monture.compte().az8, c.moins) << c.ecart;
    }
    tracking::sommeaz = 1;
    general::angpasaz = 10;
    essais::attend_echec(base::cause::depassement, [this] { tic(327670, 0); });
    EXPECT_EQ(monture.compte(), banc::impulsions{});
}

// Without an object chosen, what the telescope points at is followed and shown as the object; one chosen
// while the panel is open goes there at once, its numbers without the blank of a sign.
TEST_F(tic_suivi, lieu_pointe_puis_objet_choisi) {
    tracking::objetchoisi = false;
    general::posaz = 700000;
    general::posalt = 100000;
    frmconfig::txtlatdeg.ecrit("48");
    tracking::sommeaz = tracking::sommealt = 2;
    frmaltazsuivi::cmdcalcul.clic();
    EXPECT_EQ(tracking::sommeaz, 0) << "a start owes nothing";
    EXPECT_EQ(tracking::sommealt, 0);
    EXPECT_NEAR(general::posaz, 700000, 1e-4);
    EXPECT_NEAR(general::posalt, 100000, 1e-4);
    EXPECT_EQ(frmaltazsuivi::Txtad_h.lit(), frmconfig::Txtad_h.lit());
    EXPECT_EQ(frmconfig::txtsign.lit(), "-") << "28 degrees up in the south-west";
    tracking::suiviouvert = true;
    fichier("messier.cat", "A,GL,3305,-7500\r\n");
    frmconfig::fiche.decharge();
    frmconfig::lbObjets.choisit(0);
    frmconfig::cmdchoix.clic();
    using namespace frmaltazsuivi;
    EXPECT_EQ(frmconfig::Txtad_h.lit(), " 5");
    EXPECT_EQ(Txtad_h.lit() + " " + txtad_min.lit(), "5 30.5");
    EXPECT_EQ(txtsign.lit() + txtdec_deg.lit() + " " + txtdec_min.lit(), "-12 30");
}

class suivi_equatorial : public essais::Essai {};

// Ten hours of the sidereal drive: the axis is within one step of 15.04 arcseconds a second.
TEST_F(suivi_equatorial, dix_heures) {
    using namespace frmequapilot;
    for (const auto& [pas, rapport] :
         {std::pair{"200", "500"}, {"1296", "1000"}, {"48", "359"}, {"7.5", "144"}, {"200", "2047"}}) {
        fichier("config_equa.ini", std::string{pas} + "\r\n200\r\n" + rapport + "\r\n500\r\n");
        frmequapilot::fiche.charge();
        cmd_moteur::vitesseequa.fill(33332);
        cmdgo.clic();
        const auto avant = monture.total().az8;
        boucle.avance(36'000'000'000'000);
        const double demi_pas = 1296000 / (std::stod(pas) * std::stod(rapport)) / 2;
        const double angle = static_cast<double>(monture.total().az8 - avant) * demi_pas;
        EXPECT_LE(std::abs(angle - 36000 * 15.04), demi_pas) << pas << " x " << rapport;
        pied.Cmdquit.clic();
    }
    EXPECT_EQ(monture.total().az0 + monture.total().alt0 + monture.total().alt2, 0U);
}

} // namespace
