// How fast a motor can be driven through the live windows, and how near a slow jog comes to its nominal
// period. Needs a display; run it on the xcb platform.
#include "drive/cmd_moteur.h"
#include "drive/raquette.h"
#include "fields/frmaltazpilot_champs.h"
#include "fields/frminterface_champs.h"
#include "machines/linux/attente_precise.h"
#include "machines/linux/horloge_systeme.h"
#include "machines/qt/bench/composition.h"
#include "machines/qt/bench/fenetre_banc.h"
#include "machines/qt/boucle_qt.h"
#include "machines/qt/lance.h"
#include "mesure.h"
#include "sky/heure.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace {

using mesure::mediane;
using mesure::montre;

constexpr int repetitions = 7;

struct course {
    double secondes = 0;
    double impulsions = 0;
    double passes = 0;
};

// The paddle's loop as the scan runs it, a key held for about `ms` milliseconds.
course raquette(plateforme::qt::boucle_qt& boucle, banc::port_simule& port, int compte, int ms) {
    cmd_moteur::port_a_la_raquette();
    cmd_moteur::slotazm = compte;
    if (!port.presente(9))
        std::abort();
    QTimer::singleShot(ms, [&port] { static_cast<void>(port.presente(banc::port_simule::sans_touche)); });
    const auto e = port.total_ecritures();
    const auto p = boucle.passes();
    const auto debut = montre::now();
    cmd_moteur::scruteraquette();
    return {mesure::secondes_depuis(debut), static_cast<double>(port.total_ecritures() - e) / 2,
            static_cast<double>(boucle.passes() - p)};
}

// One jog to the right, started and stopped as an observer does, for about `ms` milliseconds.
course jog(plateforme::qt::boucle_qt& boucle, banc::port_simule& port, int compte, int ms) {
    cmd_moteur::vitessealtaz.fill(cmd_moteur::entier32{compte});
    QTimer::singleShot(ms, [] { frmaltazpilot::deplacement.cmddstop.appuie(); });
    const auto e = port.total_ecritures();
    const auto p = boucle.passes();
    const auto debut = montre::now();
    frmaltazpilot::deplacement.cmdad.clic();
    return {mesure::secondes_depuis(debut), static_cast<double>(port.total_ecritures() - e) / 2,
            static_cast<double>(boucle.passes() - p)};
}

void vitesse(plateforme::qt::boucle_qt& boucle, banc::port_simule& port) {
    std::vector<double> cadences;
    std::vector<double> parts;
    for (int i = 0; i < repetitions; ++i) {
        const auto c = jog(boucle, port, 0, 500);
        cadences.push_back(c.impulsions / c.secondes);
        parts.push_back(c.passes / c.impulsions);
    }
    const double cadence = mediane(cadences);
    std::printf("jog, compte 0 : %.0f impulsions/s (médiane de %d), passes par impulsion %.4f à %.4f\n",
                cadence, repetitions, *std::min_element(parts.begin(), parts.end()),
                *std::max_element(parts.begin(), parts.end()));

    constexpr int tours = 200'000;
    std::vector<double> paires;
    std::vector<double> vides;
    for (int i = 0; i < repetitions; ++i) {
        auto debut = montre::now();
        for (int k = 0; k < tours; ++k) {
            plateforme::Out32(plateforme::registre_donnees, 8);
            plateforme::Out32(plateforme::registre_donnees, 12);
        }
        paires.push_back(mesure::secondes_depuis(debut) / tours);
        debut = montre::now();
        for (int k = 0; k < tours; ++k)
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        vides.push_back(mesure::secondes_depuis(debut) / tours);
    }
    const double paire = mediane(paires);
    const double passe = mediane(vides);
    const double plancher = paire + 2 * passe;
    std::printf(
        "plancher : paire d'écritures %.0f ns, passe de la boucle %.0f ns, soit %.0f ns par impulsion "
        "(%.0f/s)\n",
        paire * 1e9, passe * 1e9, plancher * 1e9, 1 / plancher);
    std::printf("au-dessus du plancher : %.0f ns par impulsion, %.2f fois\n", (1 / cadence - plancher) * 1e9,
                1 / cadence / plancher);
}

// In turn, so that both meet the same machine.
void compare_raquette(plateforme::qt::boucle_qt& boucle, banc::port_simule& port, int compte) {
    std::vector<double> rapports;
    for (int i = 0; i < repetitions; ++i) {
        const auto j = jog(boucle, port, compte, 400);
        const auto r = raquette(boucle, port, compte, 400);
        rapports.push_back(r.impulsions / r.secondes / (j.impulsions / j.secondes));
    }
    std::printf("raquette / jog, compte %d : %.2f en cadence (médiane de %d)\n", compte, mediane(rapports),
                repetitions);
}

// When the first step line rises.
class premiere_impulsion final : public banc::temoin {
  public:
    void lignes(std::uint8_t donnees, std::uint8_t) override {
        if (!venue && (donnees & 5) != 0) {
            venue = true;
            quand = montre::now();
        }
    }
    bool venue = false;
    montre::time_point quand;
};

