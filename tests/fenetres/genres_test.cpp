// The kinds of control that the pilot panels lack, on a panel of the test's own.
#include "fenetres.h"

#include "base/fatale.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QToolButton>

namespace {

using namespace shell;

constinit panneau fiche_essai{"frmessai", "Essai", 9000, 7500, {.taille_fixe = true}};
constinit champ_liste lbliste{fiche_essai, "lbliste", {150, 150, 2000, 1500}};
constinit champ_deroulante cbliste{fiche_essai, "cbliste", {2400, 150, 2000, 375}};
constinit champ_coche chk{fiche_essai, "chk", {2400, 600, 2000, 300}, {.legende = "Case"}};
constinit champ_cadre cadre{fiche_essai, "cadre", {4600, 150, 2000, 1500}, {.legende = "Choix"}};
constinit tableau<champ_option, 2> opt{
    fiche_essai, "opt", {{150, 400, 1500, 300}, {150, 800, 1500, 300}}, {.cadre = &cadre}};
constinit champ_hautbas hb{fiche_essai, "hb", {6800, 150, 300, 450}};
constinit champ_progression jauge{fiche_essai, "jauge", {150, 1800, 4000, 300}, {.max = 400}};
constinit champ_texte notes{fiche_essai, "notes", {150, 2300, 4000, 1500}, {.traits = multiligne}};
constinit champ_surface carte{fiche_essai, "carte", {4600, 2000, 3000, 3000}};
constinit champ_image dessin_bouton{fiche_essai, "dessin", {150, 4000, 600, 600}};
constinit entree mnu{fiche_essai, "mnu", {.legende = "menu", .traits = surgissant}};
constinit entree mnu_un{fiche_essai, "mnu_un", {.legende = "un", .cadre = &mnu}};
constinit entree mnu_trait{fiche_essai, "mnu_trait", {.cadre = &mnu, .traits = separateur}};
constinit entree mnu_deux{fiche_essai, "mnu_deux", {.legende = "deux", .cadre = &mnu}};
constinit entree mnu_fils{fiche_essai, "mnu_fils", {.legende = "fils", .cadre = &mnu_deux}};

constinit panneau fiche_fermee{
    "frmfermee", "Sans fermeture", 3000, 3000, {.boite_de_fermeture = fermeture::aucune}};
constinit minuteur tim{fiche_fermee, "tim", {.intervalle = 10}};

class genres : public essais::fenetres {
  protected:
    void SetUp() override {
        essais::fenetres::SetUp();
        fiche_essai.construit(shell::liste(lbliste, cbliste, chk, cadre, opt, hb, jauge, notes, carte,
                                           dessin_bouton, mnu, mnu_un, mnu_trait, mnu_deux, mnu_fils));
        const auto note = [this](const char* acte) { return [this, acte] { actes += acte; }; };
        lbliste.au_clic(note("clic "));
        lbliste.au_double_clic(note("double "));
        lbliste.au_clic_droit(note("droit "));
        cbliste.au_clic(note("choix "));
        chk.au_clic(note("case "));
        opt(0).au_clic(note("opt0 "));
        opt(1).au_clic(note("opt1 "));
        hb.au_plus(note("plus "));
        hb.au_moins(note("moins "));
        dessin_bouton.a_l_appui(note("appui "));
        dessin_bouton.au_relachement(note("relachement "));
        mnu_un.au_clic(note("un "));
        mnu_deux.au_clic(note("deux "));
        mnu_fils.au_clic(note("fils "));
        carte.a_la_souris([this](souris ou) { pressees.push_back(ou); });
        carte.a_la_touche([this](touche t) { frappees.push_back(t.code); });
        lbliste.ajoute({"zéro", "un", "deux"});
        cbliste.ajoute({"a", "b", "c"});
        fiche_essai.montre();
    }
    template <class W> W* le(const char* nom) { return static_cast<W*>(piece("frmessai", nom)); }
    std::string lus() { return std::exchange(actes, {}); }

