// Where the windows stand, and what the keys and a late release reach.
#include "fenetres.h"

#include "drive/etat_moteur.h"
#include "fields/frmCercle_champs.h"
#include "fields/frmDepl_champs.h"
#include "fields/frmaltazpilot_champs.h"

#include <QListWidget>
#include <QMdiArea>
#include <QScrollBar>

namespace {

class place : public essais::fenetres {
  protected:
    using essais::fenetres::fenetres;
    void SetUp() override {
        essais::fenetres::SetUp();
        clique("frminterface", "barchoix(2)");
    }
    QMdiArea* zone() { return principale()->findChild<QMdiArea*>(); }
    QMdiSubWindow* sous(const shell::panneau& p) {
        return piece<QMdiSubWindow>(std::string{p.nom()}.c_str());
    }
    static std::vector<shell::panneau*> enfants() {
        std::vector<shell::panneau*> v;
        for (auto* p : programme::registre().panneaux)
            if (!p->options().principal && !p->options().sans_bord)
                v.push_back(p);
        return v;
    }
    // Whole where it fits; else its upper left corner, and its stop if it has one.
    void verifie(const shell::panneau& p) {
        const auto visible = zone()->viewport()->rect();
        const auto g = sous(p)->geometry();
        EXPECT_TRUE(visible.contains(g.topLeft())) << p.nom();
        if (g.width() <= visible.width() && g.height() <= visible.height()) {
            EXPECT_TRUE(visible.contains(g)) << p.nom();
        }
        for (const auto* c : p.controles())
            if (c->a(shell::echap)) {
                const auto* w = sous(p)->findChild<QWidget*>(QString::fromStdString(c->nom()));
                EXPECT_TRUE(visible.contains(QRect{w->mapTo(zone()->viewport(), QPoint{}), w->size()}));
            }
    }
    bool barres() {
        return zone()->horizontalScrollBar()->isVisible() || zone()->verticalScrollBar()->isVisible();
    }
};

class place_a_l_echelle : public place, public testing::WithParamInterface<const char*> {
  protected:
    place_a_l_echelle() : place(GetParam()) {}
};

// In the frame that a screen of 1366 x 768 leaves.
TEST_P(place_a_l_echelle, panels_open_whole_and_come_back_inside) {
    const double echelle = std::atof(GetParam());
    principale()->resize(std::min(1000, static_cast<int>(1366 / echelle) - 16),
                         static_cast<int>(768 / echelle) - 40);
    for (auto* p : enfants()) {
        p->montre();
        verifie(*p);
        EXPECT_FALSE(sous(*p)->windowFlags() & Qt::WindowMaximizeButtonHint) << p->nom();
    }
    for (auto* p : enfants())
        p->decharge();
    EXPECT_FALSE(barres());
    frmaltazpilot::fiche.montre();
    sous(frmaltazpilot::fiche)->move(500, 10);
    frmaltazpilot::pied.lblvit.clic(); // wider
    verifie(frmaltazpilot::fiche);
    frmCercle::fiche.montre();
    if (barres()) { // at 1.5 and 2: the chart is larger than the frame
        zone()->verticalScrollBar()->setValue(zone()->verticalScrollBar()->maximum());
        frmDepl::fiche.montre();
        verifie(frmDepl::fiche);
    }
}
INSTANTIATE_TEST_SUITE_P(echelles, place_a_l_echelle, testing::Values("1", "1.5", "2"),
                         [](const auto& essai) {
                             return "s" + std::to_string(static_cast<int>(std::atof(essai.param) * 100));
                         });

class grand_ecran : public place {
  protected:
    grand_ecran() : place("3") {}
};

TEST_F(grand_ecran, the_frame_is_no_larger_than_the_screen_and_keeps_its_windows_when_it_shrinks) {
    EXPECT_TRUE(principale()->screen()->availableGeometry().contains(principale()->geometry()));
    frmaltazpilot::fiche.montre();
    sous(frmaltazpilot::fiche)->move(350, 0);
    principale()->resize(500, 450);
    QTest::qWait(50);
    verifie(frmaltazpilot::fiche);
    EXPECT_FALSE(barres());
}

// ---- late releases

TEST_F(place, a_release_after_the_panel_has_gone_loads_nothing) {
    auto& notes = fiche("Frmnotes");
    notes.montre();
    auto* bouton = piece("Frmnotes", "Picturesave");
    QTest::mousePress(bouton, Qt::LeftButton);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Q, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !notes.est_charge(); })); // a key's click takes its time
    QTest::mouseRelease(bouton, Qt::LeftButton);
    EXPECT_FALSE(notes.est_charge());
    frmDepl::fiche.montre();
    presse("frmDepl", "cmstoppointage");
    frmDepl::fiche.decharge();
    QTest::mouseRelease(piece("frmDepl", "cmstoppointage"), Qt::LeftButton);
    EXPECT_FALSE(frmDepl::fiche.est_charge());
}

