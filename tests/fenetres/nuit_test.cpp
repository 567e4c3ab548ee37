// Night colours: no window shows anything but red, and the day comes back as it was.
#include "fenetres.h"

#include "fields/frmequapointage_champs.h"
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

} // namespace
