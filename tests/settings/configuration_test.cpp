#include "echec.h"
#include "machine_essai.h"
#include "settings/etat_suivi.h"
#include "settings/frmconfig_champs.h"
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

} // namespace
