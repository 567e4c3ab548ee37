// The mount moved by hand, with the mouse and the keys on the real windows.
#include "fenetres.h"

#include "piloting/frmaltazpilot_champs.h"
#include "shell/frminterface_champs.h"

#include <QLineEdit>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QSlider>

namespace {

using cmd_moteur::cmdsens;

class pilotage : public essais::fenetres {
  protected:
    void SetUp() override {
        essais::fenetres::SetUp();
        clique("frminterface", "barchoix(2)");
        clique("frminterface", "baraltaz(3)");
        port.ecritures.clear();
        // Whatever a test forgets, no jog runs for ever.
        QTimer::singleShot(20'000, [] {
            ADD_FAILURE() << "still jogging";
            cmdsens = 0;
        });
    }
    QWidget* bouton(const char* nom) { return piece("frmaltazpilot", nom); }
    void appuie(const char* nom) { QTest::mousePress(bouton(nom), Qt::LeftButton); }
    void relache(const char* nom) { QTest::mouseRelease(bouton(nom), Qt::LeftButton); }

    // The bytes on the data register, each once where it repeats.
    std::vector<int> valeurs() const {
        std::vector<int> v;
        for (const auto& [registre, valeur] : port.ecritures)
            if (std::find(v.begin(), v.end(), valeur) == v.end())
                v.push_back(valeur);
        return v;
    }
};

TEST_F(pilotage, the_panel_opens_at_its_size_with_the_stop_in_hand) {
    const auto* sous = bouton(nullptr);
    EXPECT_TRUE(sous->isVisible());
    EXPECT_EQ(sous->size(), QSize(367, 314)); // 5500 x 4710 twips
    EXPECT_EQ(sous->windowTitle(), "Pilotage");
    EXPECT_EQ(QApplication::focusWidget(), bouton("cmddstop"));
    QTest::mouseClick(bouton("lblvit"), Qt::LeftButton);
    EXPECT_EQ(sous->width(), 680); // 10200 twips
    QTest::mouseDClick(bouton(nullptr), Qt::LeftButton, {}, {180, 10});
    EXPECT_FALSE(sous->isMaximized());
}

// The jog starts at the release of its button and goes on after it; the stop acts at its press.
TEST_F(pilotage, a_jog_by_the_mouse_until_the_stop_is_pressed) {
    appuie("cmdag");
    EXPECT_EQ(port.impulsions, 0);
    const auto passes = s->boucle().passes();
    int a_l_appui = 0;
    port.apres(50, [&] {
        EXPECT_EQ(cmdsens, 2);
        EXPECT_TRUE(frmaltazpilot::cmdag.regarde_enfonce());
        appuie("cmddstop");
        EXPECT_EQ(cmdsens, 0);
        a_l_appui = port.impulsions;
    });
    relache("cmdag");
    EXPECT_GE(a_l_appui, 50);
    EXPECT_LE(port.impulsions, a_l_appui + 1);
    EXPECT_EQ(valeurs(), (std::vector{0, 4}));
    EXPECT_FALSE(frmaltazpilot::cmdag.regarde_enfonce());
    EXPECT_EQ(s->boucle().passes() - passes, static_cast<std::uint64_t>(2 * port.impulsions));
    relache("cmddstop");
    EXPECT_EQ(cmdsens, 0);
}

TEST_F(pilotage, a_release_beside_the_button_starts_nothing) {
    appuie("cmdag");
    QTest::mouseMove(bouton("cmdag"), {-20, -20});
    QTest::mouseRelease(bouton("cmdag"), Qt::LeftButton, {}, {-20, -20});
    EXPECT_TRUE(port.ecritures.empty());
}

