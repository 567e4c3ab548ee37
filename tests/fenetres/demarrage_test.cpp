// From the start to idle, the menus, the messages and the ends of the process.
#include "fenetres.h"

#include "base/fatale.h"
#include "fields/frminterface_champs.h"
#include "machines/qt/fin.h"

#include <QAction>
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

// An entry that has children and a command: pointing at it opens its menu, a click runs its command.
TEST_F(demarrage, entries_with_children_by_the_mouse) {
    const auto equatorial = dans_telescope("Equatorial");
    auto* ouvert = menu("mnutelescope.menu");
    auto* sous = menu("Equatorial.menu");
    QTest::mouseMove(ouvert, equatorial);
    ASSERT_TRUE(QTest::qWaitFor([sous] { return sous->isVisible(); }));
    choisit(sous->actions().front());
    EXPECT_TRUE(piece("frmequapilot")->isVisible());
    EXPECT_FALSE(montree("barequa"));
    for (const auto& [nom, barre] : {std::pair{"Equatorial", "barequa"}, {"altazimutal", "baraltaz"}}) {
        const auto place = dans_telescope(nom);
        QTest::mousePress(ouvert, Qt::LeftButton, {}, place);
        EXPECT_FALSE(montree(barre)) << "at the press already";
        QTest::mouseRelease(ouvert, Qt::LeftButton, {}, place);
        EXPECT_TRUE(montree(barre));
        EXPECT_FALSE(QApplication::activePopupWidget());
    }
}

// ---- boxes, and ends of the process: what the port saw is told on the way out

// Calls `f` once a message box stands.
void a_la_boite(std::function<void(QMessageBox&)> f) {
    QTimer::singleShot(20, [f] {
        if (auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            f(*boite);
        else
            a_la_boite(f);
    });
}

void dit_et_accepte(QMessageBox& boite) {
    std::fprintf(stderr, "%s | %s | %d\n", qPrintable(boite.objectName()), qPrintable(boite.text()),
                 QApplication::activePopupWidget() != nullptr);
    QTest::mouseClick(boite.button(QMessageBox::Ok), Qt::LeftButton);
}

TEST_F(demarrage, only_the_box_of_a_low_target_has_no_title) {
    for (const auto& [t, attendu] :
         {std::pair{shell::titre::programme, "Velmoria"}, {shell::titre::aucun, ""}}) {
        QString lu{"?"};
        a_la_boite([&lu](QMessageBox& boite) {
            lu = boite.windowTitle().trimmed();
            boite.accept();
        });
        shell::vue_courante->message("essai", t);
        EXPECT_EQ(lu, attendu);
    }
}

class fin_du_programme : public demarrage {
  protected:
    fin_du_programme() {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        plateforme::qt::a_la_fin([this] {
            std::fprintf(stderr, "fin :");
            for (const auto& [registre, valeur] : port.ecritures)
                std::fprintf(stderr, " %d=%d", registre, valeur);
            std::fprintf(stderr, " .\n");
        });
    }
    void ordinateur() {
        clique("frminterface", "barchoix(2)");
        clique("frminterface", "baraltaz(1)");
    }
};

TEST_F(fin_du_programme, quitter_releases_the_port_and_the_close_box_leaves_it) {
    EXPECT_EXIT((ordinateur(), principale()->findChild<QAction*>("Quitter")->trigger()),
                testing::ExitedWithCode(0), "fin : 890=1 888=0 890=0 \\.");
    EXPECT_EXIT((ordinateur(), principale()->close()), testing::ExitedWithCode(0), "fin : 890=1 888=0 \\.");
}

// While the box stands, neither an act nor a timer moves anything, and an open popup has gone.
TEST_F(fin_du_programme, a_failure_shows_one_box_freezes_the_program_and_ends_it) {
    const auto echoue = [this] {
        clique("frminterface", "barchoix(2)");
        dans_telescope("Equatorial");
        a_la_boite([](QMessageBox& boite) {
            baraltaz_boutons(1).clic();
            Quitter.clic();
            dit_et_accepte(boite);
        });
        base::fatale(base::cause::division_par_zero, "essai");
    };
    EXPECT_EXIT(echoue(), testing::ExitedWithCode(1), "fatale . division par zéro : essai . 0\nfin : \\.");
}

} // namespace
