// Everything by the keys, and windows that stay where they were put.
#include "fenetres.h"

#include "drive/etat_moteur.h"
#include "fields/frmaltazpilot_champs.h"
#include "fields/frmequapointage_champs.h"
#include "machines/qt/preferences.h"

#include <QListWidget>
#include <QMenuBar>
#include <QToolBar>

namespace {

using namespace plateforme::qt;

class clavier : public essais::fenetres {
  protected:
    void SetUp() override {
        essais::fenetres::SetUp();
        clique("frminterface", "barchoix(2)");
    }
    static void frappe(Qt::Key k, Qt::KeyboardModifiers m = {}) {
        QTest::keyClick(QApplication::focusWidget(), k, m);
    }
};

TEST_F(clavier, menu_toolbar_lists_and_drawn_buttons) {
    clique("frminterface", "baraltaz(3)");
    for (int i = 0; i < 20 && !qobject_cast<QToolBar*>(QApplication::focusWidget()->parentWidget()); ++i)
        frappe(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), piece("frminterface", "baraltaz(1)"));
    piece("frmaltazpilot", "lblvit")->setFocus();
    frappe(Qt::Key_Space);
    EXPECT_EQ(piece("frmaltazpilot")->width(), 680); // 10200 twips
    frappe(Qt::Key_F10);
    EXPECT_TRUE(qobject_cast<QMenuBar*>(QApplication::focusWidget()));
    frappe(Qt::Key_Escape);

    frmequapointage::fiche.montre();
    auto* etoiles = piece<QListWidget>("frmequapointage", "lbEtoiles");
    etoiles->setFocus();
    int menus = 0;
    for (const auto& [touche, avec] :
         {std::pair{Qt::Key_Menu, Qt::NoModifier}, {Qt::Key_F10, Qt::ShiftModifier}}) {
        au_menu([&](QMenu&) { ++menus; });
        frappe(touche, avec);
    }
    EXPECT_EQ(menus, 2);
    EXPECT_FALSE(piece("frmequapointage", "lbObjets")->isVisible());
    frappe(Qt::Key_Return);
    EXPECT_TRUE(piece("frmequapointage", "lbObjets")->isVisible()) << "aligned, as by a double click";
}

TEST_F(clavier, an_arrow_jogs_until_escape_but_belongs_to_a_bar) {
    clique("frminterface", "baraltaz(3)");
    QTimer::singleShot(20'000, [] {
        ADD_FAILURE() << "still jogging";
        cmd_moteur::cmdsens = 0;
    });
    const auto repete = [] {
        QKeyEvent encore{QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier, {}, true};
        QApplication::sendEvent(QApplication::focusWidget(), &encore);
    };
    port.apres(10, [&] {
        EXPECT_EQ(cmd_moteur::cmdsens, 1);
        QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Right);
        repete();
        EXPECT_EQ(cmd_moteur::cmdsens, 1);
    });
    port.apres(20, [] { frappe(Qt::Key_Escape); });
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_GE(port.impulsions, 20);
    const int alors = port.impulsions;
    repete();
    frappe(Qt::Key_Up, Qt::ControlModifier);
    piece("frmaltazpilot", "slaz")->setFocus();
    frappe(Qt::Key_Left);
    EXPECT_EQ(frmaltazpilot::azimut.curseur.valeur(), 2);
    EXPECT_EQ(port.impulsions, alors);
}

class places : public essais::fenetres {
  protected:
    places() {
        retient_place("frmaltazpilot", {300, 100, 367, 314});
        retient_place("frmconfig", {9000, 9000, 460, 388});
        retient_place("frminterface", {90, 60, 900, 700});
    }
};

TEST_F(places, windows_open_where_they_were_left_and_remember_a_drag) {
    EXPECT_EQ(principale()->geometry(), QRect(90, 60, 900, 700));
    fiche("frmaltazpilot").montre();
    EXPECT_EQ(piece("frmaltazpilot")->pos(), QPoint(300, 100));
    fiche("frmconfig").montre();
    EXPECT_TRUE(piece("frmconfig")->parentWidget()->rect().contains(piece("frmconfig")->geometry()));
    auto* w = piece("frmaltazpilot");
    fiche("frmconfig").decharge();
    QMouseEvent passe{QEvent::MouseMove, QPoint{150, 10}, w->mapToGlobal(QPoint{150, 10}),
                      Qt::NoButton,      Qt::NoButton,    Qt::NoModifier};
    QApplication::sendEvent(w, &passe); // over the title bar
    QTest::mousePress(w, Qt::LeftButton, {}, {150, 10});
    QMouseEvent tire{QEvent::MouseMove, QPoint{120, 40}, w->mapToGlobal(QPoint{120, 40}),
                     Qt::NoButton,      Qt::LeftButton,  Qt::NoModifier};
    QApplication::sendEvent(w, &tire);
    QTest::mouseRelease(w, Qt::LeftButton, {}, {150, 10});
    EXPECT_EQ(w->pos(), QPoint(270, 130));
    EXPECT_EQ(place_retenue("frmaltazpilot")->topLeft(), w->pos());
    oublie_les_places();
    EXPECT_FALSE(place_retenue("frmaltazpilot"));
}

} // namespace
