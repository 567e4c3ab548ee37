// What a tracking tick costs, its bursts' waits apart: handler and store, with every field changing. Each
// tick is timed on its own, and the median is reported.
#include "bench/monture.h"
#include "bench/port_simule.h"
#include "drive/position.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmconfig_champs.h"
#include "frame/programme.h"
#include "machines/virtual/boucle_virtuelle.h"
#include "mesure.h"
#include "tracking/etat_suivi.h"

#include <benchmark/benchmark.h>
#include <vector>

namespace {

struct banc_suivi {
    banc::monture monture;
    banc::port_simule port{monture};
    plateforme::boucle_virtuelle boucle;
    mesure::vue_muette vue;

    // `heure` of the computer: at 0 h each tick reads the almanac.
    banc_suivi(int increment, int heure) {
        plateforme::courante = {&port, &boucle, &boucle, VELMORIA_DONNEES};
        shell::vue_courante = &vue;
        boucle.regle_horloge({.annee = 2001, .mois = 8, .jour = 15, .heure = heure});
        programme::construit();
        frmaltazsuivi::fiche.charge();
        frmconfig::txtsign.ecrit("+");
        frmconfig::txtdec_deg.ecrit("20");
        frmconfig::Txtad_h.ecrit("21");
        tracking::objetchoisi = true;
        frmaltazsuivi::txtincrement.ecrit(base::entier32{increment});
        frmaltazsuivi::cmdcalcul.clic();
    }
};

void tic(benchmark::State& etat) {
    const int increment = static_cast<int>(etat.range(0));
    banc_suivi b(increment, static_cast<int>(etat.range(1)));
    // From one object to another and back, all that can change does; steps of 1 degree keep the bursts short.
    const bool sauts = etat.range(2) != 0;
    if (sauts)
        general::angpasaz = general::angpasalt = 3600;
    bool autre = false;
    std::vector<double> durees;
    const auto avant = b.vue.changements;
    for (auto _ : etat) {
        if (sauts)
            frmconfig::Txtad_h.ecrit((autre = !autre) ? "20" : "21");
        const auto debut = mesure::montre::now();
        b.boucle.avance(increment * std::int64_t{1'000'000});
        durees.push_back(mesure::microsecondes(mesure::montre::now() - debut));
    }
    etat.counters["mediane_us"] = mesure::mediane(durees);
    etat.counters["champs"] =
        static_cast<double>(b.vue.changements - avant) / static_cast<double>(etat.iterations());
}
BENCHMARK(tic)
    ->ArgNames({"increment", "heure", "sauts"})
    ->Args({1000, 22, 0})
    ->Args({100, 22, 0})
    ->Args({1000, 0, 0})
    ->Args({1000, 22, 1})
    ->Args({1000, 0, 1})
    ->Iterations(3000);

} // namespace

BENCHMARK_MAIN();
