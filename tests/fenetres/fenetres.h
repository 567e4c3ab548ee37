// For tests of the real windows: the program on a port that is watched, its widgets by their names.
#pragma once

#include "drive/etat_moteur.h"
#include "frame/programme.h"
#include "machines/qt/boucle_qt.h"
#include "machines/qt/lance.h"
#include "machines/qt/vue_qt.h"

#include <QApplication>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace essais {

/// Remembers all writes; may have something done once so many pulses have gone out.
class port_temoin final : public plateforme::port {
  public:
    void ecrit(int adresse, std::uint8_t valeur) override {
        ecritures.emplace_back(adresse, valeur);
        if (adresse != plateforme::registre_donnees || (valeur & 5) == 0)
            return;
        ++impulsions;
        while (!suite_.empty() && impulsions >= suite_.front().first) {
            auto f = std::move(suite_.front().second);
            suite_.erase(suite_.begin());
            QTimer::singleShot(0, std::move(f)); // in the next yield, as an observer's act would
        }
    }
    std::uint8_t lit(int) override { return 0; }

    /// In the order of the pulses.
    void apres(int n, std::function<void()> f) { suite_.emplace_back(n, std::move(f)); }

    std::vector<std::pair<int, int>> ecritures;
    int impulsions = 0;

  private:
    std::vector<std::pair<int, std::function<void()>>> suite_;
};

class horloge_arretee final : public plateforme::horloge {
  public:
    plateforme::instant maintenant() override {
        ++lectures;
        return {2001, 8, 15, 22, 0, seconde, 0};
    }
    int lectures = 0; ///< one a tick of the clock
    int seconde = 0;  ///< moved by the test
};

class fenetres : public testing::Test {
  protected:
    explicit fenetres(const char* echelle = "1", std::filesystem::path donnees = DONNEES) {
        ouvre(
            {.port = port, .horloge = horloge, .attente = [](std::int64_t) {}, .donnees = std::move(donnees)},
            echelle);
    }

    /// On a machine of the test's own.
    explicit fenetres(plateforme::qt::composition c) { ouvre(std::move(c), "1"); }

    void SetUp() override {
        s->demarre();
        principale()->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(principale()));
    }

    QWidget* principale() { return s->vue().principale(); }

    /// A widget by its name in the window of a panel; the panel's own for no name.
    template <class W = QWidget> W* piece(const char* fiche, const char* nom = nullptr) {
        auto* f =
            principale()->objectName() == fiche ? principale() : principale()->findChild<QWidget*>(fiche);
        auto* w = !f || !nom ? f : f->findChild<QWidget*>(nom);
        if (!w)
            ADD_FAILURE() << "no widget " << fiche << (nom ? "." : "") << (nom ? nom : "");
        return static_cast<W*>(w);
    }

    void clique(const char* fiche, const char* nom) { QTest::mouseClick(piece(fiche, nom), Qt::LeftButton); }
    void presse(const char* fiche, const char* nom) { QTest::mousePress(piece(fiche, nom), Qt::LeftButton); }
    std::string texte(const char* fiche, const char* nom) {
        return piece<QLineEdit>(fiche, nom)->text().toStdString();
    }

    /// Has the next popup answered by `f`, then closed.
    static void au_menu(std::function<void(QMenu&)> f) {
        QTimer::singleShot(50, [f = std::move(f)] {
            auto* m = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_TRUE(m);
            f(*m);
            m->close();
        });
    }
    static void choisit(QAction* action) {
        auto* m = qobject_cast<QMenu*>(action->menu() ? action->menu()->parent() : action->parent());
        QTest::mouseClick(m, Qt::LeftButton, {}, m->actionGeometry(action).center());
    }

    shell::panneau& fiche(const char* nom) { return *programme::registre().trouve_panneau(nom); }

    port_temoin port;
    horloge_arretee horloge;
    std::unique_ptr<plateforme::qt::seance> s;

  private:
    void ouvre(plateforme::qt::composition c, const char* echelle) {
        qputenv("QT_SCALE_FACTOR", echelle);
        static char nom[] = "essais";
        static char* arguments[] = {nom, nullptr};
        s = std::make_unique<plateforme::qt::seance>(1, arguments, std::move(c));
    }
};

} // namespace essais
