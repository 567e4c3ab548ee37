// From the mode's choice to a telescope aligned on an object, with the mouse and the keys on the real
// windows.
#include "fenetres.h"

#include "base/octets.h"
#include "settings/frmconfig_champs.h"
#include "shell/frmcoord_champs.h"
#include "sky/position.h"

#include <QListWidget>
#include <QTemporaryDir>

namespace {

// A copy of the delivered data that a test may write to.
struct donnees_a_soi {
    donnees_a_soi() { std::filesystem::copy(DONNEES, dossier, std::filesystem::copy_options::recursive); }
    QTemporaryDir temporaire;
    std::filesystem::path dossier = temporaire.path().toStdString();
};

class configuration : private donnees_a_soi, public essais::fenetres {
  protected:
    configuration() : fenetres("1", dossier) {}
    void SetUp() override {
        fenetres::SetUp();
        clique("frminterface", "barchoix(2)");
        clique("frminterface", "baraltaz(6)");
        ASSERT_TRUE(piece("frmconfig")->isVisible());
        ASSERT_TRUE(piece("frmcoord")->isVisible());
    }

    void choisit(const char* liste, const char* ligne) {
        auto* w = static_cast<QListWidget*>(piece("frmconfig", liste));
        const auto trouves = w->findItems(ligne, Qt::MatchExactly);
        ASSERT_EQ(trouves.size(), 1) << ligne;
        w->scrollToItem(trouves[0]);
        QTest::mouseClick(w->viewport(), Qt::LeftButton, {}, w->visualItemRect(trouves[0]).center());
    }
    std::string texte(const char* fiche, const char* nom) {
        return static_cast<QLineEdit*>(piece(fiche, nom))->text().toStdString();
    }
    // What stands in the six position fields on screen.
    std::string position() {
        std::string t;
        for (const auto* nom :
             {"txtcoordaz1", "txtcoordaz2", "txtcoordaz3", "txtcoordalt1", "txtcoordalt2", "txtcoordalt3"})
            t += texte("frmcoord", nom) + " ";
        return t;
    }
    std::string fichier(const char* nom) { return base::lit_fichier(dossier / nom); }
};

TEST_F(configuration, from_the_site_to_an_alignment) {
    tape("frmconfig", "txtlatdeg", "45");
    tape("frmconfig", "txtlatmin", "30 'N");
    EXPECT_EQ(frmconfig::txtlatmin.lit(), "30 'N");
    tape("frmconfig", "txtRaz", "144");
    EXPECT_EQ(texte("frmconfig", "txtapas"), texte("frmconfig", "txthpas"));
    clique("frmconfig", "cmdvalid");
    EXPECT_EQ(texte("frmconfig", "txtapas"), "22.5");
    EXPECT_EQ(fichier("config_altaz.ini"), "6\r\n27\r\n45\r\n30 'N\r\n200\r\n200\r\n500\r\n144\r\n");

    clique("frmconfig", "cmdinitcoord");
    EXPECT_EQ(position(), "180 0 0 30 0 0 ");
    choisit("lbCatalogue", "Etoiles magnitude 5");
    choisit("lbObjets", "Arcturus");
    EXPECT_EQ(texte("frmconfig", "Txtad_h"), "") << "not before it is taken";
    clique("frmconfig", "cmdchoix");
    EXPECT_EQ(texte("frmconfig", "Txtad_h") + "h" + texte("frmconfig", "txtad_min"), " 14h 15.7");
    EXPECT_EQ(position(), "180 0 0 30 0 0 ");
    clique("frmconfig", "cmdreinit");
    // By spherical trigonometry, 14 h 15.7 min, 19 degrees 10.9, at 20 h universal time.
    const std::string attendue = "260 4 7 36 37 54 ";
    EXPECT_EQ(position(), attendue);
    const int lectures = horloge.lectures;
    EXPECT_TRUE(QTest::qWaitFor([&] { return horloge.lectures >= lectures + 2; }));
    EXPECT_EQ(position(), attendue) << "the tick leaves it";

    static_cast<QMdiSubWindow*>(piece("frmconfig"))->close();
    EXPECT_FALSE(piece("frmconfig")->isVisible());
    EXPECT_TRUE(frmconfig::fiche.est_charge());
    tape("frmcoord", "txtms", "7");
    clique("frminterface", "baraltaz(6)");
    EXPECT_TRUE(piece("frmconfig")->isVisible());
    EXPECT_EQ(texte("frmconfig", "txtlatdeg"), "45");
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

TEST_F(configuration, a_tick_that_changes_nothing_paints_nothing) {
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
