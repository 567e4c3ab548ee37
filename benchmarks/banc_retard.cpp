// Half-steps on the bench while two other processes for each processor do nothing but count, with the
// real-time priority and without, in turn: how long they last, how late they are, and how long a press of
// stop waits. Needs a display (xcb). banc_retard [SECONDS OF A PASS [PASSES [PROCESSES]]]
#include "drive/cmd_moteur.h"
#include "fields/frmaltazpilot_champs.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "fields/frminterface_champs.h"
#include "machines/linux/droits.h"
#include "machines/linux/horloge_systeme.h"
#include "machines/linux/temps_reel.h"
#include "machines/qt/bench/composition.h"
#include "machines/qt/bench/fenetre_banc.h"
#include "machines/qt/lance.h"
#include "sky/heure.h"

#include <QApplication>
#include <QTimer>
#include <X11/Xlib.h>
#include <X11/keysym.h>
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr int increment_ms = 100; // of the tracking
using plateforme::horloge_monotone;

// Waits with the priority or without, and the half-steps seen: from the wait's beginning to the end of the
// yield that follows it.
class attente_comparee {
  public:
    void attend(std::int64_t ns) {
        debut_ = horloge_monotone();
        nominal_ = ns;
        if (priorite)
            avec_.attend(ns);
        else
            sans_.attend(ns);
    }
    void cession_finie() {
        if (priorite)
            avec_.cession_finie();
        if (debut_ < 0)
            return;
        const auto duree = horloge_monotone() - debut_;
        debut_ = -1;
        total += duree;
        attendu += nominal_;
        retards.push_back(static_cast<double>(duree - nominal_) / 1e6);
    }
    void repos() { avec_.repos(); }
    plateforme::tour_de_role::etat etat() const { return avec_.dernier(); }

    bool priorite = false;
    std::int64_t total = 0, attendu = 0; // ns
    std::vector<double> retards;         // ms

  private:
    plateforme::attente_prioritaire avec_;
    plateforme::attente_precise sans_;
    std::int64_t debut_ = -1, nominal_ = 0;
};

struct bilan {
    std::int64_t total = 0, attendu = 0;
    std::vector<double> retards, arrets; // ms
    int tics = 0;

    double centile(double c) {
        std::sort(retards.begin(), retards.end());
        return retards.empty()
                   ? 0
                   : retards[static_cast<std::size_t>(c * static_cast<double>(retards.size() - 1))];
    }
};

// A process of its own for `f`.
template <class F> pid_t enfante(F f) {
    const pid_t p = fork();
    if (p == 0) {
        f();
        _exit(0);
    }
    return p;
}