// ---- the focus

TEST_F(place, no_key_reaches_what_lies_beyond_the_edge) {
    auto& pilotage = frmaltazpilot::fiche;
    pilotage.montre();
    const auto parcourt = [&] { // how many of the section's controls the tab key reaches
        int dehors = 0;
        for (int i = 0; i < 40; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            const auto* w = QApplication::focusWidget();
            dehors += sous(pilotage)->isAncestorOf(w) && w->mapTo(sous(pilotage), QPoint{}).x() > 366;
        }
        return dehors;
    };
    EXPECT_EQ(parcourt(), 0);
    frmaltazpilot::pied.lblvit.clic();
    EXPECT_GT(parcourt(), 10);
    piece("frmaltazpilot", "HScroll1")->setFocus();
    frmaltazpilot::pied.lblvit.clic();
    EXPECT_NE(QApplication::focusWidget(), piece("frmaltazpilot", "HScroll1"));
    EXPECT_TRUE(sous(pilotage)->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(place, the_focus_is_seen_and_first_on_nothing_that_an_arrow_alters) {
    for (auto* p : enfants()) {
        if (p == &frmCercle::fiche)
            continue; // all keys are the chart's
        p->montre();
        const auto* premier = QApplication::focusWidget();
        ASSERT_TRUE(sous(*p)->isAncestorOf(premier)) << p->nom();
        EXPECT_FALSE(qobject_cast<const QAbstractSlider*>(premier) ||
                     qobject_cast<const QListWidget*>(premier))
            << p->nom();
        QTest::qWait(1);
        for (const auto* c : p->controles()) {
            auto* w = sous(*p)->findChild<QWidget*>(QString::fromStdString(c->nom()));
            if (!w || !w->isVisible() || !(w->focusPolicy() & Qt::TabFocus))
                continue;
            sous(*p)->widget()->setFocus();
            const auto sans = sous(*p)->grab().toImage();
            w->setFocus();
            EXPECT_NE(sous(*p)->grab().toImage(), sans) << p->nom() << "." << c->nom();
        }
        p->decharge();
    }
}

TEST_F(place, a_field_without_the_focus_shows_its_beginning) {
    fiche("frmconfig").montre();
    auto* champ = piece<QLineEdit>("frmconfig", "txtapas");
    champ->setFocus();
    QTest::keyClicks(champ, "9999999999999995");
    piece("frmconfig", "txthpas")->setFocus();
    EXPECT_EQ(champ->cursorPosition(), 0);
}

// ---- Escape

TEST_F(place, escape_stops_a_jog_from_anywhere) {
    frmaltazpilot::fiche.montre();
    const std::function<void()> ailleurs[] = {
        [this] { zone()->setActiveSubWindow(nullptr); },
        [this] {
            fiche("frmaltazpointage").montre();
            piece("frmaltazpointage", "cbpointaz")->setFocus(); // takes Escape for itself
        },
        [] { frmCercle::fiche.montre(); },
    };
    QTimer::singleShot(20'000, [] {
        ADD_FAILURE() << "still jogging";
        cmd_moteur::cmdsens = 0;
    });
    for (const auto& la : ailleurs) {
        la();
        const int avant = port.impulsions;
        port.apres(avant + 10, [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
        frmaltazpilot::deplacement.cmdad.clic();
        EXPECT_LE(port.impulsions, avant + 13);
    }
    frmCercle::fiche.decharge();
    EXPECT_EQ(zone()->activeSubWindow(), sous(frmaltazpilot::fiche)) << "one with a stop first";
    EXPECT_FALSE(fiche("frmequapilot").est_charge() || frmDepl::fiche.est_charge());
}

} // namespace
