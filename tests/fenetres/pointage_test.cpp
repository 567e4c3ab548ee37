// Objects picked and slewed to with real clicks, on both mounts.
#include "fenetres.h"

#include "pointing/etat_pointage.h"
#include "pointing/frmDepl_champs.h"
#include "shell/frminterface_champs.h"
#include "sky/position.h"

#include <QListWidget>
#include <QMenu>
#include <QProgressBar>

namespace {

class pointage : public essais::fenetres {
  protected:
    QListWidget* objets(const char* panneau, const char* liste = "lbObjets") {
        return static_cast<QListWidget*>(piece(panneau, liste));
    }
    static QPoint milieu(QListWidget* l, int ligne) {
        l->scrollToItem(l->item(ligne));
        return l->visualItemRect(l->item(ligne)).center();
    }
    // A real double click is a press, a release and a second press.
    static void double_clique(QListWidget* l, int ligne) {
        const auto ou = milieu(l, ligne);
        QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, ou);
        QTest::mouseDClick(l->viewport(), Qt::LeftButton, {}, ou);
    }
    static QMenu* menu_ouvert() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
};

TEST_F(pointage, the_equatorial_mount_goes_to_an_object_after_an_alignment_star) {
    clique("frminterface", "barchoix(1)");
    clique("frminterface", "barequa(4)");
    EXPECT_FALSE(objets("frmequapointage")->isVisible());
    double_clique(objets("frmequapointage", "lbEtoiles"), 0);
    ASSERT_TRUE(objets("frmequapointage")->isVisible());
    port.ecritures.clear();

    // Stopped by the mouse, once the window shows the first axis on its way.
    int a_l_arret = 0;
    port.apres(4000, [&] {
        EXPECT_TRUE(piece("frmDepl")->isVisible());
        EXPECT_GT(static_cast<QProgressBar*>(piece("frmDepl", "ProgressBaraz"))->value(), 0);
        a_l_arret = port.impulsions;
        QTest::mousePress(piece("frmDepl", "cmstoppointage"), Qt::LeftButton);
    });
    double_clique(objets("frmequapointage"), 30);
    EXPECT_GE(a_l_arret, 4000);
    EXPECT_LE(port.impulsions, a_l_arret + 1);
    EXPECT_FALSE(piece("frmDepl")->isVisible());
    EXPECT_FALSE(static_cast<bool>(pointing::stoppointage));

    // Escape stops too: the focus is on the stop. It works from the first pulse.
    const int avant = port.impulsions;
    port.apres(avant + 1, [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
    double_clique(objets("frmequapointage"), 60);
    EXPECT_LE(port.impulsions, avant + 3);
    EXPECT_FALSE(piece("frmDepl")->isVisible());

    // And Space.
    const int encore = port.impulsions;
    port.apres(encore + 10, [this] {
        EXPECT_EQ(QApplication::focusWidget(), piece("frmDepl", "cmstoppointage"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    });
    double_clique(objets("frmequapointage"), 10);
    EXPECT_LE(port.impulsions, encore + 12);
}

TEST_F(pointage, the_altazimuth_mount_slews_and_is_stopped) {
    clique("frminterface", "barchoix(2)");
    clique("frminterface", "baraltaz(6)");
    clique("frmconfig", "cmdinitcoord");
    clique("frmconfig",
           "cmdreinit"); // reads the almanac; the object fields are empty, the position moves with them
    clique("frmconfig", "cmdinitcoord");
    clique("frminterface", "baraltaz(4)");
    port.ecritures.clear();
    port.apres(port.impulsions + 300, [this] { clique("frmDepl", "cmstoppointage"); });
    const int avant = port.impulsions;
    double_clique(objets("frmaltazpointage"), 12); // M13, high in an August night
    EXPECT_GE(port.impulsions, avant + 300);
    EXPECT_LE(port.impulsions, avant + 302);
    for (const auto& [registre, valeur] : port.ecritures)
        EXPECT_TRUE(registre == 888 && (valeur == 0 || valeur == 4)) << registre << ':' << valeur;
    EXPECT_NE(general::posaz, 648000.0) << "the part of the way that was sent counts";
    EXPECT_EQ(general::posalt, 108000.0);
}

TEST_F(pointage, a_right_click_opens_the_filter_and_a_filter_leaves_its_kind) {
    clique("frminterface", "barchoix(2)");
    clique("frminterface", "baraltaz(4)");
    auto* l = objets("frmaltazpointage");
    EXPECT_EQ(l->count(), 110);
    QTimer::singleShot(100, [] {
        auto* m = menu_ouvert();
        ASSERT_TRUE(m);
        EXPECT_EQ(m->actions().front()->text(), "TYPE:[AMAS GLOBULAIRE]"); // M2
        for (auto* a : m->actions())
            if (a->objectName() == "mnufilt") {
                m->setActiveAction(a);
                auto* sous = a->menu();
                for (auto* b : sous->actions())
                    if (b->objectName() == "mnugalaxies")
                        QTest::mouseClick(sous, Qt::LeftButton, {}, sous->actionGeometry(b).center());
            }
    });
    const auto ou = milieu(l, 1);
    QTest::mouseClick(l->viewport(), Qt::RightButton, {}, ou);
    EXPECT_EQ(l->count(), 40) << "the galaxies among the 110";
    EXPECT_FALSE(menu_ouvert());
}

} // namespace
