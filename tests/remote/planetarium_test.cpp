#include "essai.h"
#include "fields/frmequapilot_champs.h"
#include "fields/frminterface_champs.h"
#include "remote/notation.h"
#include "remote/planetarium.h"

namespace {

// ERFA: the precession matrix of bp06 without the frame's bias, and gmst06.
TEST(equinoxe, celui_de_la_date) {
    struct {
        std::int64_t date; // 0 h of 2026 November 23, 2001 August 15, 1990 January 1
        general::place j2000, de_la_date;
        double sideral;
    } const cas[] = {{1795392000000, {2.5, 89.25}, {3.072529683, 89.361901861}, 14875.6524},
                     {1795392000000, {12.3, -60}, {12.324386675, -60.149207378}, 14875.6524},
                     {1795392000000, {23.99, 10}, {0.012971609, 10.149707272}, 14875.6524},
                     {997833600000, {23.99, 10}, {23.991382918, 10.009015681}, 77633.0492},
                     {631152000000, {2.5, 89.25}, {2.328800634, 89.205073378}, 24092.0709}};
    for (const auto& c : cas) {
        const auto la = general::vers_la_date(c.j2000, c.date);
        EXPECT_NEAR(la.ad, c.de_la_date.ad, 2e-9);
        EXPECT_NEAR(la.dec, c.de_la_date.dec, 2e-9);
        const auto retour = general::vers_j2000(la, c.date);
        EXPECT_NEAR(retour.ad, c.j2000.ad, 1e-10);
        EXPECT_NEAR(retour.dec, c.j2000.dec, 1e-10);
        EXPECT_NEAR(general::sideral_greenwich(c.date), c.sideral, 1e-3);
    }
}

TEST(notation, ce_qui_arrondit_et_ce_qui_tourne) {
    EXPECT_EQ(planetarium::ecrit_ad(23.9999, false), "00:00.0");
    EXPECT_EQ(planetarium::ecrit_ad(-0.5, true), "23:30:00");
    EXPECT_EQ(planetarium::ecrit_angle(-0.99999, true), "-01*00'00");
    EXPECT_EQ(planetarium::ecrit_angle(-0.001, false), "+00*00");
    EXPECT_EQ(planetarium::ecrit_azimut(-0.25, true), "359*45'00");
    EXPECT_EQ(planetarium::lit_ad("05:35.25"), 5 + 35.25 / 60);
    EXPECT_EQ(planetarium::lit_dec("-00\xDF"
                                   "30:36.0"),
              -0.51);
    EXPECT_EQ(planetarium::lit_dec("05*30'36"), 5.51);
}

// Whatever comes before, in pieces of whatever length, the next good command is heard.
TEST(liaison, entend_la_bonne_commande) {
    const essais::machine m;
    const std::string bruit[] = {"",
                                 ":Sr 04:3",
                                 std::string(100, ':'),
                                 ":" + std::string(1000, 'x'),
                                 "\xff\x80\x01" + std::string(3, '\0') + "#:\xfe#",
                                 ":GV\x06"};
    for (const auto& b : bruit)
        for (const std::size_t morceau : {1U, 7U, 4096U}) {
            planetarium::liaison l{1};
            const auto tout = b + ":GVP#";
            std::string dit;
            for (std::size_t i = 0; i < tout.size(); i += morceau)
                dit += l.recoit(tout.substr(i, morceau));
            EXPECT_EQ(dit, b.ends_with(planetarium::ack) ? "LVelmoria#" : "Velmoria#");
        }
    // 64 bytes are a command, 65 none.
    planetarium::liaison l{1};
    EXPECT_EQ(l.recoit(":St" + std::string(61, ' ') + "#:St" + std::string(62, ' ') + "#"), "1");
}

// The jog of a connection that has gone is stopped, and only its own.
TEST(liaison, emporte_son_jog) {
    essais::machine m;
    frminterface::barchoix_boutons(1).clic();
    frmequapilot::fiche.montre();
    EXPECT_EQ(planetarium::demande_jog(1, planetarium::cote::est), "");
    m.boucle.programme(9'000'000, "", [] { planetarium::abandonne(2); });
    m.boucle.programme(29'000'000, "", [] { planetarium::abandonne(1); });
    planetarium::commence();
    EXPECT_EQ(m.monture.compte().az8, 10); // of 3 ms each
    // One that has not begun is forgotten.
    EXPECT_EQ(planetarium::demande_jog(1, planetarium::cote::est), "");
    planetarium::abandonne(1);
    planetarium::commence();
    EXPECT_EQ(m.monture.compte().az8, 10);
}

} // namespace
