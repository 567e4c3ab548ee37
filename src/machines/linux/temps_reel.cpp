#include "machines/linux/temps_reel.h"

#include "machines/linux/droits.h"

#include <cstdio>
#include <cstdlib>
#include <linux/capability.h>
#include <sched.h>
#include <semaphore>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace plateforme {

namespace {

/// What the thread starts later runs as any other; and this flag, once set, an ordinary thread may not clear.
constexpr int sans_heritage = SCHED_RESET_ON_FORK;

bool ordonnance(pid_t fil, bool tour_de_role) {
    sched_param p{};
    p.sched_priority = tour_de_role ? sched_get_priority_min(SCHED_RR) : 0;
    return sched_setscheduler(fil, (tour_de_role ? SCHED_RR : SCHED_OTHER) | sans_heritage, &p) == 0;
}

bool plusieurs_processeurs() {
    cpu_set_t permis;
    return sched_getaffinity(0, sizeof permis, &permis) == 0 && CPU_COUNT(&permis) > 1;
}

bool limite_du_compte() {
    rlimit l{};
    return getrlimit(RLIMIT_RTPRIO, &l) == 0 && l.rlim_cur >= 1;
}

} // namespace

/// The thread that may. It is round-robin itself, or a busy machine would keep it from answering; and asleep
/// but for the call.
class tour_de_role::aide {
  public:
    aide() : pour_(gettid()), fil_([this] { sert(); }) { fait_.acquire(); }
    ~aide() {
        fini_ = true;
        voulu_.release();
        fil_.join();
    }
    bool demande() {
        voulu_.release();
        fait_.acquire();
        return reussi_;
    }

  private:
    void sert() {
        if (!garde_un_droit(CAP_SYS_NICE)) {
            std::fprintf(stderr, "%s\n", message_droits_gardes.data());
            std::_Exit(1);
        }
        sous_le_droit(gettid());
        for (fait_.release(), voulu_.acquire(); !fini_; fait_.release(), voulu_.acquire())
            reussi_ = sous_le_droit(pour_);
    }
    static bool sous_le_droit(pid_t fil) {
        const bool reussi = met_en_vigueur(CAP_SYS_NICE) && ordonnance(fil, true);
        return met_en_vigueur(-1) && reussi;
    }

    pid_t pour_;
    bool fini_ = false;
    bool reussi_ = false;
    std::binary_semaphore voulu_{0};
    std::binary_semaphore fait_{0};
    std::thread fil_;
};

tour_de_role::tour_de_role() {
    if (!plusieurs_processeurs()) {
        etat_ = etat::un_processeur;
        return;
    }
    if (!limite_du_compte() && a_le_droit(CAP_SYS_NICE))
        aide_ = std::make_unique<aide>();
    permis_ = aide_ || limite_du_compte();
    if (permis_)
        etat_ = etat::pret;
}

tour_de_role::~tour_de_role() {
    if (actif_)
        change(false);
}

void tour_de_role::repos() {
    constexpr std::int64_t fin_d_un_mouvement = 2'000'000'000;
    if (!actif_)
        return;
    if (std::exchange(bouge_, false))
        repos_ = horloge_monotone();
    else if (horloge_monotone() - repos_ > fin_d_un_mouvement)
        change(false);
}

void tour_de_role::change(bool actif) {
    const bool reussi = actif && aide_ ? aide_->demande() : ordonnance(0, actif);
    if (reussi) {
        actif_ = actif;
        if (actif)
            etat_ = etat::en_vigueur;
    } else if (actif) { // a limit of the machine's that nothing told of: not asked again
        permis_ = false;
        etat_ = etat::sans_droit;
    }
}

std::string_view libelle(tour_de_role::etat e) {
    switch (e) {
    case tour_de_role::etat::un_processeur:
        return "non, un seul processeur";
    case tour_de_role::etat::sans_droit:
        return "non, droit absent";
    case tour_de_role::etat::pret:
        return "au prochain mouvement";
    case tour_de_role::etat::en_vigueur:
        return "en vigueur";
    case tour_de_role::etat::trop_court:
        return "non, attentes trop courtes";
    }
    return "";
}

} // namespace plateforme
