// From process start to idle main frame, beside a bare Qt program, and the memory held then. Needs a display.
#include "mesure.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using mesure::mediane;
using mesure::millisecondes;
using mesure::montre;

struct demarrage {
    double ms = 0;
    double pss = 0;     // megabytes
    double travail = 0; // processor time, ms
};

// Starts it, waits for its byte, ends it.
demarrage demarre(const char* programme) {
    std::array<int, 2> tube{};
    if (pipe(tube.data()) != 0)
        std::exit(1);
    const auto debut = montre::now();
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
    const double duree = millisecondes(montre::now() - debut);
    demarrage m{duree, mesure::pss(std::to_string(pid))};
    close(tube[0]);
    kill(pid, SIGKILL);
    rusage usage{};
    wait4(pid, nullptr, 0, &usage);
    for (const auto& t : {usage.ru_utime, usage.ru_stime})
        m.travail += static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_usec) / 1e3;
    if (!pret) {
        std::fprintf(stderr, "banc_demarrage : %s n'a pas démarré\n", programme);
        std::exit(1);
    }
    return m;
}

// The counted delay of the start-up, which is there on purpose.
double delai_compte() {
    const auto debut = montre::now();
    volatile int i = 0;
    while (i <= 5'000'000)
        i = i + 1;
    return millisecondes(montre::now() - debut);
}

} // namespace

int main() {
    constexpr int repetitions = 21;
    constexpr std::array programmes{NU, DOCUMENT, PLEIN};
    std::array<std::vector<double>, 3> durees;
    std::array<std::vector<double>, 3> travaux;
    std::array<std::vector<double>, 3> memoires;
    std::vector<double> delais;
    for (int i = 0; i < repetitions; ++i) {
        for (std::size_t p = 0; p < programmes.size(); ++p) {
            const auto m = demarre(programmes[p]);
            durees[p].push_back(m.ms);
            travaux[p].push_back(m.travail);
            memoires[p].push_back(m.pss);
        }
        delais.push_back(delai_compte());
    }
    const double delai = mediane(delais);
    constexpr std::array noms{"Qt nu", "Qt nu, un document ouvert", "programme"};
    std::printf("médianes de %d démarrages ; délai compté %.1f ms, retranché des rapports\n", repetitions,
                delai);
    for (std::size_t p = 0; p < programmes.size(); ++p)
        std::printf("%-26s %6.1f ms, processeur %5.1f ms, PSS %4.1f Mo\n", noms[p], mediane(durees[p]),
                    mediane(travaux[p]), mediane(memoires[p]));
    for (std::size_t p = 0; p < 2; ++p)
        std::printf("programme / %s : %.2f en durée, %.2f en temps de processeur\n", noms[p],
                    (mediane(durees[2]) - delai) / mediane(durees[p]),
                    (mediane(travaux[2]) - delai) / mediane(travaux[p]));
}
