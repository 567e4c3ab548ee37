#include "drive/etat_moteur.h"
#include "essai_virtuel.h"
#include "piloting/frmequapilot_champs.h"

#include <cmath>
#include <fstream>

namespace {

using namespace frmequapilot;

class suivi_equatorial : public essais::Virtuel {
  protected:
    // Bursts of 2.002 ms a step.
    void ouvre(const std::string& pas, const std::string& rapport) {
        std::ofstream{dossier / "data/config_equa.ini"} << pas << "\r\n200\r\n" << rapport << "\r\n500\r\n";
        boucle.regle_horloge({.annee = 2001, .mois = 8, .jour = 15, .heure = 20});
        fiche.charge();
        cmd_moteur::vitesseequa.fill(33332);
    }
};

constexpr std::int64_t seconde = 1'000'000'000;

// Ten hours: the axis is within one step of 15.04 arcseconds a second, for small steps and large.
TEST_F(suivi_equatorial, dix_heures) {
    const struct {
        const char *pas, *rapport;
    } mecaniques[] = {{"200", "500"}, {"1296", "1000"}, {"48", "359"}, {"7.5", "144"}, {"200", "2047"}};
    for (const auto& m : mecaniques) {
        ouvre(m.pas, m.rapport);
        cmdgo.clic();
        const auto avant = monture.total().az8;
        boucle.avance(36000 * seconde);
        const double demi_pas = 1296000 / (std::stod(m.pas) * std::stod(m.rapport)) / 2;
        const double angle = static_cast<double>(monture.total().az8 - avant) * demi_pas;
        EXPECT_LE(std::abs(angle - 36000 * 15.04), demi_pas) << m.pas << " x " << m.rapport;
        EXPECT_EQ(txtessai.lit(), "36000");
        Cmdquit.clic();
    }
    EXPECT_EQ(monture.total().az0 + monture.total().alt0 + monture.total().alt2, 0U);
}

// A burst of nine tenths of a second still goes out every second; one of a second and a half takes every
// other.
TEST_F(suivi_equatorial, rafales_longues) {
    const struct {
        int compte;
        const char* rafales;
    } cas[] = {{499'966, "60"}, {833'299, "40"}};
    for (const auto& c : cas) { // 30 steps of 30 ms, of 50 ms
        ouvre("1296", "1000");
        cmd_moteur::vitesseequa.fill(c.compte);
        cmdgo.clic();
        boucle.avance(60 * seconde + seconde / 2);
        EXPECT_EQ(txtessai.lit(), c.rafales);
        Cmdquit.clic();
    }
}

TEST_F(suivi_equatorial, horloge) {
    ouvre("200", "500");
    cmdgo.clic();
    EXPECT_NEAR(txtpas.nombre(), 15.04 * 2 * 200 * 500 / 1296000, 1e-12);
    // Set back at each change, the clock shows the same second, and nothing goes out.
    for (int i = 0; i < 20; ++i) {
        boucle.regle_horloge({.annee = 2001, .mois = 8, .jour = 15, .heure = 20, .milliseconde = 100});
        boucle.avance(seconde / 2);
    }
    EXPECT_EQ(txtessai.lit(), "0");
    EXPECT_EQ(monture.total().az8, 0U);
    // A jump of several seconds is one burst, and so is one backwards.
    boucle.regle_horloge({.annee = 2001, .mois = 8, .jour = 15, .heure = 20, .seconde = 7});
    boucle.avance(seconde / 2);
    EXPECT_EQ(txtessai.lit(), "1");
    EXPECT_EQ(monture.total().az8, 2U);
    boucle.regle_horloge({.annee = 2001, .mois = 8, .jour = 15, .heure = 20, .seconde = 3});
    boucle.avance(seconde / 2);
    EXPECT_EQ(txtessai.lit(), "2");
    // A second that reads the same a minute later is taken for the same.
    boucle.regle_horloge({.annee = 2001, .mois = 8, .jour = 15, .heure = 20, .minute = 1, .seconde = 3});
    boucle.avance(seconde / 2);
    EXPECT_EQ(txtessai.lit(), "2");
}

// The fraction outlives a stop and a start, not the panel.
TEST_F(suivi_equatorial, fraction_gardee) {
    ouvre("21542.55319148936", "1"); // half a step a second
    cmdgo.clic();
    boucle.avance(seconde);
    EXPECT_EQ(txtpas1.lit(), "0");
    cmdstopgo.clic();
    boucle.avance(5 * seconde);
    cmdgo.clic();
    boucle.avance(seconde);
    EXPECT_EQ(txtpas1.lit(), "1");
    boucle.avance(seconde);
    EXPECT_EQ(txtpas1.lit(), "0");
    Cmdquit.clic();
    EXPECT_EQ(cmd_moteur::cmdsens, 0);
    ouvre("21542.55319148936", "1");
    cmdgo.clic();
    boucle.avance(seconde);
    EXPECT_EQ(txtpas1.lit(), "0");
}

// Left inside a burst, the panel stays closed and the burst goes on, as its command does not change it.
TEST_F(suivi_equatorial, quitte_dans_la_rafale) {
    ouvre("200", "500");
    cmdgo.clic();
    boucle.programme(seconde + 1'000'000, "", [] { Cmdquit.clic(); });
    boucle.avance(10 * seconde);
    EXPECT_EQ(monture.total().az8, 2U);
    EXPECT_FALSE(fiche.est_charge());
    EXPECT_FALSE(timersuivi.regarde_marche());
}

} // namespace
