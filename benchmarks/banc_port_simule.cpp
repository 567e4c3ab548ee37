// What one write to the simulated port costs. At 250,000 pulses a second a write may last 2000 ns in all.
#include "bench/port_simule.h"
#include "bench/vcd.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace {

struct temoin_vcd : banc::temoin {
    explicit temoin_vcd(bool horloge) : vraie_horloge(horloge) {}
    void lignes(std::uint8_t donnees, std::uint8_t controle) override {
        using namespace std::chrono;
        instant =
            vraie_horloge ? nanoseconds(steady_clock::now().time_since_epoch()).count() : instant + 2000;
        enregistreur.note(instant, donnees, controle);
    }
    bool vraie_horloge;
    std::int64_t instant = 0;
    banc::vcd enregistreur;
};

// Pulses as motion routines write them, through the interface that they know.
void ecrit_pulses(benchmark::State& etat, plateforme::port& port) {
    plateforme::port* p = &port;
    for (auto _ : etat) {
        benchmark::DoNotOptimize(p);
        p->ecrit(888, 8);
        p->ecrit(888, 12);
    }
    etat.counters["par_ecriture"] =
        benchmark::Counter(2.0 * static_cast<double>(etat.iterations()),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void compte(benchmark::State& etat) {
    banc::monture monture;
    banc::port_simule port(monture);
    ecrit_pulses(etat, port);
    if (monture.compte().az8 != static_cast<std::uint64_t>(etat.iterations()))
        etat.SkipWithError("pulses lost");
}
BENCHMARK(compte);

void enregistre(benchmark::State& etat, const std::string& fichier, bool vraie_horloge) {
    banc::monture monture;
    banc::port_simule port(monture);
    temoin_vcd temoin(vraie_horloge);
    if (!temoin.enregistreur.ouvre(fichier, 0, port.donnees(), port.controle()))
        etat.SkipWithError("no recording");
    port.observe(&temoin);
    ecrit_pulses(etat, port);
    if (!temoin.enregistreur.ferme())
        etat.SkipWithError("recording lost");
}

void enregistre_fichier(benchmark::State& etat) {
    const auto fichier =
        std::filesystem::temp_directory_path() / ("banc_" + std::to_string(::getpid()) + ".vcd");
    enregistre(etat, fichier, etat.range(0) != 0);
    std::filesystem::remove(fichier);
}
BENCHMARK(enregistre_fichier)->ArgName("vraie_horloge")->Arg(0)->Arg(1)->Iterations(500'000);

void enregistre_sans_disque(benchmark::State& etat) { enregistre(etat, "/dev/null", false); }
BENCHMARK(enregistre_sans_disque);

} // namespace

BENCHMARK_MAIN();
