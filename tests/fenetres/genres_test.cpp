// Every kind of control as a widget, on a panel of the test's own.
#include "fenetres.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>

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
constinit champ_barre barre{
    fiche_essai, "barre", {150, 5000, 4000, 300}, {.min = 10, .max = 30, .valeur = 12}};
constinit champ_progression jauge{fiche_essai, "jauge", {150, 1800, 4000, 300}, {.max = 400}};
constinit champ_texte ligne{fiche_essai, "ligne", {150, 5500, 4000, 375}};
constinit champ_texte notes{fiche_essai, "notes", {150, 2300, 4000, 1500}, {.traits = multiligne}};
constinit champ_surface carte{fiche_essai, "carte", {4600, 2000, 3000, 3000}};
constinit champ_image dessin_bouton{fiche_essai, "dessin", {150, 4000, 600, 600}};

class genres : public essais::fenetres {
  protected:
    void SetUp() override {
        essais::fenetres::SetUp();
        fiche_essai.construit(shell::liste(lbliste, cbliste, chk, cadre, opt, hb, barre, jauge, ligne, notes,
                                           carte, dessin_bouton));
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
        barre.au_changement(note("barre "));
        dessin_bouton.a_l_appui(note("appui "));
        dessin_bouton.au_relachement(note("relachement "));
        lbliste.ajoute({"zéro", "un", "deux"});
        cbliste.ajoute({"a", "b", "c"});
        fiche_essai.montre();
    }
    template <class W> W* le(const char* nom) { return piece<W>("frmessai", nom); }
    std::string lus() { return std::exchange(actes, {}); }

    std::string actes;
};