// When another program sent the key, in ns of the monotonic clock: both processes see it.
std::int64_t* envoi() {
    static auto* t = static_cast<std::int64_t*>(
        mmap(nullptr, sizeof(std::int64_t), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    return t;
}

// Escape, which stops, as a keyboard sends it through the display, `secondes` from now.
pid_t presse_plus_tard(WId fenetre, int secondes) {
    return enfante([=] {
        sleep(static_cast<unsigned>(secondes));
        Display* ecran = XOpenDisplay(nullptr);
        if (!ecran)
            return;
        XKeyEvent touche{};
        touche.type = KeyPress;
        touche.display = ecran;
        touche.window = fenetre;
        touche.root = DefaultRootWindow(ecran);
        touche.same_screen = True;
        touche.keycode = XKeysymToKeycode(ecran, XK_Escape);
        *envoi() = horloge_monotone();
        XSendEvent(ecran, fenetre, True, KeyPressMask, reinterpret_cast<XEvent*>(&touche));
        XSync(ecran, False);
    });
}

void jog(bilan& b, WId fenetre, int ms, int secondes) {
    cmd_moteur::vitessealtaz.fill(
        cmd_moteur::entier32{static_cast<int>(ms * 1'000'000 / plateforme::ns_par_compte) - 1});
    *envoi() = 0;
    const pid_t presse = presse_plus_tard(fenetre, secondes);
    QTimer::singleShot((secondes + 5) * 1000,
                       [] { frmaltazpilot::deplacement.cmddstop.appuie(); }); // if no key came
    frmaltazpilot::deplacement.cmdad.clic();
    if (*envoi() != 0)
        b.arrets.push_back(static_cast<double>(horloge_monotone() - *envoi()) / 1e6);
    waitpid(presse, nullptr, 0);
}

// Runs the event loop and counts the ticks seen: each moves the milliseconds of the panel clock.
void suivi(bilan& b, int secondes) {
    frmaltazsuivi::cmdcalcul.clic();
    std::string avant = frmcoord::txtms.regarde().texte;
    QTimer guet;
    QObject::connect(&guet, &QTimer::timeout, [&] {
        const auto& ms = frmcoord::txtms.regarde().texte;
        if (ms != avant) {
            ++b.tics;
            avant = ms;
        }
    });
    guet.start(5);
    QTimer::singleShot(secondes * 1000,
                       [] { QApplication::exit(0); }); // a quit would close the windows first
    QApplication::exec();
    frmaltazsuivi::cmdstop.clic();
}

// The longest time between two readings of the clock by a loop that does nothing else: what the machine takes
// away from any program, whatever it does.
double pire_trou_ms(int secondes) {
    const auto debut = horloge_monotone();
    auto avant = debut;
    std::int64_t pire = 0;
    while (avant - debut < secondes * 1'000'000'000LL) {
        const auto t = horloge_monotone();
        pire = std::max(pire, t - avant);
        avant = t;
    }
    return static_cast<double>(pire) / 1e6;
}

template <class F> void compare(attente_comparee& attente, const char* nom, int passes, F mouvement) {
    bilan bilans[2];
    for (int i = 0; i < 2 * passes; ++i) { // in turn, so that both meet the same machine
        auto& b = bilans[i % 2];
        attente.priorite = i % 2 == 1;
        attente.total = attente.attendu = 0;
        attente.retards.clear();
        mouvement(b);
        b.total += attente.total;
        b.attendu += attente.attendu;
        b.retards.insert(b.retards.end(), attente.retards.begin(), attente.retards.end());
    }
    for (int i = 0; i < 2; ++i) {
        auto& b = bilans[i];
        std::printf(
            "%s, %s priorité : période moyenne / nominale %.3f ; retard d'une demi-impulsion : médiane "
            "%.2f ms, 99e centile %.2f, pire %.2f, sur %zu",
            nom, i ? "avec" : "sans", static_cast<double>(b.total) / static_cast<double>(b.attendu),
            b.centile(0.5), b.centile(0.99), b.centile(1), b.retards.size());
        if (!b.arrets.empty())
            std::printf(" ; arrêt au plus %.0f ms après la touche (%zu)",
                        *std::max_element(b.arrets.begin(), b.arrets.end()), b.arrets.size());
        if (b.tics)
            std::printf(" ; %d tics", b.tics);
        std::printf("\n");
    }
}

} // namespace

int main(int argc, char** argv) {
    const int secondes = argc > 1 ? std::atoi(argv[1]) : 5;
    const int passes = argc > 2 ? std::atoi(argv[2]) : 5;
    const int coeurs = static_cast<int>(std::thread::hardware_concurrency());
    const int processus = argc > 3 ? std::atoi(argv[3]) : 2 * coeurs;
    attente_comparee attente;
    if (!plateforme::abandonne_droits())
        return 1;
    banc::horloge_banc horloge{plateforme::temps_systeme(),
                               [] { return int{general::decalageheure.valeur()}; }};
    horloge.regle({2000, 8, 15, 23, 0, 0, 0});
    banc::etabli etabli{horloge_monotone};
    auto composition = banc::sur_le_banc(etabli, horloge, attente);
    composition.donnees = DONNEES;
    plateforme::qt::seance s{argc, argv, std::move(composition)};
    base::installe_gestionnaire(
        nullptr); // a failure is printed and ends the run, where nobody could close a box
    s.demarre();
    banc::fenetre_banc fenetre{etabli, horloge, [&] { return plateforme::libelle(attente.etat()); }};
    fenetre.show();
    frminterface::barchoix_boutons(2).clic();
    frminterface::baraltaz_boutons(6).clic();
    frmconfig::cmdinitcoord.clic();
    frmconfig::lbObjets.choisit(12); // M13, high at this hour
    frmconfig::cmdchoix.clic();
    frmconfig::cmdreinit.clic();
    frminterface::baraltaz_boutons(3).clic();
    QApplication::processEvents();

    std::vector<pid_t> charge;
    for (int i = 0; i < processus; ++i)
        charge.push_back(enfante([] {
            for (volatile unsigned n = 0;;)
                n = n + 1;
        }));
    rusage avant{};
    getrusage(RUSAGE_SELF, &avant);
    std::printf(
        "%d processus à côté, %d processeurs ; pire trou d'une boucle qui ne lit que l'horloge %.1f ms\n",
        processus, coeurs, pire_trou_ms(secondes));
    for (const int ms : {1, 10})
        compare(attente, ms == 1 ? "jog de 1 ms" : "jog de 10 ms", passes,
                [&](bilan& b) { jog(b, fenetre.winId(), ms, secondes); });
    frminterface::baraltaz_boutons(5).clic();
    frmaltazsuivi::txtincrement.saisit(std::to_string(increment_ms));
    compare(attente, "suivi de 100 ms", passes, [&](bilan& b) { suivi(b, secondes); });
    rusage apres{};
    getrusage(RUSAGE_SELF, &apres);
    std::printf("pages attendues pendant les mesures : du disque %ld, de la mémoire %ld\n",
                apres.ru_majflt - avant.ru_majflt, apres.ru_minflt - avant.ru_minflt);
    std::printf("priorité de temps réel : %s\n", plateforme::libelle(attente.etat()).data());
    for (const pid_t p : charge) {
        kill(p, SIGKILL);
        waitpid(p, nullptr, 0);
    }
}
