// The notebook, the help and the about windows, with the mouse and the keys on the real windows.
#include "fenetres.h"

#include "base/octets.h"

#include <QAction>
#include <QLabel>
#include <QMdiArea>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <cstdlib>
#include <filesystem>

namespace {

namespace fs = std::filesystem;

// The program's folder at a path with blanks and accents; what the tests save lies there.
struct dossier_prive {
    fs::path racine;
    dossier_prive() {
        std::string modele = (fs::temp_directory_path() / "velmoria-XXXXXX").string();
        if (!mkdtemp(modele.data()))
            std::abort();
        racine = modele;
        fs::create_directories(programme());
        fs::copy(DONNEES, donnees(), fs::copy_options::recursive);
    }
    ~dossier_prive() { fs::remove_all(racine); }
    fs::path programme() const { return racine / "Mes nuits étoilées"; }
    fs::path donnees() const { return programme() / "data"; }
};

class notes : private dossier_prive, public essais::fenetres {
  protected:
    notes() : fenetres("1", donnees().c_str()) {}

    // A click on an entry of the menu bar itself.
    void ouvre(const char* entree) {
        auto* barre = principale()->findChild<QMenuBar*>();
        auto* action = principale()->findChild<QAction*>(entree);
        QTest::mouseClick(barre, Qt::LeftButton, {}, barre->actionGeometry(action).center());
    }
    QPlainTextEdit* champ() { return static_cast<QPlainTextEdit*>(piece("Frmnotes", "txtnotes")); }
    std::string octets() const { return base::lit_fichier(donnees() / "notes.txt"); }
    void ecrit(const std::string& o) const { base::ecrit_fichier(donnees() / "notes.txt", o); }
    QMdiSubWindow* devant() { return principale()->findChild<QMdiArea*>()->activeSubWindow(); }
    using dossier_prive::programme;
};

TEST_F(notes, typed_saved_at_the_press_left_and_opened_again) {
    ecrit("Lune\r\n");
    ouvre("Observations");
    EXPECT_EQ(piece("Frmnotes")->size(), QSize(499, 447)); // 7485 x 6705 twips
    EXPECT_TRUE(champ()->verticalScrollBar()->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), champ());
    EXPECT_EQ(champ()->toPlainText(), "Lune");
    QTest::keyClick(champ(), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(champ(), Qt::Key_Return);
    QTest::keyClicks(champ(), "M 13 resserr");
    QTest::sendKeyEvent(QTest::Click, champ(), Qt::Key_Eacute, QString{"é"}, Qt::NoModifier);
    QTest::keyClick(champ(), Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(champ(), "M 3");
    auto* bouton = piece("Frmnotes", "Picturesave");
    const auto repos = bouton->grab().toImage();
    QTest::mousePress(bouton, Qt::LeftButton);
    EXPECT_EQ(octets(), "Lune\r\nM 13 resserr\xE9\r\nM 3\r\n");
    EXPECT_NE(bouton->grab().toImage(), repos);
    QTest::mouseRelease(bouton, Qt::LeftButton);
    EXPECT_EQ(bouton->grab().toImage(), repos);

    clique("Frmnotes", "effacer");
    EXPECT_EQ(champ()->toPlainText(), "");
    clique("Frmnotes", "cmdnotesquit");
    EXPECT_FALSE(piece("Frmnotes")->isVisible());
    ouvre("Observations");
    EXPECT_TRUE(piece("Frmnotes")->isVisible());
    EXPECT_EQ(champ()->toPlainText(), "Lune\nM 13 resserré\nM 3");
}

// What the observer did not touch stays as it is: no-break blanks, bytes without a character.
TEST_F(notes, a_letter_typed_changes_no_other_byte) {
    const std::string etrange{"a\xA0: \x81 b \xAB\xA0x\xA0\xBB\r\n\r\nfin"};
    ecrit(etrange + "\r\n");
    ouvre("Observations");
    QTest::keyClick(champ(), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(champ(), "!");
    clique("Frmnotes", "Picturesave");
    EXPECT_EQ(octets(), etrange + "!\r\n");
}

TEST_F(notes, each_of_the_three_opens_once_and_comes_to_the_front) {
    for (const auto& [entree, nom] :
         {std::pair{"Observations", "Frmnotes"}, {"Aide", "frmaide"}, {"propos", "frmcopyright"}}) {
        ouvre(entree);
        EXPECT_EQ(devant(), piece(nom));
    }
    for (const auto& [entree, nom] :
         {std::pair{"Observations", "Frmnotes"}, {"Aide", "frmaide"}, {"propos", "frmcopyright"}}) {
        auto* premier = piece(nom);
        ouvre(entree);
        EXPECT_EQ(devant(), premier);
        EXPECT_EQ(principale()->findChildren<QWidget*>(nom).size(), 1);
    }
    EXPECT_EQ(piece("frmcopyright")->size(), QSize(267, 376)); // 4000 x 5640 twips
    for (const auto* nom : {"frmaide", "frmcopyright"}) {
        clique(nom, "cmdok1");
        EXPECT_FALSE(piece(nom)->isVisible());
        EXPECT_FALSE(fiche(nom).est_charge());
    }
}

TEST_F(notes, the_address_is_shown_whole) {
    for (const auto& [entree, nom] : {std::pair{"Aide", "frmaide"}, {"propos", "frmcopyright"}}) {
        ouvre(entree);
        auto* ligne = static_cast<QLabel*>(piece(nom, "Label1"));
        const auto adresse = "file://" + (programme() / "aide/index.html").string();
        EXPECT_EQ(ligne->text().remove(QChar{0x200B}).toStdString(), adresse);
        const auto place = ligne->fontMetrics().boundingRect(ligne->rect(), Qt::TextWordWrap, ligne->text());
        EXPECT_TRUE(ligne->rect().contains(place)) << nom;
    }
}

} // namespace
