#include "base/octets.h"
#include "catalogue/selecteur.h"
#include "drive/etat_moteur.h"
#include "echec.h"
#include "essai_virtuel.h"
#include "platform/image.h"
#include "pointing/etat_pointage.h"
#include "pointing/frmDepl_champs.h"
#include "pointing/frmequapointage_champs.h"

#include <cmath>

namespace {

using frmequapointage::choix;
using frmequapointage::lbEtoiles;
using frmequapointage::reglages;

// The mount on the bench, with the mechanics of `config_equa.ini`.
class Equa : public essais::Virtuel {
  protected:
    Equa() {
        base::ecrit_fichier(dossier / "data/config_equa.ini", "48\r\n24\r\n130\r\n144\r\n");
        programme::demarre();
        cmd_moteur::vitesseequa.fill(base::entier32{0});
        frmequapointage::fiche.montre();
    }
};

// Arcseconds a pulse: two half steps a motor step.
constexpr double pulse_ad = 360.0 * 3600 / (130 * 48 * 2);
constexpr double pulse_dec = 360.0 * 3600 / (144 * 24 * 2);

// From one star to twenty others over the whole sky, their file read as a catalogue of objects: the mount's
// angles follow each difference to within two pulses on each axis, in the sense asked.
TEST_F(Equa, d_une_etoile_a_vingt_autres) {
    std::filesystem::copy_file(dossier / "data/5magstar.cat", dossier / "data/ic.cat",
                               std::filesystem::copy_options::overwrite_existing);
    const auto etoiles = catalogue::lit("5magstar.cat", catalogue::etoiles_panneau);
    for (const int inversion : {0, 1, 2, 3}) {
        frmequapointage::chkpointad.regle((inversion & 1) != 0);
        frmequapointage::chkpointdec.regle((inversion & 2) != 0);
        reglages.cmdsave.clic();
        lbEtoiles.double_clic(7);
        choix.lbCatalogue.choisit(2);
        auto ici = etoiles[7];
        auto avant = monture.position(pulse_ad, pulse_dec);
        int sens_ad = 0;
        int sens_dec = 0;
        for (int k = 1; k <= 20; ++k) {
            const auto la = (7 + k * 47) % static_cast<int>(etoiles.size());
            choix.lbObjets.double_clic(la);
            const auto& but = etoiles[static_cast<std::size_t>(la)];
            const auto apres = monture.position(pulse_ad, pulse_dec);
            // A tenth of a minute of time is 90 arcseconds of angle; growing right ascension turns this mount
            // the minus way.
            const double ad = (but.ad - ici.ad) * 90 * ((inversion & 1) != 0 ? 1 : -1);
            const double dec = (but.dec - ici.dec) * 6 * ((inversion & 2) != 0 ? -1 : 1);
            EXPECT_LE(std::abs(apres.az - avant.az - ad), 2 * pulse_ad) << but.nom << " " << inversion;
            EXPECT_LE(std::abs(apres.alt - avant.alt - dec), 2 * pulse_dec) << but.nom << " " << inversion;
            sens_ad |= but.ad > ici.ad ? 1 : 2;
            sens_dec |= but.dec > ici.dec ? 1 : 2;
            ici = but;
            avant = apres;
        }
        EXPECT_EQ(sens_ad, 3); // both senses were asked for
        EXPECT_EQ(sens_dec, 3);
        EXPECT_EQ(pointing::reticulead, ici.ad);
        EXPECT_EQ(pointing::reticuledec, ici.dec);
    }
}

// Only right ascension has its half steps a turn rounded: 2 x 24.2 = 48.4 counts as 48.
TEST_F(Equa, pas_fractionnaires) {
    base::ecrit_fichier(dossier / "data/config_equa.ini", "24.2\r\n24.2\r\n100\r\n100\r\n");
    lbEtoiles.double_clic(7);
    pointing::reticulead = 0;
    pointing::reticuledec = 0;
    choix.lbCatalogue.choisit(0);
    choix.tAD(0).ecrit("10");
    choix.tDec(0).ecrit("80");
    choix.bOK.clic();
    EXPECT_EQ(monture.compte().az8, 2001u);       // 6000 / (14400 / 4800) = 2000 units
    EXPECT_EQ(monture.compte().alt0, 1075u + 1u); // 48000 / (216000 / 4840) = 1075.6
}

// A slew's delay is its count, 30 ns each, two a pulse; one that is negative is none.
TEST_F(Equa, duree_d_une_impulsion) {
    cmd_moteur::vitesseequa.fill(base::entier32{1000});
    cmd_moteur::vitesseequa[8] = -5; // declination, class 3
    lbEtoiles.double_clic(7);
    pointing::reticulead = 0;
    pointing::reticuledec = 0;
    const auto avant = boucle.temps();
    choix.lbCatalogue.choisit(0);
    choix.bOK.clic();
    EXPECT_EQ(boucle.temps() - avant, 2 * 1000 * 30);
    EXPECT_EQ(port.dernieres(4), (std::vector<banc::ecriture>{{888, 8}, {888, 12}, {888, 0}, {888, 1}}));
}

TEST_F(Equa, boutons_dessines) {
    using frmequapointage::Picinit;
    using frmequapointage::picpointage;
    const auto repos = plateforme::image{.numero = 12, .largeur = 1, .hauteur = 1};
    const auto appui = plateforme::image{.numero = 13, .largeur = 1, .hauteur = 1};
    plateforme::imagesboutons[4] = repos;
    plateforme::imagesboutons[5] = appui;
    frmequapointage::fiche.decharge();
    frmequapointage::fiche.montre();
    pointing::panneaualtaz = true;
    for (int i = 0; i < 2; ++i) { // by the picture, by its label
        EXPECT_EQ(picpointage.regarde_image(), repos);
        i == 0 ? picpointage.appuie() : frmequapointage::lblpointage.appuie();
        EXPECT_EQ(picpointage.regarde_image(), appui);
        i == 0 ? picpointage.relache() : frmequapointage::lblpointage.relache();
        EXPECT_EQ(picpointage.regarde_image(), repos);
        EXPECT_EQ(pointing::modepointage, true);
        EXPECT_EQ(pointing::panneaualtaz, false);
        pointing::panneaualtaz = true;
        pointing::modepointage = false;
    }
    Picinit.clic();
    EXPECT_EQ(pointing::modepointage, false);
    EXPECT_EQ(pointing::panneaualtaz, false);
}

TEST_F(Equa, l_inversion_attend_la_sauvegarde) {
    base::ecrit_fichier(dossier / "data/inversion_point.ini", "Vrai\r\nvrai\r\n");
    frmequapointage::fiche.decharge();
    frmequapointage::fiche.montre();
    EXPECT_TRUE(frmequapointage::chkpointad.coche());
    EXPECT_FALSE(frmequapointage::chkpointdec.coche());
    EXPECT_EQ(pointing::invpointad, false);
    reglages.cmdsave.clic();
    EXPECT_EQ(pointing::invpointad, true);
    EXPECT_EQ(pointing::invpointdec, false);
    EXPECT_EQ(base::lit_fichier(dossier / "data/inversion_point.ini"), "Vrai\r\nFaux\r\n");
}

// A slew's classes are its own; what the sliders chose comes back.
TEST_F(Equa, classes_rendues) {
    cmd_moteur::classevitaz = 1;
    cmd_moteur::classevitalt = 2;
    reglages.cbpointaz.choisit(4);
    reglages.cbpointalt.choisit(0);
    lbEtoiles.double_clic(7);
    bool vu = false;
    boucle.programme(0, "", [&vu] {
        vu = true;
        EXPECT_EQ(cmd_moteur::classevitaz, 4);
        EXPECT_EQ(cmd_moteur::classevitalt, 0);
    });
    choix.lbObjets.double_clic(3);
    EXPECT_TRUE(vu);
    EXPECT_EQ(cmd_moteur::classevitaz, 1);
    EXPECT_EQ(cmd_moteur::classevitalt, 2);
}

// What does not fit 16 bits is fatal before anything moves; a target beyond the sky is none of its business.
TEST_F(Equa, entree_trop_grande) {
    lbEtoiles.double_clic(7);
    choix.lbCatalogue.choisit(0);
    const auto entre = [](const char* h, const char* m, const char* d, const char* n) {
        choix.tAD(0).ecrit(h);
        choix.tAD(1).ecrit(m);
        choix.tDec(0).ecrit(d);
        choix.tDec(1).ecrit(n);
        choix.bOK.clic();
    };
    for (const auto& [h, m, d, n] :
         {std::array{"55", "0", "0", "0"}, std::array{"54", "37", "0", "0"}, std::array{"-55", "0", "0", "0"},
          std::array{"32768", "0", "0", "0"}, std::array{"0", "0", "547", "0"},
          std::array{"0", "0", "0", "32768"}, std::array{"1e300", "0", "0", "0"}})
        essais::attend_echec(base::cause::depassement,
                             [&, h = h, m = m, d = d, n = n] { entre(h, m, d, n); });
    EXPECT_EQ(monture.compte(), banc::impulsions{});
    entre("-1", "-0.5", "546", "32767");
    EXPECT_EQ(pointing::ciblead, -610);
    EXPECT_EQ(pointing::cibledec, 546 * 600 + 327670);
    EXPECT_EQ(pointing::reticulead, -610);
}

TEST_F(Equa, fichier_de_mecanique_court) {
    lbEtoiles.double_clic(7);
    base::ecrit_fichier(dossier / "data/config_equa.ini", "48\r\n24\r\n130\r\n");
    essais::attend_echec(base::cause::fin_de_fichier, [] { choix.lbObjets.double_clic(3); });
    EXPECT_EQ(monture.compte(), banc::impulsions{});
}

} // namespace
