// The bench's paddle on the real windows: what a held key makes of the mount.
#include "bench/fenetre_banc.h"
#include "bench/raquette_banc.h"
#include "fenetres.h"

#include "piloting/frmraquette_champs.h"
#include "shell/frminterface_champs.h"

#include <QPushButton>
#include <QSlider>

namespace {

using banc::touche_raquette;

// Made before the program that runs on it.
struct avec_etabli {
    banc::etabli etabli{[] { return std::int64_t{0}; }}; // its lateness is no matter here
    banc::horloge_banc civile{[] { return std::int64_t{0}; }, [] { return 0; }};
};

class raquette_du_banc : protected avec_etabli, public essais::fenetres {
  protected:
    raquette_du_banc()
        : fenetres({.port = etabli.port(),
                    .horloge = civile,
                    .attente = [](std::int64_t) {},
                    .donnees = DONNEES}) {}
    void SetUp() override {
        fenetres::SetUp();
        fenetre = std::make_unique<banc::fenetre_banc>(etabli, civile);
        fenetre->show();
        fenetre->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
    }
    QPushButton* touche(const char* nom) { return fenetre->findChild<QPushButton*>(nom); }
    banc::impulsions comptes() { return etabli.mount().compte(); }

    std::unique_ptr<banc::fenetre_banc> fenetre;
};

TEST_F(raquette_du_banc, a_held_key_turns_the_mount_until_it_is_released) {
    frminterface::barchoix_boutons(1).clic();
    frminterface::barequa_boutons(2).clic();
    QTest::mousePress(touche("raquette_droite"), Qt::LeftButton);
    EXPECT_EQ(etabli.port().code(), 9) << "medium speed at first";
    // The scan comes within its 100 ms, and its loop runs inside; released from a yield of it.
    QTimer::singleShot(400, [this] { QTest::mouseRelease(touche("raquette_droite"), Qt::LeftButton); });
    QTest::qWait(600);
    const auto n = comptes().az0;
    EXPECT_GT(n, 0u);
    EXPECT_EQ(comptes().az8 + comptes().alt0 + comptes().alt2, 0u);
    QTest::qWait(250);
    EXPECT_EQ(comptes().az0, n) << "released: no further pulse";
    EXPECT_EQ(etabli.port().code(), 11);
}

TEST_F(raquette_du_banc, arrows_and_switches_make_the_codes_of_the_hardware) {
    frminterface::barchoix_boutons(1).clic();
    frminterface::Timer.marche(false);
    const struct {
        Qt::Key touche;
        int codes[3]; // slow, medium, fast
    } cas[] = {{Qt::Key_Up, {10, 3, 2}},
               {Qt::Key_Down, {26, 19, 18}},
               {Qt::Key_Right, {15, 9, 13}},
               {Qt::Key_Left, {143, 137, 141}}};
    auto* az = fenetre->findChild<QSlider*>("raquette_vitesse_az");
    auto* alt = fenetre->findChild<QSlider*>("raquette_vitesse_alt");
    for (int v = 0; v < 3; ++v) {
        az->setValue(v);
        alt->setValue(v);
        for (const auto& c : cas) {
            QTest::keyPress(fenetre.get(), c.touche);
            EXPECT_EQ(etabli.port().code(), c.codes[v]);
            QTest::keyRelease(fenetre.get(), c.touche);
            EXPECT_EQ(etabli.port().code(), 11);
        }
    }
    // The switch turned during a press changes the code; an arrow on a focused slider is still the paddle's.
    QTest::keyPress(az, Qt::Key_Left);
    EXPECT_EQ(etabli.port().code(), 141);
    az->setValue(0);
    EXPECT_EQ(etabli.port().code(), 143);
    EXPECT_EQ(az->value(), 0);
    QTest::keyRelease(az, Qt::Key_Left);
}

TEST_F(raquette_du_banc, a_key_is_let_go_when_the_window_is_left_or_closed) {
    QTest::keyPress(fenetre.get(), Qt::Key_Up);
    EXPECT_NE(etabli.port().code(), 11);
    principale()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(principale()));
    EXPECT_TRUE(QTest::qWaitFor([this] { return etabli.port().code() == 11; }));

    fenetre->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
    QTest::mousePress(touche("raquette_bas"), Qt::LeftButton);
    EXPECT_NE(etabli.port().code(), 11);
    fenetre->close();
    EXPECT_EQ(etabli.port().code(), 11);

    fenetre->show();
    fenetre->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
    auto* b = touche("raquette_haut");
    QTest::mousePress(b, Qt::LeftButton);
    QTest::mouseRelease(b, Qt::LeftButton, {}, QPoint{-80, 300}); // outside the key
    EXPECT_EQ(etabli.port().code(), 11);
}

} // namespace
