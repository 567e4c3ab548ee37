#include "drive/etat_moteur.h"
#include "machine_essai.h"
#include "settings/etat_suivi.h"
#include "settings/frmconfig_champs.h"
#include "shell/frmcoord_champs.h"
#include "shell/frminterface_champs.h"
#include "sky/position.h"
#include "tracking/frmaltazsuivi_champs.h"
#include "tracking/tic_suivi.h"

#include <gtest/gtest.h>

namespace {

using essais::machine_essai;
using namespace frminterface;
using frmaltazsuivi::fiche;
using frmaltazsuivi::timcompteur;

enum class etat { ouvert, suivi, pause };

void amene(etat e) {
    programme::demarre();
    barchoix_boutons(2).clic();
    baraltaz_boutons(6).clic();
    frmconfig::cmdchoix.joignable();
    frmconfig::lbObjets.choisit(0);
    frmconfig::cmdchoix.clic();
    baraltaz_boutons(5).clic();
    if (e != etat::ouvert)
        frmaltazsuivi::cmdcalcul.clic();
    if (e == etat::pause)
        frmaltazsuivi::cmdstop.clic();
}

// Every road out, in every state: the button alone starts the clock again and forgets the object; whatever
// the road, the panel's timer is off and the configuration panel has its other size, unless it goes too.
TEST(frmaltazsuivi, fermetures) {
    const struct {
        const char* route;
        void (*ferme)();
        bool bouton, config_reste, coord_reste;
    } routes[] = {
        {"Cmdquit", [] { frmaltazsuivi::Cmdquit.clic(); }, true, true, true},
        {"close box", [] { fiche.ferme(); }, false, true, true},
        {"paddle mode", [] { baraltaz_boutons(2).clic(); }, false, false, true},
        {"equatorial mode", [] { Equatorial.clic(); }, false, false, false},
    };
    for (const auto e : {etat::ouvert, etat::suivi, etat::pause})
        for (const auto& r : routes) {
            machine_essai m;
            amene(e);
            const bool horloge_avant = heuretimer.marche();
            EXPECT_EQ(horloge_avant, e == etat::ouvert);
            EXPECT_EQ(timcompteur.marche(), e == etat::suivi);
            frmcoord::txtms.ecrit("300");
            general::ecartaz = 5;
            tracking::prive.altold = 7;
            r.ferme();
            EXPECT_FALSE(fiche.est_charge()) << r.route;
            EXPECT_FALSE(timcompteur.regarde_marche()) << r.route;
            EXPECT_EQ(m.boucle.armes.count(&timcompteur), 0U) << r.route;
            EXPECT_EQ(tracking::prive.altold, 0) << r.route;
            EXPECT_EQ(frmconfig::fiche.est_charge(), r.config_reste) << r.route;
            EXPECT_EQ(frmconfig::fiche.regarde_largeur(), r.config_reste ? 7035 : 7260) << r.route;
            EXPECT_EQ(frmconfig::fiche.regarde_hauteur(), r.config_reste ? 6075 : 5835) << r.route;
            EXPECT_EQ(heuretimer.marche(), r.bouton || (horloge_avant && r.coord_reste)) << r.route;
            EXPECT_EQ(general::ecartaz, r.bouton ? 0 : 5) << r.route;
            EXPECT_EQ(tracking::objetchoisi, !r.bouton) << r.route;
            EXPECT_EQ(tracking::suiviouvert, !r.bouton) << r.route;
            EXPECT_EQ(frmcoord::fiche.est_charge(), r.coord_reste) << r.route;
            if (r.coord_reste) {
                EXPECT_EQ(frmcoord::txtms.lit(), r.bouton ? "0" : "300") << r.route;
            }
        }
}

// The menu entry waits for the configuration panel opened by the menu; the toolbar's button does not.
TEST(frmaltazsuivi, ouvertures) {
    machine_essai m;
    programme::demarre();
    altazimutal.clic();
    mnusuivi.clic();
    EXPECT_FALSE(fiche.est_charge());
    baraltaz_boutons(5).clic();
    EXPECT_TRUE(fiche.est_visible());
    frmaltazsuivi::Cmdquit.clic();
    baraltaz_boutons(6).clic();
    mnusuivi.clic();
    EXPECT_FALSE(fiche.est_charge());
    mnuparaaltaz.clic();
    mnusuivi.clic();
    EXPECT_TRUE(fiche.est_visible());
    EXPECT_EQ(m.port.ecritures.back(), (std::pair{890, 1}));
}

// Without an object chosen, what the telescope points at is followed and shown as the object.
TEST(frmaltazsuivi, lieu_pointe) {
    machine_essai m;
    programme::demarre();
    barchoix_boutons(2).clic();
    baraltaz_boutons(6).clic();
    frmconfig::cmdinitcoord.clic();
    general::posaz = 700000;
    general::posalt = 100000;
    baraltaz_boutons(5).clic();
    Timer.marche(true);
    frmaltazsuivi::cmdcalcul.clic();
    EXPECT_FALSE(Timer.marche());
    EXPECT_NEAR(general::posaz, 700000, 1e-4);
    EXPECT_NEAR(general::posalt, 100000, 1e-4);
    EXPECT_EQ(frmaltazsuivi::Txtad_h.lit(), frmconfig::Txtad_h.lit());
    EXPECT_EQ(frmaltazsuivi::txtad_min.lit(), frmconfig::txtad_min.lit());
    EXPECT_EQ(frmconfig::txtsign.lit(), "-") << "28 degrees up in the south-west";
    EXPECT_EQ(frmaltazsuivi::txtsign.lit(), "-");
    m.port.ecritures.clear();
    m.boucle.tic(timcompteur); // the clock stands: one second ahead of the start
    EXPECT_EQ(m.port.ecritures.empty(), false);
}

// In paddle mode's hands: the register, and a scan that a resume leaves on.
TEST(frmaltazsuivi, raquette_pendant_la_pause) {
    machine_essai m;
    amene(etat::suivi);
    m.port.ecritures.clear();
    frmaltazsuivi::cmdraquette.clic();
    EXPECT_TRUE(m.port.ecritures.empty()) << "not available while tracking";
    frmaltazsuivi::cmdstop.clic();
    cmd_moteur::baselinepaddle = 12;
    frmaltazsuivi::cmdraquette.clic();
    EXPECT_EQ(m.port.ecritures, (std::vector<std::pair<int, int>>{{890, 11}, {888, 0}}));
    EXPECT_EQ(cmd_moteur::baselinepaddle, 0);
    EXPECT_TRUE(Timer.marche());
    frmaltazsuivi::cmdstop.clic();
    EXPECT_TRUE(Timer.marche());
    EXPECT_TRUE(timcompteur.marche());
    frmaltazsuivi::cmdcalcul.clic();
    EXPECT_FALSE(Timer.marche());
}

} // namespace