TEST_F(pilotage, the_keys_stop_a_jog) {
    for (const auto touche : {Qt::Key_Escape, Qt::Key_Space}) {
        const int avant = port.impulsions;
        port.apres(avant + 20, [&] {
            if (touche == Qt::Key_Escape)
                EXPECT_EQ(QApplication::focusWidget(), bouton("cmdad"));
            else
                bouton("cmddstop")->setFocus();
            QTest::keyPress(QApplication::focusWidget(), touche);
            EXPECT_EQ(cmdsens, 0);
        });
        bouton("cmdad")->setFocus();
        clique("frmaltazpilot", "cmdad");
        EXPECT_GE(port.impulsions, avant + 20);
        EXPECT_LE(port.impulsions, avant + 23);
    }
    EXPECT_EQ(valeurs(), (std::vector{8, 12}));
}

TEST_F(pilotage, closing_the_panel_stops_the_jog) {
    port.apres(20, [this] {
        static_cast<QMdiSubWindow*>(bouton(nullptr))->close();
        EXPECT_FALSE(fiche("frmaltazpilot").est_charge());
    });
    auto* sous = bouton(nullptr);
    clique("frmaltazpilot", "cmdhh");
    EXPECT_EQ(cmdsens, 0);
    EXPECT_LE(port.impulsions, 23);
    EXPECT_FALSE(sous->isVisible());
    clique("frminterface", "baraltaz(3)");
    EXPECT_EQ(bouton(nullptr), sous) << "its widgets are kept for the whole run";
    EXPECT_TRUE(sous->isVisible());
}

TEST_F(pilotage, a_second_direction_takes_over) {
    port.apres(20, [this] { clique("frmaltazpilot", "cmdhh"); });
    port.apres(40, [this] {
        EXPECT_FALSE(frmaltazpilot::cmdad.regarde_enfonce());
        port.ecritures.clear();
    });
    port.apres(60, [this] { appuie("cmddstop"); });
    clique("frmaltazpilot", "cmdad");
    EXPECT_EQ(valeurs(), (std::vector{2, 3})) << "the first axis stands still, to the last step of its loop";
    EXPECT_EQ(cmdsens, 0);
}

TEST_F(pilotage, a_slider_changes_the_speed_of_a_running_jog) {
    auto* curseur = static_cast<QSlider*>(bouton("slaz"));
    EXPECT_EQ(curseur->value(), 3);
    port.apres(20, [&] {
        curseur->setFocus();
        QTest::keyClick(curseur, Qt::Key_Right);
    });
    port.apres(30, [this] { appuie("cmddstop"); });
    clique("frmaltazpilot", "cmdag");
    EXPECT_EQ(cmd_moteur::tempopas, cmd_moteur::vitessealtaz[4]);
    EXPECT_EQ(static_cast<QLineEdit*>(bouton("txtnumaz"))->text(), "5");
    EXPECT_EQ(static_cast<QLineEdit*>(bouton("txtv_az"))->text(), "IIIIIIIIIIIII");
}

// A change by code is no act of the user: it runs no handler that the code did not run itself.
TEST_F(pilotage, the_store_and_the_widgets_agree_without_echo) {
    auto* champ = static_cast<QLineEdit*>(bouton("tAZ(0)"));
    auto* barre = static_cast<QScrollBar*>(bouton("HScroll1"));
    frmaltazpilot::reglage.champ(0).ecrit("24.68");
    frmaltazpilot::reglage.barre(0).place(25);
    EXPECT_EQ(barre->value(), 25);
    EXPECT_EQ(champ->text(), "24.68");
    QTest::mouseClick(bouton("lblvit"), Qt::LeftButton);
    barre->setFocus();
    QTest::keyClick(barre, Qt::Key_Right);
    EXPECT_EQ(champ->text(), "26");
    champ->selectAll();
    QTest::keyClicks(champ, "12,");
    QTest::sendKeyEvent(QTest::Click, champ, Qt::Key_Eacute, QString{"é"}, Qt::NoModifier);
    EXPECT_EQ(frmaltazpilot::reglage.champ(0).lit(), "12,é");
    EXPECT_EQ(barre->value(), 26);
}

} // namespace
