// The clock's tick, the conversion and the catalogue lists on the live windows, and what the program costs
// while it stands idle in alt-azimuth mode. Needs a display; run it on the xcb platform.
#include "drive/position.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "fields/frminterface_champs.h"
#include "machines/linux/attente_precise.h"
#include "machines/linux/horloge_systeme.h"
#include "machines/qt/bench/composition.h"
#include "machines/qt/bench/fenetre_banc.h"
#include "machines/qt/boucle_qt.h"
#include "machines/qt/lance.h"
#include "machines/qt/vue_qt.h"
#include "mesure.h"
#include "sky/almanach.h"
#include "sky/conversion.h"
#include "sky/heure.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <cstdio>
#include <sys/resource.h>
#include <vector>

namespace {

using mesure::mediane;
using mesure::microsecondes;
using mesure::montre;

void attends(double secondes) {
    QEventLoop boucle;
    QTimer::singleShot(static_cast<int>(secondes * 1000), &boucle, &QEventLoop::quit);
    boucle.exec();
}

class peintures final : public QObject {
  public:
    peintures() { qApp->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* e) override {
        nombre += e->type() == QEvent::Paint;
        return false;
    }
    int nombre = 0;
};

// Handler with and without the widgets' new texts, and then what paints them.
void mesure_tic() {
    constexpr int tours = 300;
    mesure::vue_muette muette; // the store alone, without a window
    auto* vraie = shell::vue_courante;
    std::vector<double> magasin, widgets, peinture, inchange;
    peintures p;
    int peints = 0;
    const auto tic = [](std::vector<double>& durees, double pas) {
        general::posaz += pas;
        general::posalt += pas;
        const auto debut = montre::now();
        frminterface::heuretimer.tic();
        durees.push_back(microsecondes(montre::now() - debut));
    };
    for (int i = 0; i < tours; ++i) {
        shell::vue_courante = &muette;
        tic(magasin, 3661.25);
        shell::vue_courante = vraie;
        tic(widgets, 3661.25);
        p.nombre = 0;
        const auto debut = montre::now();
        while (p.nombre == 0 && microsecondes(montre::now() - debut) < 1e6)
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        peinture.push_back(microsecondes(montre::now() - debut));
        peints += p.nombre;
    }
    for (int i = 0; i < tours; ++i)
        tic(inchange, 0);
    std::printf("tic, position changée : gestionnaire et magasin %.1f µs (médiane de %d, au plus 100), avec "
                "les textes des fenêtres %.1f µs\n",
                mediane(magasin), tours, mediane(widgets));
    std::printf("peinture qui suit : %.0f µs (au plus 1500), %.1f événements de peinture\n",
                mediane(peinture), static_cast<double>(peints) / tours);
    std::printf("tic qui ne change rien : %.1f µs\n", mediane(inchange));
}

void mesure_conversion() {
    constexpr int lot = 200;
    general::lit_almanach();
    std::vector<double> durees;
    for (int i = 0; i < 101; ++i) {
        const auto debut = montre::now();
        for (int k = 0; k < lot; ++k)
            general::calcul_altaz();
        durees.push_back(microsecondes(montre::now() - debut) / lot);
    }
    std::printf("calcul_altaz : %.2f µs (au plus 20)\n", mediane(durees));
}

// The catalogue with the most records, chosen in the panel's list; a small one in between.
void mesure_catalogue() {
    constexpr int petit = 1;
    constexpr int grand = 2;
    frmconfig::lbCatalogue.choisit(grand);
    const int lignes = static_cast<int>(frmconfig::lbObjets.regarde().lignes.size());
    std::vector<double> durees, peinture;
    peintures p;
    for (int i = 0; i < 51; ++i) {
        frmconfig::lbCatalogue.choisit(petit);
        attends(0.02);
        auto debut = montre::now();
        frmconfig::lbCatalogue.choisit(grand);
        durees.push_back(microsecondes(montre::now() - debut));
        p.nombre = 0;
        debut = montre::now();
        while (p.nombre == 0 && microsecondes(montre::now() - debut) < 1e6)
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        peinture.push_back(microsecondes(montre::now() - debut));
    }
    std::printf("catalogue de %d objets dans sa liste, fenêtre comprise : %.2f ms (au plus 5), peinture "
                "%.2f ms\n",
                lignes, mediane(durees) / 1e3, mediane(peinture) / 1e3);
}

double processeur() {
    rusage u{};
    getrusage(RUSAGE_SELF, &u);
    double s = 0;
    for (const auto& t : {u.ru_utime, u.ru_stime})
        s += static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
    return s;
}

void mesure_repos(const char* ou) {
    constexpr double duree = 10;
    attends(1);
    const peintures p;
    const double avant = processeur();
    attends(duree);
    std::printf("au repos, %s : processeur %.2f %% sur %.0f s (au plus 2), PSS %.1f Mo (au plus 60), %d "
                "événements de peinture\n",
                ou, (processeur() - avant) / duree * 100, duree, mesure::pss(), p.nombre);
}

} // namespace

int main(int argc, char** argv) {
    banc::horloge_banc horloge{plateforme::temps_systeme(),
                               [] { return int{general::decalageheure.valeur()}; }};
    plateforme::attente_precise attente;
    banc::etabli etabli{plateforme::horloge_monotone};
    auto composition = banc::sur_le_banc(etabli, horloge, attente);
    composition.donnees = DONNEES;
    plateforme::qt::seance s{argc, argv, std::move(composition)};
    s.demarre();
    banc::fenetre_banc fenetre{etabli, horloge, [] { return "non mesurée"; }};
    fenetre.show();
    frminterface::barchoix_boutons(2).clic();
    std::printf("plateforme %s\n", qPrintable(QGuiApplication::platformName()));
    mesure_repos("mode altazimutal et fenêtre du banc");
    frminterface::baraltaz_boutons(6).clic();
    attends(0.5);
    frmconfig::lbObjets.choisit(12);
    frmconfig::cmdchoix.clic();
    mesure_tic();
    mesure_conversion();
    mesure_catalogue();
}