// From a key of the paddle to the first pulse, the scan coming every 100 ms.
void latence(banc::port_simule& port) {
    constexpr int compte = 5000; // the fastest a bar allows
    const double limite = 100 + 1e-6 * (compte + 1) * static_cast<double>(plateforme::ns_par_compte) + 10;
    cmd_moteur::port_a_la_raquette();
    cmd_moteur::slotazm = compte;
    std::vector<double> attentes;
    for (int i = 0; i < 15; ++i) {
        const auto repos = montre::now();
        while (mesure::secondes_depuis(repos) < 0.13 + 0.013 * i) // not in step with the scan
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        premiere_impulsion premiere;
        plateforme::Out32(plateforme::registre_donnees, 0);
        cmd_moteur::baselinepaddle = 0;
        port.observe(&premiere);
        const auto debut = montre::now();
        static_cast<void>(port.presente(9));
        QTimer::singleShot(150,
                           [&port] { static_cast<void>(port.presente(banc::port_simule::sans_touche)); });
        while (mesure::secondes_depuis(debut) < 0.2)
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        port.observe(nullptr);
        if (premiere.venue)
            attentes.push_back(mesure::millisecondes(premiere.quand - debut));
    }
    if (attentes.empty())
        std::printf("raquette : aucune impulsion\n");
    else
        std::printf("raquette, de la touche à la première impulsion : médiane %.1f ms, au plus %.1f ms "
                    "(limite %.1f) sur %zu\n",
                    mediane(attentes), *std::max_element(attentes.begin(), attentes.end()), limite,
                    attentes.size());
}

void periode(plateforme::qt::boucle_qt& boucle, banc::port_simule& port, int ms_par_attente) {
    const auto compte = static_cast<int>(ms_par_attente * 1'000'000 / plateforme::ns_par_compte) - 1;
    const double nominale = 2e-9 * static_cast<double>((compte + 1) * plateforme::ns_par_compte);
    std::vector<double> rapports;
    for (int i = 0; i < 5; ++i) {
        const auto c = jog(boucle, port, compte, 1000);
        rapports.push_back(c.secondes / c.impulsions / nominale);
    }
    std::printf("attente de %d ms : période moyenne / nominale %.5f (médiane de 5)\n", ms_par_attente,
                mediane(rapports));
}

// Processor time of this thread, in seconds: what others take of the machine does not count.
double temps_du_fil() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) + 1e-9 * static_cast<double>(t.tv_nsec);
}

// What the bench's own window takes of a jog at 1 ms: its figures, ten times a second, and their painting.
void fenetre_du_banc(banc::fenetre_banc& fenetre, banc::port_simule& port) {
    std::vector<double> temps;
    for (int i = 0; i < 300; ++i) {
        for (int k = 0; k < 50; ++k) {
            port.ecrit(plateforme::registre_donnees, 8);
            port.ecrit(plateforme::registre_donnees, 12);
        }
        port.ecrit(plateforme::registre_donnees, i % 2 ? 8 : 12);
        for (const auto debut = mesure::montre::now();
             mesure::secondes_depuis(debut) < 0.01;) // the other timers, out of the way
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        const double debut = temps_du_fil();
        fenetre.rafraichit();
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        temps.push_back(temps_du_fil() - debut);
    }
    std::printf(
        "fenêtre du banc : %.0f µs toutes les 100 ms, %.2f %% de la période d'un jog (médiane de 300)\n",
        mediane(temps) * 1e6, mediane(temps) / 0.1 * 100);
}

} // namespace

int main(int argc, char** argv) {
    banc::horloge_banc horloge{plateforme::temps_systeme(),
                               [] { return int{general::decalageheure.valeur()}; }};
    plateforme::attente_precise attente;
    banc::etabli etabli{plateforme::horloge_monotone};
    auto& port = etabli.port();
    auto composition = banc::sur_le_banc(etabli, horloge, attente);
    composition.donnees = DONNEES;
    plateforme::qt::seance s{argc, argv, std::move(composition)};
    base::installe_gestionnaire(
        nullptr); // a failure is printed and ends the run, where nobody could close a box
    s.demarre();
    banc::fenetre_banc fenetre{etabli, horloge, [] { return "non mesurée"; }};
    fenetre.show();
    frminterface::altazimutal.clic();
    frminterface::baraltaz_boutons(3).clic();
    frminterface::Timer.marche(true);
    frminterface::heuretimer.marche(true);
    const auto debut = montre::now();
    while (mesure::secondes_depuis(debut) < 0.5) // everything painted
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);

    std::printf("plateforme %s\n", qPrintable(QGuiApplication::platformName()));
    fenetre_du_banc(fenetre, port);
    vitesse(s.boucle(), port);
    latence(port);
    compare_raquette(s.boucle(), port, 0);
    compare_raquette(s.boucle(), port, 1000);
    periode(s.boucle(), port, 1);
    periode(s.boucle(), port, 10);
}
