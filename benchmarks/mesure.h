// What the benchmarks share: medians, memory, and machines that cost nothing.
#pragma once

#include "seam/plateforme.h"
#include "store/vue.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <string>
#include <vector>

namespace mesure {

using montre = std::chrono::steady_clock;

inline double microsecondes(montre::duration d) {
    return std::chrono::duration<double, std::micro>{d}.count();
}
inline double millisecondes(montre::duration d) { return microsecondes(d) / 1e3; }
inline double secondes_depuis(montre::time_point debut) { return microsecondes(montre::now() - debut) / 1e6; }

inline double mediane(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

/// The memory that a process holds, its share of what others hold too: megabytes.
inline double pss(const std::string& processus = "self") {
    std::ifstream f{"/proc/" + processus + "/smaps_rollup"};
    std::string mot;
    double ko = 0;
    while (f >> mot)
        if (mot == "Pss:" && f >> ko)
            break;
    return ko / 1024;
}

/// A view that shows nothing; it counts what it was told of controls.
struct vue_muette final : shell::vue {
    void panneau_change(shell::panneau&) override {}
    void eleve(shell::panneau&) override {}
    void repeint(shell::panneau&) override {}
    void controle_change(shell::controle&, shell::aspect) override { ++changements; }
    shell::entree* ouvre_menu(shell::entree&, const shell::entree*) override { return nullptr; }
    void message(const std::string&, shell::titre) override {}
    plateforme::image charge_image(const std::filesystem::path&) override { return {}; }
    std::int64_t changements = 0;
};

struct port_muet final : plateforme::port {
    void ecrit(int, std::uint8_t valeur) override { ecrit_en_dernier = valeur; }
    std::uint8_t lit(int) override { return 255; }
    volatile std::uint8_t ecrit_en_dernier = 0;
};

struct horloge_arretee final : plateforme::horloge {
    plateforme::instant maintenant() override { return {2001, 8, 15, 22, 0, 0, 0}; }
};

} // namespace mesure
