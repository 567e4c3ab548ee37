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

TEST(modes, altazimutal_par_la_barre_cachee) {
    machine_essai m;
    programme::demarre();
    barchoix_boutons(1).clic();
    charge_tout();
    m.port.ecritures.clear();
    bargeneral.visible(true);
    bargeneral_boutons(4).clic();
    EXPECT_TRUE(baraltaz.visible() && !barequa.visible() && bargeneral.visible());
    EXPECT_TRUE(frmcoord::fiche.est_visible() && heuretimer.marche());
    EXPECT_FALSE(frmequapilot::fiche.est_charge() || frmequaconfig::fiche.est_charge());
    EXPECT_TRUE(frmaltazpilot::fiche.est_charge() && frmconfig::fiche.est_charge());
    EXPECT_EQ(pointing::panneaualtaz, true);
    EXPECT_TRUE(m.port.ecritures.empty());
}

} // namespace
