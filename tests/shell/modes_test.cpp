#include "drive/etat_moteur.h"
#include "machine_essai.h"
#include "piloting/frmaltazpilot_champs.h"
#include "piloting/frmequapilot_champs.h"
#include "piloting/frmraquette_champs.h"
#include "pointing/etat_pointage.h"
#include "settings/frmconfig_champs.h"
#include "settings/frmequaconfig_champs.h"
#include "shell/frmcoord_champs.h"
#include "shell/frminterface.h"
#include "shell/frminterface_champs.h"
#include "tracking/frmaltazsuivi_champs.h"

#include <gtest/gtest.h>

namespace {

using essais::machine_essai;
using namespace frminterface;

const std::vector<std::pair<int, int>> vers_raquette = {{890, 11}, {888, 0}};

void charge_tout() {
    for (auto* p : {&frmaltazpilot::fiche, &frmaltazsuivi::fiche, &frmconfig::fiche, &frmcoord::fiche,
                    &frmequapilot::fiche, &frmequaconfig::fiche})
        p->charge();
}

TEST(modes, rien_au_demarrage) {
    machine_essai m;
    programme::demarre();
    EXPECT_TRUE(m.port.ecritures.empty());
    EXPECT_FALSE(heuretimer.marche() || Timer.marche());
    EXPECT_FALSE(frmcoord::fiche.est_charge());
}

TEST(modes, altazimutal_par_la_barre_et_par_le_menu) {
    for (const bool menu : {false, true}) {
        machine_essai m;
        programme::demarre();
        frmequapilot::fiche.charge();
        frmequaconfig::fiche.charge();
        m.port.ecritures.clear();
        pointing::panneaualtaz = false;
        if (menu)
            altazimutal.clic();
        else
            barchoix_boutons(2).clic();
        EXPECT_TRUE(frmcoord::fiche.est_visible());
        EXPECT_TRUE(heuretimer.marche());
        EXPECT_TRUE(baraltaz.visible());
        EXPECT_EQ(barchoix.visible(), menu);
        EXPECT_EQ(pointing::panneaualtaz, !menu);
        EXPECT_FALSE(frmequapilot::fiche.est_charge());
        EXPECT_FALSE(frmequaconfig::fiche.est_charge());
        EXPECT_TRUE(m.port.ecritures.empty());
    }
}

TEST(modes, equatorial_arrete_l_horloge) {
    machine_essai m;
    programme::demarre();
    barchoix_boutons(2).clic();
    charge_tout();
    Equatorial.clic();
    EXPECT_FALSE(heuretimer.marche());
    EXPECT_TRUE(m.boucle.armes.empty());
    for (auto* p : {&frmaltazpilot::fiche, &frmaltazsuivi::fiche, &frmconfig::fiche, &frmcoord::fiche})
        EXPECT_FALSE(p->est_charge()) << p->nom();
    EXPECT_TRUE(frmequapilot::fiche.est_charge() && frmequaconfig::fiche.est_charge());
    EXPECT_FALSE(baraltaz.visible());
}

TEST(modes, raquette) {
    for (const bool general : {false, true}) {
        machine_essai m;
        programme::demarre();
        barchoix_boutons(2).clic();
        charge_tout();
        m.port.ecritures.clear();
        cmd_moteur::baselinepaddle = 4;
        bargeneral.visible(general);
        (general ? bargeneral_boutons(2) : baraltaz_boutons(2)).clic();
        EXPECT_EQ(m.port.ecritures, vers_raquette);
        EXPECT_EQ(cmd_moteur::baselinepaddle, 0);
        EXPECT_TRUE(Timer.marche());
        for (auto* p : {&frmaltazpilot::fiche, &frmaltazsuivi::fiche, &frmconfig::fiche, &frmequapilot::fiche,
                        &frmequaconfig::fiche})
            EXPECT_FALSE(p->est_charge()) << p->nom();
        EXPECT_TRUE(frmcoord::fiche.est_charge()) << "the clock goes on";
        EXPECT_TRUE(heuretimer.marche());
        EXPECT_EQ(baraltaz.visible(), !general);
        EXPECT_TRUE(frmraquette::fiche.est_visible());
        (general ? bargeneral_boutons(1) : baraltaz_boutons(1)).clic();
        EXPECT_FALSE(frmraquette::fiche.est_charge() || Timer.marche());
    }
}

TEST(modes, coordonnees_cachees_et_montrees) {
    machine_essai m;
    programme::demarre();
    barchoix_boutons(2).clic();
    frmcoord::txtcoordaz1.ecrit("12");
    baraltaz_boutons(7).clic();
    EXPECT_FALSE(frmcoord::fiche.est_visible());
    EXPECT_EQ(coordvisible, false);
    EXPECT_TRUE(heuretimer.marche());
    baraltaz_boutons(7).clic();
    EXPECT_TRUE(frmcoord::fiche.est_visible());
    EXPECT_EQ(coordvisible, true);
    EXPECT_EQ(frmcoord::txtcoordaz1.lit(), "12");
}

TEST(modes, suivi_au_menu_apres_les_parametres) {
    machine_essai m;
    programme::demarre();
    barchoix_boutons(2).clic();
    baraltaz_boutons(6).clic();
    EXPECT_TRUE(frmconfig::fiche.est_visible());
    EXPECT_FALSE(mnusuivi.actif());
    frmconfig::fiche.ferme();
    mnuparaaltaz.clic();
    EXPECT_TRUE(frmconfig::fiche.est_visible());
    EXPECT_TRUE(mnusuivi.actif());
    EXPECT_EQ(m.port.ecritures.size(), 0u);
}

} // namespace
