// An object chosen and followed with real clicks: start, pause, resume, quit; and the sidereal drive.
#include "fenetres.h"

#include "piloting/frmequapilot_champs.h"
#include "shell/frminterface_champs.h"
#include "tracking/frmaltazsuivi_champs.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace {

class suivi : public essais::fenetres {
  protected:
    QString texte(const char* panneau, const char* nom) {
        return static_cast<QLineEdit*>(piece(panneau, nom))->text();
    }
};

TEST_F(suivi, an_object_is_chosen_followed_paused_resumed_and_left) {
    clique("frminterface", "barchoix(2)");
    clique("frminterface", "baraltaz(6)");
    clique("frmconfig", "cmdinitcoord");
    auto* l = static_cast<QListWidget*>(piece("frmconfig", "lbObjets"));
    l->scrollToItem(l->item(12));
    QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, l->visualItemRect(l->item(12)).center());
    clique("frmconfig", "cmdchoix");
    EXPECT_EQ(texte("frmconfig", "Txtad_h"), " 16"); // M13
    clique("frmconfig", "cmdreinit");

    clique("frminterface", "baraltaz(5)");
    ASSERT_TRUE(piece("frmaltazsuivi")->isVisible());
    tape("frmaltazsuivi", "txtincrement", "100");
    clique("frmaltazsuivi", "cmdcalcul");
    EXPECT_TRUE(frmaltazsuivi::timcompteur.regarde_marche());
    EXPECT_FALSE(frminterface::heuretimer.regarde_marche());
    port.ecritures.clear();
    const int avant = port.impulsions;
    QTest::qWait(2000);
    // 15 arcseconds of sky a second, 6.48 a step: a few steps in twenty ticks.
    EXPECT_GT(port.impulsions, avant);
    EXPECT_LT(port.impulsions, avant + 40);
    EXPECT_FALSE(texte("frmaltazsuivi", "txtah").isEmpty());

    auto* pause = static_cast<QPushButton*>(piece("frmaltazsuivi", "cmdstop"));
    QTest::mouseClick(pause, Qt::LeftButton);
    EXPECT_EQ(pause->text(), "reprise");
    EXPECT_TRUE(piece("frmaltazsuivi", "cmdraquette")->isEnabled());
    const int en_pause = port.impulsions;
    QTest::qWait(500);
    EXPECT_EQ(port.impulsions, en_pause);
    QTest::mouseClick(pause, Qt::LeftButton);
    EXPECT_EQ(pause->text(), "Pause");
    EXPECT_FALSE(piece("frmaltazsuivi", "cmdraquette")->isEnabled());
    QTest::qWait(1500);
    EXPECT_GT(port.impulsions, en_pause);

    clique("frmaltazsuivi", "Cmdquit");
    EXPECT_FALSE(piece("frmaltazsuivi")->isVisible());
    EXPECT_FALSE(frmaltazsuivi::fiche.est_charge());
    EXPECT_TRUE(frminterface::heuretimer.regarde_marche());
    const int quitte = port.impulsions;
    QTest::qWait(400);
    EXPECT_EQ(port.impulsions, quitte);
}

TEST_F(suivi, the_sidereal_drive_starts_and_stops_by_its_buttons) {
    clique("frminterface", "barchoix(1)");
    clique("frminterface", "barequa(3)");
    QTest::mouseClick(piece("frmequapilot", "cmdgo"), Qt::LeftButton);
    EXPECT_TRUE(frmequapilot::timersuivi.regarde_marche());
    // 15.04 arcseconds a second, 6.48 a step (15.04 x 2 x 200 x 500 / 1296000), in the last digit as the
    // shortest text.
    EXPECT_NEAR(texte("frmequapilot", "txtpas").toDouble(), 2.32098765, 1e-8);
    EXPECT_EQ(texte("frmequapilot", "txtessai"), "0") << "the clock stands still: no burst";
    QTest::qWait(300);
    EXPECT_EQ(port.impulsions, 0);
    horloge.seconde = 1;
    EXPECT_TRUE(QTest::qWaitFor([this] { return port.impulsions == 2; }, 1000));
    EXPECT_EQ(texte("frmequapilot", "txtessai"), "1");
    QTest::mousePress(piece("frmequapilot", "cmdstopgo"), Qt::LeftButton);
    EXPECT_FALSE(frmequapilot::timersuivi.regarde_marche());
    QTest::mouseRelease(piece("frmequapilot", "cmdstopgo"), Qt::LeftButton);
    horloge.seconde = 2;
    QTest::qWait(300);
    EXPECT_EQ(port.impulsions, 2);
}

} // namespace