TEST_F(genres, a_list_by_mouse_and_keys) {
    auto* w = le<QListWidget>("lbliste");
    const auto rang = [w](int k) { return w->visualItemRect(w->item(k)).center(); };
    ASSERT_EQ(w->count(), 3);
    QTest::mouseClick(w->viewport(), Qt::LeftButton, {}, rang(1));
    EXPECT_EQ(lus(), "clic ");
    EXPECT_EQ(lbliste.position(), 1);
    QTest::mouseDClick(w->viewport(), Qt::LeftButton, {}, rang(2));
    EXPECT_EQ(lus(), "clic double ");
    EXPECT_EQ(lbliste.position(), 2);
    QTest::keyClick(w, Qt::Key_Up);
    EXPECT_EQ(lus(), "clic ");
    EXPECT_EQ(lbliste.position(), 1);
    QTest::mouseClick(w->viewport(), Qt::RightButton, {}, rang(0));
    EXPECT_EQ(lus(), "clic droit ");
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

TEST_F(genres, choices_bars_and_pictures) {
    QTest::mousePress(le<QWidget>("dessin"), Qt::LeftButton);
    EXPECT_EQ(lus(), "appui ");
    QTest::mouseRelease(le<QWidget>("dessin"), Qt::LeftButton);
    EXPECT_EQ(lus(), "relachement ");
    auto* cb = le<QComboBox>("cbliste");
    EXPECT_EQ(cb->currentIndex(), -1);
    QTest::keyClick(cb, Qt::Key_Down);
    EXPECT_EQ(cbliste.position(), 0);
    cbliste.ajoute("d"); // behind the others
    EXPECT_EQ(cb->itemText(3), "d");
    QTest::mouseClick(le<QCheckBox>("chk"), Qt::LeftButton, {}, {8, 10});
    EXPECT_TRUE(chk.coche());
    QTest::mouseClick(le<QRadioButton>("opt(1)"), Qt::LeftButton, {}, {8, 10});
    EXPECT_EQ(lus(), "choix case opt1 ");
    opt(0).coche(true);
    EXPECT_EQ(lus(), "opt0 ");
    EXPECT_TRUE(le<QRadioButton>("opt(0)")->isChecked());
    EXPECT_FALSE(le<QRadioButton>("opt(1)")->isChecked());
    QTest::mouseClick(le<QWidget>("hb.plus"), Qt::LeftButton);
    QTest::mouseClick(le<QWidget>("hb.moins"), Qt::LeftButton);
    EXPECT_EQ(lus(), "plus moins ");
    barre.valeur(25); // by code: the store's own event, once, and no echo of the widget's
    EXPECT_EQ(le<QScrollBar>("barre")->value(), 25);
    QTest::keyClick(le<QScrollBar>("barre"), Qt::Key_Right);
    EXPECT_EQ(barre.valeur(), 26);
    EXPECT_EQ(lus(), "barre barre ");
}

TEST_F(genres, texts_values_and_places) {
    jauge.valeur(100);
    EXPECT_EQ(le<QProgressBar>("jauge")->value() * 4, le<QProgressBar>("jauge")->maximum());
    auto* l = le<QLineEdit>("ligne");
    ligne.ecrit("24.68");
    EXPECT_EQ(l->text(), "24.68");
    l->selectAll();
    QTest::keyClicks(l, "12,");
    QTest::sendKeyEvent(QTest::Click, l, Qt::Key_Eacute, QString{"é"}, Qt::NoModifier);
    EXPECT_EQ(ligne.lit(), "12,é");
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
    chk.coche(true);
    fiche_essai.decharge();
    EXPECT_FALSE(piece("frmessai")->isVisible());
    fiche_essai.montre();
    EXPECT_FALSE(le<QCheckBox>("chk")->isChecked()) << "as drawn";
    EXPECT_EQ(le<QListWidget>("lbliste")->count(), 0);
}

TEST_F(genres, a_surface_gives_mouse_and_keys_in_its_own_units) {
    std::vector<int> recus;
    carte.a_la_souris([&](souris ou) {
        recus = {ou.bouton, static_cast<int>(ou.x), static_cast<int>(ou.y)};
    });
    auto* w = le<QWidget>("carte");
    QTest::mousePress(w, Qt::RightButton, {}, {100, 20});
    EXPECT_EQ(recus, (std::vector{2, 1500, 300}));
    int code = 0;
    carte.a_la_touche([&](touche t) { code = t.code; });
    const std::pair<Qt::Key, int> cles[] = {{Qt::Key_Left, 37},
                                            {Qt::Key_Up, 38},
                                            {Qt::Key_Right, 39},
                                            {Qt::Key_Down, 40},
                                            {Qt::Key_PageUp, 33},
                                            {Qt::Key_PageDown, 34},
                                            {Qt::Key_End, 35},
                                            {Qt::Key_Home, 36},
                                            {Qt::Key_Delete, 46},
                                            {Qt::Key_Escape, 27},
                                            {Qt::Key_X, 88},
                                            {Qt::Key_F5, 116},
                                            // Signs whose characters are the codes of arrows and others.
                                            {Qt::Key_Apostrophe, 255},
                                            {Qt::Key_Percent, 255},
                                            {Qt::Key_Ampersand, 255},
                                            {Qt::Key_Period, 255}};
    for (const auto& [cle, attendu] : cles) {
        QTest::keyClick(w, cle);
        EXPECT_EQ(code, attendu);
    }
    QTest::keyClick(w, Qt::Key_7, Qt::KeypadModifier);
    EXPECT_EQ(code, 103);
}

TEST_F(genres, a_photograph_too_large_for_qt_is_reduced_while_it_is_read) {
    const QTemporaryDir dossier;
    const auto chemin = dossier.filePath("photo.jpg").toStdString();
    QImage grande{6000, 6000, QImage::Format_RGB32}; // 144 MB
    grande.fill(Qt::red);
    grande.setDotsPerMeterX(20000);
    ASSERT_TRUE(grande.save(QString::fromStdString(chemin)));
    const auto photo = shell::vue_courante->charge_image(chemin);
    EXPECT_EQ(photo, (plateforme::image{photo.numero, 6000, 6000, 508}));
    dessin_bouton.image(photo);
    EXPECT_GT(le<QWidget>("dessin")->grab().toImage().pixelColor(0, 0).red(), 250);
}

} // namespace
