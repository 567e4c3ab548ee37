// From the start to idle, the modes by toolbar and by menu, and the ends of the process.
#include "fenetres.h"

#include "base/fatale.h"
#include "platform/qt/fin.h"
#include "shell/frminterface_champs.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

namespace {

using namespace frminterface;

class demarrage : public essais::fenetres {
  protected:
    bool montree(const char* barre) { return piece("frminterface", barre)->isVisible(); }

    QMenu* menu(const char* nom) { return principale()->findChild<QMenu*>(nom); }

    // Opens "Télescope" with the mouse and gives the place of an entry there.
    QPoint dans_telescope(const char* nom) {
        auto* barre = principale()->findChild<QMenuBar*>();
        auto* action = principale()->findChild<QAction*>("mnutelescope");
        const auto ici = barre->actionGeometry(action).center();
        QTest::mouseMove(barre, ici); // a menu that opens under a resting pointer would not look at it
        QTest::mouseClick(barre, Qt::LeftButton, {}, ici);
        auto* ouvert = menu("mnutelescope.menu");
        EXPECT_TRUE(QTest::qWaitForWindowExposed(ouvert));
        return ouvert->actionGeometry(principale()->findChild<QAction*>(nom)).center();
    }
};

TEST_F(demarrage, only_the_choice_bar_and_an_untouched_port) {
    EXPECT_TRUE(principale()->isVisible());
    EXPECT_EQ(principale()->windowTitle(), "Velmoria : Pilotage de télescopes");
    EXPECT_TRUE(montree("barchoix"));
    for (const auto* barre : {"bargeneral", "barequa", "baraltaz"})
        EXPECT_FALSE(montree(barre)) << barre;
    EXPECT_FALSE(Timer.regarde_marche());
    EXPECT_FALSE(heuretimer.regarde_marche());
    EXPECT_TRUE(port.ecritures.empty());
    EXPECT_FALSE(principale()->findChild<QAction*>("mnusuivi")->isEnabled());
    for (const auto* w : QApplication::topLevelWidgets()) {
        EXPECT_FALSE(w->objectName() == "frmintro" && w->isVisible());
    }
}

TEST_F(demarrage, the_menu_in_its_order) {
    QStringList lu;
    for (const auto* a : principale()->findChild<QMenuBar*>()->actions())
        lu << a->text();
    EXPECT_EQ(lu.join('/'), "Quitter/Télescope/Observations/Aide/A propos de ");
    lu.clear();
    for (const auto* m : {menu("Equatorial.menu"), menu("altazimutal.menu")})
        for (const auto* a : m->actions())
            lu << a->objectName();
    EXPECT_EQ(lu.join('/'),
              "mnupilotageequa/mnupointequa/mnuparaequa/mnupilotagealtaz/mnupointaltaz/mnusuivi/"
              "mnuparaaltaz");
}

TEST_F(demarrage, the_choice_bar_enters_a_mode_and_goes) {
    clique("frminterface", "barchoix(1)");
    EXPECT_TRUE(montree("barequa"));
    EXPECT_FALSE(montree("baraltaz"));
    EXPECT_FALSE(montree("barchoix"));
}

TEST_F(demarrage, computer_and_paddle_control_by_the_toolbar) {
    clique("frminterface", "barchoix(2)");
    EXPECT_TRUE(montree("baraltaz"));
    clique("frminterface", "baraltaz(2)");
    clique("frminterface", "baraltaz(1)");
    const std::vector<std::pair<int, int>> attendues{{890, 11}, {888, 0}, {890, 1}, {888, 0}};
    EXPECT_EQ(port.ecritures, attendues);
}

TEST_F(demarrage, pointing_at_an_entry_opens_its_menu_and_runs_nothing) {
    const auto place = dans_telescope("Equatorial");
    QTest::mouseMove(menu("mnutelescope.menu"), place);
    EXPECT_TRUE(QTest::qWaitFor([this] { return menu("Equatorial.menu")->isVisible(); }));
    EXPECT_FALSE(montree("barequa"));
}

TEST_F(demarrage, a_click_on_an_entry_with_children_runs_its_command) {
    for (const auto& [nom, barre] : {std::pair{"Equatorial", "barequa"}, {"altazimutal", "baraltaz"}}) {
        const auto place = dans_telescope(nom);
        QTest::mousePress(menu("mnutelescope.menu"), Qt::LeftButton, {}, place);
        EXPECT_FALSE(montree(barre)) << "at the press already";
        QTest::mouseRelease(menu("mnutelescope.menu"), Qt::LeftButton, {}, place);
        EXPECT_TRUE(montree(barre));
        EXPECT_FALSE(QApplication::activePopupWidget());
    }
    EXPECT_TRUE(montree("barchoix")) << "the menu leaves the choice bar alone";
}

TEST_F(demarrage, the_return_key_runs_the_command_and_the_arrow_opens_the_menu) {
    dans_telescope("altazimutal");
    auto* ouvert = menu("mnutelescope.menu");
    QTest::keyClick(ouvert, Qt::Key_Down);
    QTest::keyClick(ouvert, Qt::Key_Down);
    QTest::keyClick(ouvert, Qt::Key_Right);
    EXPECT_TRUE(menu("altazimutal.menu")->isVisible());
    EXPECT_FALSE(montree("baraltaz"));
    QTest::keyClick(menu("altazimutal.menu"), Qt::Key_Left);
    QTest::keyClick(ouvert, Qt::Key_Return);
    EXPECT_TRUE(montree("baraltaz"));
    EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(demarrage, a_panel_by_the_menu) {
    const auto place = dans_telescope("Equatorial");
    QTest::mouseMove(menu("mnutelescope.menu"), place);
    auto* sous = menu("Equatorial.menu");
    ASSERT_TRUE(QTest::qWaitFor([sous] { return sous->isVisible(); }));
    QTest::mouseClick(sous, Qt::LeftButton, {}, sous->actionGeometry(sous->actions().front()).center());
    EXPECT_TRUE(piece("frmequapilot")->isVisible());
    EXPECT_FALSE(montree("barequa"));
}

// Calls `f` once a message box stands.
void a_la_boite(std::function<void(QMessageBox&)> f) {
    QTimer::singleShot(20, [f] {
        if (auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            f(*boite);
        else
            a_la_boite(f);
    });
}

// ---- ends of the process: what the port saw is told on the way out

class fin_du_programme : public demarrage {
  protected:
    void SetUp() override {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        demarrage::SetUp();
        plateforme::qt::a_la_fin([this] {
            std::fprintf(stderr, "fin :");
            for (const auto& [registre, valeur] : port.ecritures)
                std::fprintf(stderr, " %d=%d", registre, valeur);
            std::fprintf(stderr, " .\n");
        });
    }
};

TEST_F(fin_du_programme, quitter_releases_the_port) {
    EXPECT_EXIT(
        {
            clique("frminterface", "barchoix(2)");
            clique("frminterface", "baraltaz(1)");
            principale()->findChild<QAction*>("Quitter")->trigger();
        },
        testing::ExitedWithCode(0), "fin : 890=1 888=0 890=0 \\.");
}

TEST_F(fin_du_programme, the_close_box_leaves_the_port_as_it_is) {
    EXPECT_EXIT(
        {
            clique("frminterface", "barchoix(2)");
            clique("frminterface", "baraltaz(1)");
            principale()->close();
        },
        testing::ExitedWithCode(0), "fin : 890=1 888=0 \\.");
}

// While the box stands, neither an act nor a timer moves anything, and an open popup has gone.
TEST_F(fin_du_programme, a_failure_shows_one_box_freezes_the_program_and_ends_it) {
    const auto echoue = [this] {
        clique("frminterface", "barchoix(2)");
        dans_telescope("Equatorial");
        a_la_boite([](QMessageBox& boite) {
            baraltaz_boutons(1).clic();
            Quitter.clic();
            std::fprintf(stderr, "%s | %s | %d\n", qPrintable(boite.windowTitle()), qPrintable(boite.text()),
                         QApplication::activePopupWidget() != nullptr);
            QTest::mouseClick(boite.button(QMessageBox::Ok), Qt::LeftButton);
        });
        base::fatale(base::cause::division_par_zero, "essai");
    };
    EXPECT_EXIT(echoue(), testing::ExitedWithCode(1), "Velmoria . division par zéro : essai . 0\nfin : \\.");
}

class sans_donnees : public essais::fenetres {
  protected:
    sans_donnees() : fenetres("1", "/nulle-part") {}
    void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(sans_donnees, the_box_names_the_file_and_lies_under_no_splash) {
    const auto demarre = [this] {
        a_la_boite([](QMessageBox& boite) {
            for (const auto* w : QApplication::topLevelWidgets())
                if (w != &boite && w->isVisible())
                    std::fprintf(stderr, "%s\n", qPrintable(w->objectName()));
            std::fprintf(stderr, "%s\n", qPrintable(boite.text()));
            boite.accept();
        });
        s->demarre();
    };
    EXPECT_EXIT(demarre(), testing::ExitedWithCode(1),
                "introuvable : [^\n]*\nfichier introuvable : /nulle-part/[^\n]*\n$");
}

TEST_F(fin_du_programme, a_second_failure_ends_at_once) {
    const auto echoue = [] {
        a_la_boite([](QMessageBox&) { base::fatale(base::cause::depassement, "seconde"); });
        base::fatale(base::cause::division_par_zero, "essai");
    };
    EXPECT_EXIT(echoue(), testing::ExitedWithCode(1), "capacité : seconde\nfin : \\.");
}

} // namespace
