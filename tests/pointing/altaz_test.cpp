#include "base/octets.h"
#include "drive/etat_moteur.h"
#include "echec.h"
#include "essai_virtuel.h"
#include "pointing/etat_pointage.h"
#include "pointing/frmDepl_champs.h"
#include "pointing/frmaltazpointage_champs.h"
#include "pointing/pointealtaz.h"
#include "settings/frmconfig_champs.h"
#include "shell/frmcoord_champs.h"
#include "shell/frminterface_champs.h"
#include "sky/position.h"

#include <cmath>

namespace {

using base::entier32;
using frmaltazpointage::choix;
using general::angpasalt;
using general::angpasaz;
using general::posalt;
using general::posaz;

// A site at 48 degrees, a sky that stands still at 4 h sidereal time, steps of 40 and 60 arcseconds, pulses
// of 60 microseconds.
class Altaz : public essais::Virtuel {
  protected:
    Altaz() {
        boucle.regle_horloge({.annee = 2001, .mois = 8, .jour = 15, .heure = 12});
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
        cmd_moteur::vitessealtaz.fill(entier32{1000});
        frmaltazpointage::fiche.montre();
    }

    // 6 h 0, +20 degrees: south-east, and where it stands.
    void vise() {
        pointing::ciblehr = 6;
        pointing::ciblemin = 0;
        pointing::cibledeg = 20;
        pointing::cibledegmin = 0;
        pointing::calchoriz({.heures = 6, .minutes = 0, .degres = 20, .minutesarc = 0, .positive = true});
        az = general::azdeg * 3600;
        alt = general::hautdeg * 3600;
    }

    // The ways that a telescope so many steps short of the target has to go.
    void recule(double pas_az, double pas_alt) {
        posaz = az - pas_az * angpasaz;
        posalt = alt - pas_alt * angpasalt;
        monture.zero();
    }

