#include "machines/qt/fin.h"

#include "machines/qt/menus.h"
#include "machines/qt/mesures.h"
#include "store/panneau.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace plateforme::qt {

namespace {

std::function<void()> travail;

// A popup holds the mouse, and a splash may lie over the box.
void degage_l_ecran() {
    ferme_surgissants();
    for (auto* w : QApplication::topLevelWidgets())
        if (w->windowType() == Qt::SplashScreen)
            w->hide();
}

} // namespace

void a_la_fin(std::function<void()> f) { travail = std::move(f); }

void fin(int statut) {
    if (const auto f = std::exchange(travail, {}))
        f();
    std::fflush(nullptr);
    std::_Exit(statut);
}

void echoue(base::cause c, const std::string& detail) {
    static bool deja = false;
    const auto texte = std::string{base::libelle(c)} + " : " + detail;
    std::fprintf(stderr, "velmoria : %s\n", texte.c_str());
    if (std::exchange(deja, true) || !QCoreApplication::instance())
        fin(1);
    shell::gele();
    degage_l_ecran();
    QMessageBox boite{QMessageBox::Critical, "Velmoria", affiche(texte), QMessageBox::Ok,
                      QApplication::activeWindow()};
    boite.setObjectName("fatale");
    boite.setTextFormat(Qt::PlainText);
    boite.exec();
    fin(1);
}

} // namespace plateforme::qt