    std::string actes;
    std::vector<souris> pressees;
    std::vector<int> frappees;
};

TEST_F(genres, a_list_by_mouse_and_keys) {
    auto* w = le<QListWidget>("lbliste");
    const auto ligne = [w](int k) { return w->visualItemRect(w->item(k)).center(); };
    ASSERT_EQ(w->count(), 3);
    QTest::mouseClick(w->viewport(), Qt::LeftButton, {}, ligne(1));
    EXPECT_EQ(lus(), "clic ");
    EXPECT_EQ(lbliste.position(), 1);
    QTest::mouseDClick(w->viewport(), Qt::LeftButton, {}, ligne(2));
    EXPECT_EQ(lus(), "clic double ");
    EXPECT_EQ(lbliste.position(), 2);
    QTest::keyClick(w, Qt::Key_Up);
    EXPECT_EQ(lus(), "clic ");
    EXPECT_EQ(lbliste.position(), 1);
    QTest::mouseClick(w->viewport(), Qt::RightButton, {}, ligne(0));
    EXPECT_EQ(lus(), "droit ");
    EXPECT_EQ(lbliste.position(), 0);
    QTest::mouseClick(w->viewport(), Qt::RightButton, {}, {10, w->viewport()->height() - 5});
    EXPECT_EQ(lbliste.position(), -1);
    EXPECT_EQ(lus(), "droit ");
    EXPECT_EQ(w->currentRow(), -1);
    lbliste.ajoute("trois");
    lbliste.position(3);
    EXPECT_EQ(lus(), "clic ") << "the store's own event, once";
    EXPECT_EQ(w->currentItem()->text(), "trois");
    lbliste.vide();
    EXPECT_EQ(w->count(), 0);
    EXPECT_EQ(lus(), "");
}

TEST_F(genres, choices) {
    auto* cb = le<QComboBox>("cbliste");
    EXPECT_EQ(cb->currentIndex(), -1);
    QTest::keyClick(cb, Qt::Key_Down);
    EXPECT_EQ(cbliste.position(), 0);
    EXPECT_EQ(lus(), "choix ");
    QTest::mouseClick(le<QCheckBox>("chk"), Qt::LeftButton, {}, {8, 10});
    EXPECT_TRUE(chk.coche());
    EXPECT_EQ(lus(), "case ");
    QTest::mouseClick(le<QRadioButton>("opt(1)"), Qt::LeftButton, {}, {8, 10});
    EXPECT_EQ(lus(), "opt1 ");
    opt(0).coche(true);
    EXPECT_EQ(lus(), "opt0 ");
    EXPECT_TRUE(le<QRadioButton>("opt(0)")->isChecked());
    EXPECT_FALSE(le<QRadioButton>("opt(1)")->isChecked());
    QTest::mouseClick(le<QToolButton>("hb.plus"), Qt::LeftButton);
    QTest::mouseClick(le<QToolButton>("hb.moins"), Qt::LeftButton);
    EXPECT_EQ(lus(), "plus moins ");
}

TEST_F(genres, unloading_brings_the_design_back_on_screen) {
    chk.coche(true);
    fiche_essai.decharge();
    EXPECT_FALSE(piece("frmessai")->isVisible());
    fiche_essai.montre();
    EXPECT_FALSE(le<QCheckBox>("chk")->isChecked());
    EXPECT_EQ(le<QListWidget>("lbliste")->count(), 0);
}

TEST_F(genres, a_window_without_a_close_box_stays) {
    fiche_fermee.construit(shell::liste(tim));
    fiche_fermee.montre();
    auto* w = static_cast<QMdiSubWindow*>(piece("frmfermee"));
    EXPECT_FALSE(w->windowFlags() & Qt::WindowCloseButtonHint);
    EXPECT_EQ(w->size(), QSize(200, 200));
    w->close();
    EXPECT_TRUE(w->isVisible());
    static_cast<QMdiSubWindow*>(piece("frmessai"))->close();
    EXPECT_FALSE(fiche_essai.est_charge());
}

// The tick comes from the event loop again and again, never inside itself, and not once it is off.
TEST_F(genres, a_timer_on_the_event_loop) {
    fiche_fermee.construit(shell::liste(tim));
    int tics = 0;
    int profondeur = 0;
    tim.au_tic([&] {
        EXPECT_EQ(++profondeur, 1);
        QTest::qWait(30); // longer than its interval
        --profondeur;
        if (++tics == 3)
            tim.marche(false);
    });
    tim.marche(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return tics == 3; }));
    QTest::qWait(50);
    EXPECT_EQ(tics, 3);
}

