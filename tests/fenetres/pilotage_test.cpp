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

// The jog starts at the release of its button and goes on after it; the stop acts at its press.
TEST_F(pilotage, a_jog_by_the_mouse_until_the_stop_is_pressed) {
    appuie("cmdag");
    EXPECT_EQ(port.impulsions, 0);
    const auto passes = s->boucle().passes();
    int a_l_appui = 0;
    port.apres(50, [&] {
        EXPECT_EQ(cmdsens, 2);
        EXPECT_TRUE(frmaltazpilot::deplacement.cmdag.regarde().enfonce);
        appuie("cmddstop");
        EXPECT_EQ(cmdsens, 0);
        a_l_appui = port.impulsions;
    });
    relache("cmdag");
    EXPECT_GE(a_l_appui, 50);
    EXPECT_LE(port.impulsions, a_l_appui + 1);
    EXPECT_EQ(valeurs(), (std::vector{0, 4}));
    EXPECT_FALSE(frmaltazpilot::deplacement.cmdag.regarde().enfonce);
    EXPECT_EQ(s->boucle().passes() - passes, static_cast<std::uint64_t>(2 * port.impulsions));
    relache("cmddstop");
    EXPECT_EQ(cmdsens, 0);
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

} // namespace
