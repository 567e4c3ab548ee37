// The mount moved by hand, by a slew and by the sidereal drive, with the mouse and the keys on the real
// windows.
#include "fenetres.h"

#include "drive/position.h"
#include "fields/frmaltazpilot_champs.h"
#include "fields/frminterface_champs.h"

#include <QListWidget>
#include <QProgressBar>

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
    void appuie(const char* nom) { presse("frmaltazpilot", nom); }
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
        piece<QMdiSubWindow>("frmaltazpilot")->close();
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

// Objects picked with real double clicks: a press, a release and a second press. The stop is pressed once the
// window shows the first axis on its way, then struck by its two keys; it has the focus from the first pulse.
TEST_F(pilotage, a_slew_is_stopped_by_the_mouse_and_by_both_keys) {
    const auto double_clique = [this](const char* liste, int rang) {
        auto* l = piece<QListWidget>("frmequapointage", liste);
        l->scrollToItem(l->item(rang));
        const auto ou = l->visualItemRect(l->item(rang)).center();
        QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, ou);
        QTest::mouseDClick(l->viewport(), Qt::LeftButton, {}, ou);
    };
    clique("frminterface", "baraltaz(3)");
    frminterface::mnupointequa.clic();
    double_clique("lbEtoiles", 0);
    ASSERT_TRUE(piece("frmequapointage", "lbObjets")->isVisible());
    const std::pair<int, std::function<void()>> arrets[] = {
        {4000,
         [this] {
             EXPECT_TRUE(piece("frmDepl")->isVisible());
             EXPECT_GT(piece<QProgressBar>("frmDepl", "ProgressBaraz")->value(), 0);
             presse("frmDepl", "cmstoppointage");
         }},
        {1, [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); }},
        {10, [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space); }}};
    int objet = 30;
    for (const auto& [n, arrete] : arrets) {
        const int a_l_arret = port.impulsions + n;
        port.apres(a_l_arret, arrete);
        double_clique("lbObjets", objet);
        EXPECT_GE(port.impulsions, a_l_arret);
        EXPECT_LE(port.impulsions, a_l_arret + 2);
        EXPECT_FALSE(piece("frmDepl")->isVisible());
        objet += 15;
    }
}

// One burst for each second the computer's clock shows, until the stop is pressed.
TEST_F(pilotage, the_sidereal_drive_follows_the_clock) {
    frminterface::mnupilotageequa.clic();
    clique("frmequapilot", "cmdgo");
    QTest::qWait(300);
    EXPECT_EQ(port.impulsions, 0) << "the clock stands still";
    horloge.seconde = 1;
    EXPECT_TRUE(QTest::qWaitFor([this] { return port.impulsions == 2; }, 1000)); // 15.04 / 6.48 half-steps
    EXPECT_EQ(texte("frmequapilot", "txtessai"), "1");
    presse("frmequapilot", "cmdstopgo");
    horloge.seconde = 2;
    QTest::qWait(300);
    EXPECT_EQ(port.impulsions, 2);
}

// Counts what is painted anywhere in the main frame.
class peintures final : public QObject {
  public:
    peintures() { qApp->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* e) override {
        nombre += e->type() == QEvent::Paint;
        return false;
    }
    int nombre = 0;
};

TEST_F(pilotage, a_tick_that_changes_nothing_paints_nothing) {
    clique("frminterface", "baraltaz(6)");
    piece<QMdiSubWindow>("frmconfig")->close();
    EXPECT_TRUE(fiche("frmconfig").est_charge() && !piece("frmconfig")->isVisible()) << "hidden only";
    clique("frminterface", "baraltaz(6)");
    EXPECT_TRUE(piece("frmconfig")->isVisible());
    principale()->setFocus(); // no field with a blinking cursor
    const auto tics = [this](int n) {
        const int avant = horloge.lectures;
        ASSERT_TRUE(QTest::qWaitFor([&] { return horloge.lectures >= avant + n; }));
    };
    tics(3); // all is on screen
    const peintures p;
    tics(10);
    EXPECT_EQ(p.nombre, 0);
    general::posaz += 1; // its third field and the full value
    tics(2);
    EXPECT_GE(p.nombre, 2);
    EXPECT_LE(p.nombre, 12) << "and little around them";
}

} // namespace