    std::uint64_t compte_az() { return monture.compte().az0; }
    std::uint64_t compte_alt() { return monture.compte().alt0; }

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
    vise();
    for (const auto& c : tous) {
        recule(c.pas_az, c.pas_alt);
        pointing::pointealtaz();
        EXPECT_EQ(compte_az(), c.az) << c.pas_az;
        EXPECT_EQ(compte_alt(), c.alt) << c.pas_alt;
        EXPECT_EQ(monture.compte().az8 + monture.compte().alt2, 0u);
        EXPECT_NEAR((az - posaz) / angpasaz, c.reste_az, 1e-6) << c.pas_az << " " << c.pas_alt;
        EXPECT_NEAR((alt - posalt) / angpasalt, c.reste_alt, 1e-6) << c.pas_az << " " << c.pas_alt;
        frmDepl::fiche.decharge();
    }
}

// On a second pass the bars stand as the first left them: a count of 0 then arrives.
TEST_F(Altaz, les_barres_restent) {
    vise();
    recule(5.5, 7.5);
    pointing::pointealtaz();
    recule(0.4, 0.4);
    pointing::pointealtaz();
    EXPECT_EQ(compte_az(), 1u);
    EXPECT_EQ(posaz, az);
    EXPECT_EQ(posalt, alt);
    EXPECT_EQ(pointing::distaz, az - (az - 0.4 * angpasaz));
}

// So does a stop after the first pulse of a second pass, which has not written its bar yet: both axes arrive.
TEST_F(Altaz, arret_au_debut_d_une_seconde_passe) {
    vise();
    recule(5.5, 7.5);
    pointing::pointealtaz();
    recule(5.5, 7.5);
    boucle.programme(60'000, "", [] { frmDepl::cmstoppointage.appuie(); });
    pointing::pointealtaz();
    EXPECT_EQ(compte_az(), 1u);
    EXPECT_EQ(compte_alt(), 0u);
    EXPECT_EQ(posaz, az);
    EXPECT_EQ(posalt, alt);
    EXPECT_EQ(pointing::distaz, 0);
    EXPECT_EQ(pointing::distalt, 0);
}

TEST_F(Altaz, un_alignement_puis_le_meme_objet) {
    base::ecrit_fichier(dossier / "data/messier.cat", "M1,GL,3650,12300\r\nM2,GL,3650,300\r\n");
    frmaltazpointage::fiche.decharge();
    frmaltazpointage::fiche.montre();
    general::ecartaz = 3;
    choix.lbCatalogue.choisit(0);
    choix.tAD(0).saisit("6");
    choix.tAD(1).saisit("5");
    choix.tDec(0).saisit("20");
    choix.tDec(1).saisit("30");
    choix.bOK.clic();
    EXPECT_EQ(general::ecartaz, 0);
    EXPECT_EQ(monture.compte(), banc::impulsions{});
    choix.lbCatalogue.choisit(2);
    choix.lbObjets.double_clic(0);
    EXPECT_EQ(frmaltazpointage::txtdistaz.lit(), "0");
    EXPECT_EQ(frmaltazpointage::txtdistalt.lit(), "0");
    EXPECT_EQ(compte_az(), 1u);
    EXPECT_EQ(compte_alt(), 1u);

    // Without whole degrees a declination is southern, in the entry and in the slew alike.
    const auto hauteur = [](const char* degres, const char* minutes) {
        choix.tDec(0).ecrit(degres);
        choix.tDec(1).ecrit(minutes);
        choix.bOK.clic();
        return posalt;
    };
    const double sud = hauteur("-0", "30");
    EXPECT_EQ(hauteur("0", "30"), sud);
    EXPECT_EQ(hauteur("abc", "-30"), sud);
    // At -0 30 it lies a quarter of the way from -1 to +1.
    const double moins_un = hauteur("-1", "0");
    EXPECT_NEAR((hauteur("1", "0") - sud) / (sud - moins_un), 3, 0.1);
    choix.lbObjets.double_clic(1);
    EXPECT_EQ(pointing::ciblealt, sud);
    EXPECT_EQ(choix.tdcpos.legende(), " 0° 30'");
    // Under the horizon there is neither a message nor a refusal.
    EXPECT_LT(hauteur("-60", "0"), 0);
    EXPECT_TRUE(vue.messages.empty());
}

TEST_F(Altaz, sous_l_horizon) {
    base::ecrit_fichier(dossier / "data/messier.cat", "M1,GL,3600,-36000\r\n");
    choix.lbCatalogue.choisit(2);
    posaz = 1234;
    posalt = 5678;
    choix.lbObjets.double_clic(0);
    EXPECT_EQ(vue.messages, std::vector<std::string>{"déplacement impossible : altitude négative !"});
    EXPECT_EQ(monture.compte(), banc::impulsions{});
    EXPECT_EQ(posaz, 1234);
    EXPECT_EQ(posalt, 5678);
    EXPECT_LT(frmaltazpointage::txtcoordalt1.nombre(), 0);
    EXPECT_FALSE(frmDepl::fiche.est_charge());
}

// A second double click runs a whole slew inside a yield of the first, which then sends what is left of its
// own counts. The targets are the second's for both.
TEST_F(Altaz, un_pointage_dans_un_autre) {
    base::ecrit_fichier(dossier / "data/messier.cat", "M1,GL,3600,12000\r\nM2,GL,3000,18000\r\n");
    choix.lbCatalogue.choisit(2);
    vise();
    recule(100.5, 50.5);
    pointing::calchoriz({.heures = 5, .minutes = 0, .degres = 30, .minutesarc = 0, .positive = true});
    const double az2 = general::azdeg * 3600;
    const double alt2 = general::hautdeg * 3600;
    const auto impulsions = [](double distance, double pas) {
        return static_cast<std::uint64_t>(2 * std::abs(std::floor(distance / pas)) + 1);
    };
    const auto dedans_az = impulsions(az2 - posaz, angpasaz) + 1; // a second pass without a way
    const auto dedans_alt = impulsions(alt2 - posalt, angpasalt) + 1;
    boucle.programme(300'000, "", [] { choix.lbObjets.double_clic(1); });
    choix.lbObjets.double_clic(0);
    EXPECT_EQ(compte_az(), 201 + dedans_az);
    EXPECT_EQ(compte_alt(), 101 + dedans_alt);
    EXPECT_NEAR(posaz, az2, 1e-6);
    EXPECT_NEAR(posalt, alt2, 1e-6);
    EXPECT_FALSE(frmDepl::fiche.est_charge());
    EXPECT_EQ(pointing::stoppointage, false);
}

// The panel closed under a slew comes back unseen as the next pass writes it; nothing more is sent than the
// passes ask for.
TEST_F(Altaz, panneau_ferme_pendant_un_pointage) {
    base::ecrit_fichier(dossier / "data/messier.cat", "M1,GL,3600,12000\r\n");
    choix.lbCatalogue.choisit(2);
    vise();
    recule(100.5, 50.5);
    boucle.programme(300'000, "", [] { frmaltazpointage::fiche.ferme(); });
    boucle.programme(330'000, "", [] { EXPECT_FALSE(frmaltazpointage::fiche.est_charge()); });
    choix.lbObjets.double_clic(0);
    EXPECT_EQ(compte_az(), 201u + 1);
    EXPECT_EQ(compte_alt(), 101u + 1);
    EXPECT_FALSE(frmaltazpointage::fiche.est_visible());
    EXPECT_FALSE(frmDepl::fiche.est_charge());
}

// The stop by its key, while the slew's panel alone is told of it.
TEST_F(Altaz, echap_arrete) {
    base::ecrit_fichier(dossier / "data/messier.cat", "M1,GL,3600,12000\r\n");
    choix.lbCatalogue.choisit(2);
    vise();
    recule(100.5, 50.5);
    boucle.programme(300'000, "", [] { frmDepl::fiche.ferme(); }); // it has no close box
    boucle.programme(600'000, "", [] { frmDepl::fiche.touche_echap(); });
    choix.lbObjets.double_clic(0);
    EXPECT_EQ(compte_az(), 10u);
    EXPECT_EQ(compte_alt(), 0u);
    EXPECT_NEAR((az - posaz) / angpasaz, 100.5 - 5, 1e-6);
    EXPECT_NEAR((alt - posalt) / angpasalt, 50.5, 1e-6);
}

TEST_F(Altaz, sans_classe_de_vitesse) {
    vise();
    recule(3.5, 3.5);
    frmaltazpointage::reglages.cbpointalt.position(-1);
    essais::attend_echec(base::cause::indice, [] { pointing::pointealtaz(); });
    EXPECT_EQ(compte_az(), 7u); // its own class is met only after azimuth
    EXPECT_EQ(compte_alt(), 0u);
}

} // namespace
