// The sky chart on screen: opened from the panel's drawn buttons, driven by the right button and the keys.
#include "fenetres.h"

#include "chart/astres_carte.h"
#include "chart/redessine.h"
#include "fields/frmCercle_champs.h"

namespace {

class carte : public essais::fenetres {
  protected:
    using essais::fenetres::fenetres;

    void SetUp() override {
        essais::fenetres::SetUp();
        clique("frminterface", "barchoix(1)");
        clique("frminterface", "barequa(4)");
        clique("frmequapointage", "Picinit");
        ciel = piece("frmCercle", "ciel");
        ASSERT_TRUE(ciel->isVisible());
    }

    // Presses the right button at a place of the chart and has the popup answered.
    void droit(double x, double y, std::function<void(QMenu&)> f) {
        au_menu(std::move(f));
        QTest::mousePress(ciel, Qt::RightButton, {},
                          QPoint{static_cast<int>(x / shell::twips_par_pixel),
                                 static_cast<int>(y / shell::twips_par_pixel)});
    }
    static QAction* entree(QMenu& m, const char* nom) { return m.findChild<QAction*>(nom); }
    static const chart::astre_carte& objet(const std::string& nom) {
        for (const auto& o : chart::astres.objets)
            if (o.nom == nom)
                return o;
        ADD_FAILURE() << nom;
        return chart::astres.objets[0];
    }

    QImage vue() { return ciel->grab().toImage(); }
    QColor pixel(double x, double y) {
        const auto d = ciel->devicePixelRatioF() / shell::twips_par_pixel;
        return vue().pixelColor(static_cast<int>(x * d), static_cast<int>(y * d));
    }

    QWidget* ciel = nullptr;
};

TEST_F(carte, opened_with_the_keyboard_on_the_sky) {
    EXPECT_TRUE(ciel->hasFocus());
    EXPECT_EQ(pixel(60, 60), QColor(Qt::black));
    EXPECT_EQ(pixel(objet("M31").x, objet("M31").y), QColor(0, 255, 0));
    EXPECT_EQ(pixel(objet("M45").x, objet("M45").y), QColor(Qt::black)) << "the middle of a ring";
    EXPECT_EQ(pixel(objet("M92").x, objet("M92").y), QColor(250, 140, 0));
}

TEST_F(carte, right_clicks) {
    droit(300, 300, [](QMenu& m) {
        EXPECT_EQ(entree(m, "mnuNom")->text(), "aucun objet");
        EXPECT_EQ(m.defaultAction(), nullptr);
        EXPECT_FALSE(entree(m, "mnuPoint")->isEnabled());
        EXPECT_TRUE(entree(m, "mnuaucun")->isChecked());
        auto* objets = entree(m, "mnuObjets");
        QTest::mouseClick(&m, Qt::LeftButton, {}, m.actionGeometry(objets).center());
        ASSERT_TRUE(QTest::qWaitFor([objets] { return objets->menu()->isVisible(); }));
        choisit(entree(m, "mnuGalaxie"));
    });
    EXPECT_EQ(pixel(objet("M92").x, objet("M92").y), QColor(Qt::black));
    droit(objet("M92").x, objet("M92").y, [](QMenu& m) {
        EXPECT_EQ(entree(m, "mnuNom")->text(), "M92") << "picked though it is not drawn";
        EXPECT_TRUE(entree(m, "mnuGalaxie")->isChecked());
        EXPECT_FALSE(entree(m, "mnuaucun")->isChecked());
    });
    droit(chart::astres.etoiles[2].x, chart::astres.etoiles[2].y, [](QMenu& m) {
        EXPECT_EQ(m.defaultAction(), entree(m, "mnuNom"));
        EXPECT_EQ(m.defaultAction()->text(), "ALPHA [Lyre].");
        EXPECT_FALSE(entree(m, "mnuvoir")->isEnabled());
        choisit(entree(m, "mnuPoint"));
    });
    EXPECT_FALSE(piece("frmCercle")->isVisible());
    clique("frmequapointage", "picpointage");
    const auto p = chart::projette(11169, 23270); // Vega in the delivered file
    EXPECT_EQ(pixel(p.x - 100, p.y), QColor(255, 0, 0)) << "the reticle";
}

class carte_nette : public carte, public testing::WithParamInterface<const char*> {
  protected:
    carte_nette() : carte(GetParam()) {}
};

// The grid's axes are whole pixels of the screen, as wide as the scale makes them, and nothing is painted
// beside them: wherever the window stands, also between the screen's pixels, and after a pan by parts of a
// pixel.
TEST_P(carte_nette, axes) {
    const int large = static_cast<int>(std::round(std::atof(GetParam())));
    int pan = 0;
    for (const auto& place : {QPoint{0, 0}, {7, 3}, {8, 5}}) {
        piece("frmCercle")->move(place);
        QApplication::processEvents();
        const double echelle = ciel->devicePixelRatioF();
        const auto coin = QPointF{ciel->mapTo(principale(), QPoint{})} * echelle;
        const auto ecran = principale()->grab().toImage();
        const int y = static_cast<int>(coin.y() + ciel->height() * echelle * 39 / 40); // below all stars
        const int milieu = static_cast<int>(std::round(coin.x()) + (4500 - 250 * pan++) / 15 * echelle);
        int gris = 0;
        for (int x = milieu - 6; x <= milieu + 6; ++x) {
            const auto c = ecran.pixelColor(x, y);
            EXPECT_TRUE(c == QColor(160, 160, 160) || c == QColor(Qt::black)) << c.name().toStdString();
            gris += c == QColor(160, 160, 160);
        }
        EXPECT_EQ(gris, large);
        QTest::keyClick(ciel, Qt::Key_Right, Qt::ControlModifier);
    }
}

INSTANTIATE_TEST_SUITE_P(echelles, carte_nette, testing::Values("1", "1.5", "2"), [](const auto& essai) {
    return std::string{"s"} + std::to_string(static_cast<int>(std::atof(essai.param) * 100));
});

} // namespace
