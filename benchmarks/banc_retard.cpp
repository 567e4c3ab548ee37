// Tracking on the bench while other processes keep every core busy: how many ticks are missed, how late a
// half-pulse can be, beside what the machine takes from a loop that only reads the clock. Needs a display.
// banc_retard [SECONDS [PROCESSES]]
#include "drive/cmd_moteur.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "fields/frminterface_champs.h"
#include "machines/linux/attente_precise.h"
#include "machines/linux/horloge_systeme.h"
#include "machines/qt/bench/composition.h"
#include "machines/qt/bench/fenetre_banc.h"
#include "machines/qt/lance.h"
#include "sky/heure.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr int increment_ms = 100;

// Processes that do nothing but count.
std::vector<pid_t> charge(int combien) {
    std::vector<pid_t> enfants;
    for (int i = 0; i < combien; ++i) {
        const pid_t p = fork();
        if (p == 0)
            for (volatile unsigned n = 0;;)
                n = n + 1;
        enfants.push_back(p);
    }
    return enfants;
}

void decharge(const std::vector<pid_t>& enfants) {
    for (const pid_t p : enfants) {
        kill(p, SIGKILL);
        waitpid(p, nullptr, 0);
    }
}

// Runs the event loop and counts the ticks seen: each moves the milliseconds of the panel clock.
int compte_tics(int secondes) {
    int tics = 0;
    std::string avant = frmcoord::txtms.regarde().texte;
    QTimer guet;
    QObject::connect(&guet, &QTimer::timeout, [&] {
        const auto& ms = frmcoord::txtms.regarde().texte;
        if (ms != avant) {
            ++tics;
            avant = ms;
        }
    });
    guet.start(5);
    QTimer::singleShot(secondes * 1000,
                       [] { QApplication::exit(0); }); // a quit would close the windows first
    QApplication::exec();
    return tics;
}

// The longest time between two readings of the clock by a loop that does nothing else: what the machine takes
// away from any program, whatever it does.
double pire_trou_us(int secondes) {
    using horloge = std::chrono::steady_clock;
    const auto debut = horloge::now();
    auto avant = debut;
    horloge::duration pire{};
    while (avant - debut < std::chrono::seconds{secondes}) {
        const auto t = horloge::now();
        pire = std::max(pire, t - avant);
        avant = t;
    }
    return std::chrono::duration<double, std::micro>{pire}.count();
}

void mesure(banc::etabli& etabli, int secondes, int processus) {
    const auto enfants = charge(processus);
    const double trou = pire_trou_us(secondes);
    frmaltazsuivi::cmdcalcul.clic();
    etabli.oublie_retard();
    const int tics = compte_tics(secondes);
    const int attendus = secondes * 1000 / increment_ms;
    std::printf("%d processus à côté : %d tics sur %d en %d s, %d manqués ; pire retard d'une demi-impulsion "
                "%.1f µs, pire trou d'une boucle qui ne lit que l'horloge %.1f µs\n",
                processus, tics, attendus, secondes, std::max(0, attendus - 1 - tics),
                static_cast<double>(etabli.pire_retard()) / 1000.0, trou);
    decharge(enfants);
}

} // namespace

int main(int argc, char** argv) {
    const int secondes = argc > 1 ? std::atoi(argv[1]) : 20;
    const int coeurs = static_cast<int>(std::thread::hardware_concurrency());
    const int processus = argc > 2 ? std::atoi(argv[2]) : coeurs;
    banc::horloge_banc horloge{plateforme::temps_systeme(),
                               [] { return int{general::decalageheure.valeur()}; }};
    horloge.regle({2000, 8, 15, 23, 0, 0, 0});
    plateforme::attente_precise attente;
    banc::etabli etabli{plateforme::horloge_monotone};
    auto composition = banc::sur_le_banc(etabli, horloge, attente);
    composition.donnees = DONNEES;
    plateforme::qt::seance s{argc, argv, std::move(composition)};
    base::installe_gestionnaire(
        nullptr); // a failure is printed and ends the run, where nobody could close a box
    s.demarre();
    banc::fenetre_banc fenetre{etabli, horloge};
    fenetre.show();
    frminterface::barchoix_boutons(2).clic();
    frminterface::baraltaz_boutons(6).clic();
    frmconfig::cmdinitcoord.clic();
    frmconfig::lbObjets.choisit(12); // M13, high at this hour
    frmconfig::cmdchoix.clic();
    frmconfig::cmdreinit.clic();
    frminterface::baraltaz_boutons(5).clic();
    frmaltazsuivi::txtincrement.saisit(std::to_string(increment_ms));
    mesure(etabli, secondes, 0);
    mesure(etabli, secondes, processus);
}
