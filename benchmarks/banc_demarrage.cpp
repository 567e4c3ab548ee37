// From process start to idle main frame, beside a bare Qt program, and the memory held then. Needs a display.
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using horloge = std::chrono::steady_clock;

struct mesure {
    double ms = 0;
    double pss = 0; // megabytes
};

double pss(pid_t pid) {
    std::ifstream f{"/proc/" + std::to_string(pid) + "/smaps_rollup"};
    std::string mot;
    double ko = 0;
    while (f >> mot)
        if (mot == "Pss:" && f >> ko)
            break;
    return ko / 1024;
}

// Starts it, waits for its byte, ends it.
mesure demarre(const char* programme) {
    std::array<int, 2> tube{};
    if (pipe(tube.data()) != 0)
        std::exit(1);
    const auto debut = horloge::now();
    const pid_t pid = fork();
    if (pid == 0) {
        dup2(tube[1], STDOUT_FILENO);
        close(tube[0]);
        close(tube[1]);
        execl(programme, programme, static_cast<char*>(nullptr));
        _exit(127);
    }
    close(tube[1]);
    char octet = 0;
    const bool pret = read(tube[0], &octet, 1) == 1;
    const std::chrono::duration<double, std::milli> duree = horloge::now() - debut;
    const mesure m{duree.count(), pss(pid)};
    close(tube[0]);
    kill(pid, SIGKILL);
    waitpid(pid, nullptr, 0);
    if (!pret) {
        std::fprintf(stderr, "banc_demarrage : %s n'a pas démarré\n", programme);
        std::exit(1);
    }
    return m;
}

// The counted delay of the start-up, which is there on purpose.
double delai_compte() {
    const auto debut = horloge::now();
    volatile int i = 0;
    while (i <= 5'000'000)
        i = i + 1;
    return std::chrono::duration<double, std::milli>{horloge::now() - debut}.count();
}

double mediane(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

} // namespace

int main() {
    constexpr int repetitions = 15;
    std::vector<double> nus;
    std::vector<double> pleins;
    std::vector<double> delais;
    std::vector<double> memoires;
    std::vector<double> memoires_nues;
    for (int i = 0; i < repetitions; ++i) {
        const auto nu = demarre(NU);
        const auto plein = demarre(PLEIN);
        nus.push_back(nu.ms);
        memoires_nues.push_back(nu.pss);
        pleins.push_back(plein.ms);
        memoires.push_back(plein.pss);
        delais.push_back(delai_compte());
    }
    const double nu = mediane(nus);
    const double delai = mediane(delais);
    const double plein = mediane(pleins);
    std::printf(
        "démarrage (médianes de %d) : Qt nu %.1f ms, programme %.1f ms dont %.1f ms de délai compté ; "
        "sans lui %.2f fois Qt nu\n",
        repetitions, nu, plein, delai, (plein - delai) / nu);
    std::printf("mémoire PSS : Qt nu %.1f Mo, programme %.1f Mo\n", mediane(memoires_nues),
                mediane(memoires));
}