TEST_F(genres, values_texts_and_places) {
    jauge.valeur(100);
    EXPECT_EQ(le<QProgressBar>("jauge")->value() * 4, le<QProgressBar>("jauge")->maximum());
    notes.ecrit("un\r\ndeux");
    auto* w = le<QPlainTextEdit>("notes");
    EXPECT_EQ(w->toPlainText(), "un\ndeux");
    w->moveCursor(QTextCursor::End);
    QTest::keyClick(w, Qt::Key_Return);
    QTest::keyClicks(w, "3");
    EXPECT_EQ(notes.lit(), "un\r\ndeux\r\n3");
    notes.ecrit("trois\nquatre");
    EXPECT_EQ(w->toPlainText(), "trois\nquatre");
    EXPECT_EQ(notes.lit(), "trois\nquatre") << "no echo";
    chk.deplace(3000, 900);
    EXPECT_EQ(le<QCheckBox>("chk")->pos(), QPoint(200, 60));
    chk.actif(false);
    EXPECT_FALSE(le<QCheckBox>("chk")->isEnabled());
    cadre.visible(false);
    EXPECT_FALSE(le<QRadioButton>("opt(0)")->isVisible());
}

TEST_F(genres, a_surface_gives_mouse_and_keys_in_its_own_units) {
    auto* w = le<QWidget>("carte");
    QTest::mousePress(w, Qt::RightButton, {}, {100, 20});
    ASSERT_EQ(pressees.size(), 1U);
    EXPECT_EQ(pressees[0].bouton, 2);
    EXPECT_EQ(pressees[0].x, 1500);
    EXPECT_EQ(pressees[0].y, 300);
    for (const auto cle : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Escape})
        QTest::keyClick(w, cle);
    EXPECT_EQ(frappees, (std::vector{37, 38, 39, 40, 27}));
}

TEST_F(genres, a_picture_as_a_button) {
    auto* w = le<QWidget>("dessin");
    QTest::mousePress(w, Qt::LeftButton);
    EXPECT_EQ(lus(), "appui ");
    QTest::mouseRelease(w, Qt::LeftButton);
    EXPECT_EQ(lus(), "relachement ");
    const auto image = plateforme::courante.vue->charge_image(std::string{DONNEES} + "/img/init_repos.gif");
    dessin_bouton.image(image);
    EXPECT_GT(image.largeur, 0);
    EXPECT_EQ(image.ppp, 96);
    const auto vu = w->grab().toImage();
    EXPECT_NE(vu.pixelColor(vu.rect().center()), vu.pixelColor(0, 0));
}

TEST_F(genres, a_popup_hands_back_the_entry_chosen) {
    const auto ouvre = [this](std::function<void(QMenu&)> f) {
        QTimer::singleShot(50, [f] {
            auto* m = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_TRUE(m);
            ASSERT_EQ(m->objectName(), "mnu");
            f(*m);
        });
        mnu.ouvre(&mnu_un);
        return lus();
    };
    const auto place = [](const QMenu& m, int i) { return m.actionGeometry(m.actions()[i]).center(); };
    EXPECT_EQ(ouvre([](QMenu& m) {
                  EXPECT_TRUE(m.actions()[1]->isSeparator());
                  EXPECT_EQ(m.defaultAction(), m.actions()[0]);
                  QTest::keyClick(&m, Qt::Key_Escape);
              }),
              "");
    EXPECT_EQ(ouvre([&](QMenu& m) { QTest::mouseClick(&m, Qt::LeftButton, {}, place(m, 0)); }), "un ");
    EXPECT_EQ(ouvre([&](QMenu& m) { QTest::mouseClick(&m, Qt::LeftButton, {}, place(m, 2)); }), "deux ");
    EXPECT_EQ(ouvre([&](QMenu& m) {
                  QTest::keyClick(&m, Qt::Key_Up);
                  QTest::keyClick(&m, Qt::Key_Right);
                  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
              }),
              "fils ");
}

} // namespace
