#include "drive/etat_moteur.h"
#include "echec.h"
#include "machine_essai.h"
#include "settings/etat_suivi.h"
#include "settings/frmconfig_champs.h"
#include "settings/frmequaconfig_champs.h"
#include "shell/frmcoord_champs.h"
#include "shell/frminterface_champs.h"
#include "sky/position.h"
#include "tracking/frmaltazsuivi_champs.h"

namespace {

using base::cause;
using essais::attend_echec;
using essais::machine_essai;

TEST(frmconfig, chargement) {
    const machine_essai m;
    m.fichier("config_altaz.ini", "-3\r\n40\r\n048\r\n\r\n200\r\n400\r\n360\r\n2.5\r\n");
    frmconfig::fiche.montre();
    EXPECT_EQ(frmconfig::fiche.largeur(), 7260);
    EXPECT_EQ(frmconfig::fiche.hauteur(), 5835);
    EXPECT_EQ(frmconfig::txtdegre.lit(), "-3");
    EXPECT_EQ(frmconfig::txtlatdeg.lit(), "48");
    EXPECT_EQ(frmconfig::txtlatmin.lit(), "");
    EXPECT_EQ(frmconfig::txtRalt.lit(), "360") << "the ratios stand altitude first";
    EXPECT_EQ(general::angpasaz, 1620) << "a ratio of 2.5 counts as 2";
    EXPECT_EQ(general::angpasalt, 4.5);
    EXPECT_EQ(frmconfig::txtapas.lit(), "1620");
    EXPECT_EQ(frmconfig::txthpas.lit(), "4.5");
    EXPECT_EQ(frmconfig::lbCatalogue.lignes(), 11);
    EXPECT_EQ(frmconfig::lbCatalogue.position(), 1);
    EXPECT_EQ(frmconfig::lbObjets.lignes(), 110);
    EXPECT_EQ(frmconfig::lbObjets.ligne(0), "M1");
}

TEST(frmconfig, fichiers_fautifs) {
    const machine_essai m;
    m.fichier("config_altaz.ini", "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n");
    attend_echec(cause::fin_de_fichier, [] { frmconfig::fiche.charge(); });
    frmconfig::fiche.decharge();
    m.fichier("config_altaz.ini", "1\r\n2\r\n3\r\n4\r\n200\r\n200\r\n7\r\n0\r\n");
    attend_echec(cause::division_par_zero, [] { frmconfig::fiche.charge(); });
}

// Its button and its close box hide it: what was typed stays, saved or not.
TEST(frmconfig, enregistre_et_cache) {
    const machine_essai m;
    frmconfig::fiche.montre();
    frmconfig::txtlatdeg.saisit("45 degrés");
    frmconfig::txtlatmin.saisit("");
    frmconfig::txtRaz.saisit("1000");
    for (const auto ferme : {+[] { frmconfig::cmdfermer.clic(); }, +[] { frmconfig::fiche.ferme(); }}) {
        frmconfig::fiche.montre();
        ferme();
        EXPECT_FALSE(frmconfig::fiche.est_visible());
        EXPECT_TRUE(frmconfig::fiche.est_charge());
        EXPECT_EQ(frmconfig::txtlatdeg.lit(), "45 degrés");
    }
    EXPECT_EQ(m.fichier("config_altaz.ini"), "6\r\n27\r\n48\r\n10\r\n200\r\n200\r\n500\r\n500\r\n");
    EXPECT_NEAR(general::angpasaz, 6.48, 1e-12) << "computed at load and save only";
    frmconfig::cmdvalid.clic();
    EXPECT_EQ(m.fichier("config_altaz.ini"), "6\r\n27\r\n45 degrés\r\n\r\n200\r\n200\r\n500\r\n1000\r\n");
    EXPECT_NEAR(general::angpasaz, 3.24, 1e-12);
    EXPECT_NEAR(frmconfig::txtapas.nombre(), 3.24, 1e-12);
    EXPECT_NEAR(general::angpasalt, 6.48, 1e-12);
}

TEST(frmconfig, position_de_depart) {
    const machine_essai m;
    cmd_moteur::azmoins = 0;
    frmconfig::txtaltplus.ecrit("2.5");
    for (int i = 0; i < 2; ++i) {
        frmconfig::cmdinitcoord.clic();
        EXPECT_EQ(general::posaz, 648000);
        EXPECT_EQ(general::posalt, 108000);
        EXPECT_EQ(frmcoord::txtcoordaz1.lit() + frmcoord::txtcoordaz2.lit() + frmcoord::txtcoordaz3.lit(),
                  "18000");
        EXPECT_EQ(frmcoord::txtcoordalt1.lit() + frmcoord::txtcoordalt2.lit() + frmcoord::txtcoordalt3.lit(),
                  "3000");
        EXPECT_EQ(cmd_moteur::azplus, 0);
        EXPECT_EQ(cmd_moteur::azmoins, 8);
        EXPECT_EQ(cmd_moteur::altplus, 2) << "ties to the even number";
        EXPECT_EQ(cmd_moteur::altmoins, 2);
    }
    frmconfig::txtazplus.ecrit("32768");
    attend_echec(cause::depassement, [] { frmconfig::cmdinitcoord.clic(); });
}

TEST(frmconfig, choix_d_un_objet) {
    const machine_essai m;
    m.fichier("ngc7.cat", "A,GL,3305,-7500\r\nB,GL,605,-300\r\nC,GL,0,6305\r\n");
    frmconfig::fiche.montre();
    frmconfig::lbCatalogue.choisit(10);
    EXPECT_EQ(frmconfig::lbObjets.lignes(), 3);
    attend_echec(cause::indice, [] { frmconfig::cmdchoix.clic(); });
    EXPECT_EQ(tracking::objetchoisi, false);
    // A number that isn't negative keeps the blank in its sign's place, but a negative declination loses it.
    const struct {
        const char *h, *min, *signe, *deg, *minarc;
        const char *suivi_h, *suivi_min, *suivi_deg, *suivi_minarc;
    } cas[] = {{" 5", " 30.5", "-", "12", "30", "5", "30.5", "12", "30"},
               {" 1", " 0.5", "-", "0", "30", "1", "0.5", "0", "30"},
               {" 0", " 0", "+", " 10", " 30.5", "0", "0", "10", "30.5"}};
    for (const bool ouvert : {false, true})
        for (int i = 0; i < 3; ++i) {
            const auto& c = cas[i];
            tracking::suiviouvert = ouvert;
            frmconfig::lbObjets.choisit(i);
            frmconfig::cmdchoix.clic();
            EXPECT_EQ(frmconfig::Txtad_h.lit(), c.h);
            EXPECT_EQ(frmconfig::txtad_min.lit(), c.min);
            EXPECT_EQ(frmconfig::txtsign.lit(), c.signe);
            EXPECT_EQ(frmconfig::txtdec_deg.lit(), c.deg);
            EXPECT_EQ(frmconfig::txtdec_min.lit(), c.minarc);
            EXPECT_EQ(tracking::objetchoisi, true);
            EXPECT_EQ(frmaltazsuivi::fiche.est_charge(), ouvert);
            if (!ouvert)
                continue;
            EXPECT_EQ(frmaltazsuivi::Txtad_h.lit(), c.suivi_h);
            EXPECT_EQ(frmaltazsuivi::txtad_min.lit(), c.suivi_min);
            EXPECT_EQ(frmaltazsuivi::txtsign.lit(), c.signe);
            EXPECT_EQ(frmaltazsuivi::txtdec_deg.lit(), c.suivi_deg);
            EXPECT_EQ(frmaltazsuivi::txtdec_min.lit(), c.suivi_minarc);
        }
}

// The stars of the pointing list have the objects' limit here, and a full list shows all its names.
TEST(frmconfig, catalogues_pleins) {
    const machine_essai m;
    std::string t;
    for (int i = 1; i <= 1031; ++i)
        t.append("N").append(std::to_string(i)).append(",And,1,2\r\n");
    m.fichier("5magstar.cat", t);
    frmconfig::fiche.montre();
    frmconfig::lbCatalogue.choisit(0);
    EXPECT_EQ(frmconfig::lbObjets.lignes(), 1031);
    EXPECT_EQ(frmconfig::lbObjets.ligne(1030), "N1031");
    m.fichier("ic.cat", t + "N1032,GL,1,2\r\n");
    attend_echec(cause::indice, [] { frmconfig::lbCatalogue.choisit(2); });
}

TEST(configuration, vers_la_raquette) {
    machine_essai m;
    frmconfig::fiche.montre();
    frmequaconfig::fiche.montre();
    shell::champ_bouton* const boutons[] = {&frmconfig::cmdazencoding, &frmconfig::cmdaltencoding,
                                            &frmconfig::cmdbacklash, &frmequaconfig::cmdbacklash};
    for (auto* bouton : boutons) {
        m.port.ecritures.clear();
        frminterface::Timer.marche(false);
        cmd_moteur::baselinepaddle = 4;
        cmd_moteur::pasencodeaz = cmd_moteur::pasencodealt = 7;
        bouton->clic();
        EXPECT_EQ(m.port.ecritures, (std::vector<std::pair<int, int>>{{890, 11}, {888, 0}}));
        EXPECT_EQ(cmd_moteur::baselinepaddle, 0);
        EXPECT_TRUE(frminterface::Timer.marche());
        EXPECT_EQ(cmd_moteur::pasencodeaz, bouton == &frmconfig::cmdazencoding ? 0 : 7);
        EXPECT_EQ(cmd_moteur::pasencodealt, bouton == &frmconfig::cmdaltencoding ? 0 : 7);
    }
}

TEST(frmequaconfig, lit_enregistre_et_ferme) {
    const machine_essai m;
    m.fichier("config_equa.ini", "200\r\n300\r\n400\r\n500\r\n");
    frmequaconfig::fiche.montre();
    EXPECT_EQ(frmequaconfig::txtpasdec.lit(), "300");
    EXPECT_EQ(frmequaconfig::txtRad.lit(), "400");
    frmequaconfig::txtRad.saisit("x 1");
    frmequaconfig::bFin.clic();
    EXPECT_FALSE(frmequaconfig::fiche.est_charge());
    EXPECT_EQ(m.fichier("config_equa.ini"), "200\r\n300\r\nx 1\r\n500\r\n");
}

} // namespace
