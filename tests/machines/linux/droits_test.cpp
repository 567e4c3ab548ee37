#include "machines/linux/droits.h"

#include "machines/linux/temps_reel.h"

#include <csignal>
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <linux/capability.h>
#include <sched.h>
#include <string>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace plateforme;

namespace {

/// Runs `f` in a child; its result is the child's exit status.
template <class F> pid_t enfante(F&& f) {
    const pid_t pid = fork();
    if (pid == 0)
        _exit(f());
    return pid;
}

/// Waits for the child; its exit status, or 1000 plus the signal that ended it.
int issue(pid_t pid) {
    int etat = 0;
    EXPECT_EQ(waitpid(pid, &etat, 0), pid);
    return WIFEXITED(etat) ? WEXITSTATUS(etat) : 1000 + WTERMSIG(etat);
}

/// A capability set of this process in hexadecimal, as the kernel tells it: "CapEff:", "CapPrm:"...
std::string ensemble(const std::string& nom) {
    std::ifstream etat{"/proc/thread-self/status"};
    std::string mot;
    while (etat >> mot)
        if (mot == nom) {
            etat >> mot;
            return mot;
        }
    return "introuvable";
}

/// Puts the raw port's capability into the inheritable and the ambient set too.
bool rend_transmissibles() {
    __user_cap_header_struct entete{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct droits[_LINUX_CAPABILITY_U32S_3]{};
    if (syscall(SYS_capget, &entete, droits) != 0)
        return false;
    droits[0].inheritable |= 1U << CAP_SYS_RAWIO;
    return syscall(SYS_capset, &entete, droits) == 0 &&
           prctl(PR_CAP_AMBIENT, PR_CAP_AMBIENT_RAISE, CAP_SYS_RAWIO, 0, 0) == 0;
}

bool vide(const std::string& nom) { return ensemble(nom) == std::string(16, '0'); }

} // namespace

TEST(Verrou, OneHolderPerNameKnownToOthersAndFreeAtItsDeath) {
    const std::string nom = "velmoria-essai-" + std::to_string(getpid());
    int tuyau[2];
    ASSERT_EQ(pipe(tuyau), 0);
    const pid_t tenant = enfante([&] {
        const auto v = verrouille(nom);
        const char reponse = v.pris() ? 'o' : 'n';
        if (write(tuyau[1], &reponse, 1) != 1)
            return 1;
        pause();
        return 1;
    });
    char reponse = 0;
    ASSERT_EQ(read(tuyau[0], &reponse, 1), 1);
    EXPECT_EQ(reponse, 'o');
    for (int i = 0; i < 3; ++i) {
        const auto v = verrouille(nom);
        EXPECT_FALSE(v.pris());
        EXPECT_EQ(v.tenant(), tenant);
        EXPECT_EQ(v.utilisateur(), geteuid());
        EXPECT_NE(message_port_occupe(v).find("(processus " + std::to_string(tenant) + ", utilisateur "),
                  std::string::npos);
    }
    EXPECT_TRUE(verrouille(nom + "-autre").pris()) << "another name is another lock";
    EXPECT_FALSE(verrouille(std::string(108, 'x')).pris()) << "a name too long";

    // Killed without a chance to tidy up, the holder leaves no lock behind.
    kill(tenant, SIGKILL);
    EXPECT_EQ(issue(tenant), 1000 + SIGKILL);
    const auto v = verrouille(nom);
    EXPECT_TRUE(v.pris());
    EXPECT_FALSE(verrouille(nom).pris()) << "the lock must outlive the call that took it";
    close(tuyau[0]);
    close(tuyau[1]);
}

TEST(TourDeRole, InForceWhileHalfStepsSleepAndHeldByNoOtherThread) {
    enum { bien, sans_droit, trop_tot, absent, reste, herite };
    const int resultat = issue(enfante([]() -> int {
        tour_de_role tour;
        if (!abandonne_droits() || !vide("CapPrm:"))
            return reste;
        if (tour.dernier() != tour_de_role::etat::pret)
            return sans_droit;
        const auto politique = [] { return sched_getscheduler(0) & ~SCHED_RESET_ON_FORK; };
        tour.avant_attente(tour_de_role::au_moins - 1);
        if (politique() != SCHED_OTHER || tour.dernier() != tour_de_role::etat::trop_court)
            return trop_tot;
        for (int i = 0; i < 2; ++i) {
            tour.avant_attente(tour_de_role::au_moins);
            tour.cession_finie();
            tour.repos();
            if (politique() != SCHED_RR || tour.dernier() != tour_de_role::etat::en_vigueur)
                return absent;
            int ailleurs = -1;
            std::string droits;
            std::thread{[&] { ailleurs = politique(), droits = ensemble("CapPrm:"); }}.join();
            if (ailleurs != SCHED_OTHER || droits != std::string(16, '0'))
                return herite;
            tour.cession_finie(); // a yield without a wait: it turns on the spot
            if (politique() != SCHED_OTHER)
                return reste;
        }
        return bien;
    }));
    if (resultat == sans_droit)
        GTEST_SKIP() << "no real-time scheduling for this account, or a single processor";
    EXPECT_EQ(resultat, bien);
}

TEST(Droits, NoCapabilityIsLeftAndTheUserIsTheSame) {
    enum { bien, rien_a_perdre, refus, reste, autre_utilisateur };
    const int resultat = issue(enfante([]() -> int {
        // An ordinary user has nothing to give up, except in a user namespace of his own.
        if (vide("CapEff:") && unshare(CLONE_NEWUSER) != 0)
            return rien_a_perdre;
        if (!rend_transmissibles() || vide("CapEff:") || vide("CapInh:") || vide("CapAmb:"))
            return rien_a_perdre;
        const auto utilisateur = geteuid();
        // The second time there is nothing left, not even the right to shrink the bounding set.
        if (!abandonne_droits() || !abandonne_droits())
            return refus;
        for (const char* nom : {"CapEff:", "CapPrm:", "CapInh:", "CapAmb:", "CapBnd:"})
            if (!vide(nom)) {
                std::fprintf(stderr, "%s %s\n", nom, ensemble(nom).c_str());
                return reste;
            }
        return geteuid() == utilisateur ? bien : autre_utilisateur;
    }));
    if (resultat == rien_a_perdre)
        GTEST_SKIP() << "no capability to give up, and no user namespace to get one";
    EXPECT_EQ(resultat, bien);
}
