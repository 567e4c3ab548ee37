// The notebook, the help and the about windows, with the mouse and the keys on the real windows.
#include "fenetres.h"

#include "base/octets.h"

#include <QLabel>
#include <QMdiArea>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTemporaryDir>

namespace {

namespace fs = std::filesystem;

// The program's folder at a path with blanks and accents; what the tests save lies there.
struct dossier_prive {
    dossier_prive() {
        fs::create_directories(donnees());
        fs::copy(DONNEES, donnees(), fs::copy_options::recursive);
    }
    fs::path programme() const { return fs::path{temporaire.path().toStdString()} / "Mes nuits étoilées"; }
    fs::path donnees() const { return programme() / "data"; }
    QTemporaryDir temporaire;
};

class notes : private dossier_prive, public essais::fenetres {
  protected:
    notes() : fenetres("1", donnees()) {}

    // A click on an entry of the menu bar itself.
    void ouvre(const char* entree) {
        auto* barre = principale()->findChild<QMenuBar*>();
        auto* action = principale()->findChild<QAction*>(entree);
        QTest::mouseClick(barre, Qt::LeftButton, {}, barre->actionGeometry(action).center());
    }
    QPlainTextEdit* champ() { return piece<QPlainTextEdit>("Frmnotes", "txtnotes"); }
    std::string octets() const { return base::lit_fichier(donnees() / "notes.txt"); }
    void ecrit(const std::string& o) const { base::ecrit_fichier(donnees() / "notes.txt", o); }
    using dossier_prive::programme;
};

TEST_F(notes, typed_saved_at_the_press_and_cleared) {
    ecrit("Lune\r\n");
    ouvre("Observations");
    EXPECT_EQ(piece("Frmnotes")->size(), QSize(499, 447)); // 7485 x 6705 twips
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
}

} // namespace
