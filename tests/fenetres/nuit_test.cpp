// Night colours: no window shows anything but red, and the day comes back as it was.
#include "fenetres.h"

#include "fields/frmcoord_champs.h"
#include "fields/frmequapilot_champs.h"
#include "fields/frmequapointage_champs.h"
#include "fields/frminterface_champs.h"
#include "machines/qt/etat_barre.h"
#include "machines/qt/nuit.h"
#include "machines/qt/preferences.h"

#include <QMessageBox>
#include <QScreen>
#include <QToolTip>

namespace {

using plateforme::qt::met_la_nuit;
using plateforme::qt::rouge_le_plus_vif;

class lumiere : public essais::fenetres {
  protected:
    // As the screen shows it, carets and focus included.
    static QImage ecran(QWidget& w) {
        QApplication::setCursorFlashTime(0);
        const auto prise = [&w] {
            QTest::qWait(30);
            return w.screen()->grabWindow(w.winId()).toImage().convertToFormat(QImage::Format_RGB32);
        };
        auto avant = prise();
        for (int i = 0; i < 20; ++i) // until nothing is left to paint
            if (const auto apres = prise(); apres == std::exchange(avant, apres))
                break;
        return avant;
    }

    static int differences(const QImage& a, const QImage& b) {
        int n = 0;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < a.width(); ++x)
                n += a.pixel(x, y) != b.pixel(x, y);
        return n;
    }

    // All red, and not all dark.
    static void est_de_nuit(const QImage& i, const std::string& quoi) {
        int autres = 0;
        int vifs = 0;
        for (int y = 0; y < i.height(); ++y)
            for (int x = 0; x < i.width(); ++x) {
                const QRgb c = reinterpret_cast<const QRgb*>(i.constScanLine(y))[x];
                autres += qRed(c) > rouge_le_plus_vif || qGreen(c) > 16 || qBlue(c) > 16;
                vifs += qRed(c) > 100;
            }
        EXPECT_EQ(autres, 0) << quoi;
        EXPECT_GT(vifs, 20) << quoi;
    }
};

TEST_F(lumiere, of_every_panel_is_red_by_night_and_what_it_was_by_day) {
    for (auto* p : programme::registre().panneaux) {
        if (p->options().sans_bord)
            continue;
        p->montre();
        const std::string nom{p->nom()};
        const auto jour = ecran(*principale());
        met_la_nuit(true);
        est_de_nuit(ecran(*principale()), nom);
        met_la_nuit(false);
        EXPECT_LT(differences(ecran(*principale()), jour), 1000) << nom; // the style's ticks take any pen
    }
}

TEST_F(lumiere, is_changed_by_one_key_everywhere_and_remembered) {
    const auto f9 = [](QWidget* w) { QTest::keyClick(w->window()->windowHandle(), Qt::Key_F9); };
    f9(principale());
    EXPECT_TRUE(plateforme::qt::nuit_retenue());
    est_de_nuit(ecran(*principale()), "main frame");

    QTimer::singleShot(100, [&] {
        auto* boite = QApplication::activeModalWidget();
        ASSERT_TRUE(boite);
        est_de_nuit(ecran(*boite), "message box");
        f9(boite);
        EXPECT_FALSE(plateforme::qt::nuit());
        f9(boite);
        boite->close();
    });
    s->vue().message("altitude négative");

    frmequapointage::fiche.montre();
    frmequapointage::choix.lbObjets.visible(true);
    au_menu([&](QMenu& m) { est_de_nuit(ecran(m), "popup"); });
    frmequapointage::choix.lbObjets.droit(3);
    f9(principale());
    EXPECT_FALSE(plateforme::qt::nuit_retenue());
}

// At the right of the menus: what moves, without a panel loaded for it.
TEST_F(lumiere, what_is_on_stands_beside_the_menus) {
    auto* etat = principale()->findChild<plateforme::qt::etat_barre*>("etat");
    ASSERT_TRUE(etat);
    const auto dit = [etat](const char* texte) {
        return QTest::qWaitFor([&] { return etat->texte() == texte; }, 2000);
    };
    EXPECT_TRUE(dit("Monture à choisir"));
    frminterface::barchoix_boutons(1).clic();
    EXPECT_TRUE(dit("Équatorial · ordinateur · à l'arrêt"));
    frmequapilot::fiche.montre();
    bool en_marche = false;
    QTimer::singleShot(10, [&] {
        en_marche = dit("Équatorial · ordinateur · déplacement");
        frmequapilot::deplacement.cmddstop.clic();
    });
    frmequapilot::deplacement.cmdad.clic();
    EXPECT_TRUE(en_marche);
    EXPECT_TRUE(dit("Équatorial · ordinateur · à l'arrêt"));
    EXPECT_FALSE(frmcoord::fiche.est_charge());
}

} // namespace
