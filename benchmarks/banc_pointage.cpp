// What a filter of the largest catalogue costs, and what a pulse costs in a slew beside one in a jog: the
// program's own share, on a machine where port, waits and yields are free.
#include "catalogue/selecteur.h"
#include "drive/cmd_moteur.h"
#include "fields/frmequapointage_champs.h"
#include "frame/programme.h"
#include "mesure.h"
#include "seam/plateforme.h"
#include "slewing/etat_pointage.h"
#include "slewing/pointeequa.h"

#include <benchmark/benchmark.h>

namespace {

// Ends a jog after so many yields.
struct boucle_libre final : plateforme::boucle {
    std::int64_t reste = -1;
    void attend(std::int64_t) override {}
    void cede() override {
        if (reste > 0 && --reste == 0)
            cmd_moteur::cmdsens = 0;
    }
    void arme(plateforme::rappel&, int) override {}
    void desarme(plateforme::rappel&) override {}
    [[noreturn]] void termine(int statut) override { std::exit(statut); }
};

mesure::port_muet port;
mesure::horloge_arretee horloge;
boucle_libre boucle;
mesure::vue_muette vue;

void prepare() {
    plateforme::courante = {&port, &horloge, &boucle, DONNEES};
    shell::vue_courante = &vue;
    programme::construit();
    frmequapointage::fiche.charge();
    frmequapointage::choix.lbCatalogue.visible(true);
    frmequapointage::choix.lbCatalogue.choisit(2); // IC, over a thousand objects
}

void filtre(benchmark::State& etat, shell::entree& entree) {
    prepare();
    for (auto _ : etat)
        entree.clic();
    etat.counters["lignes"] = static_cast<double>(frmequapointage::choix.lbObjets.regarde().lignes.size());
}

constexpr std::int64_t impulsions = 100'000;

void jog(benchmark::State& etat) {
    prepare();
    for (auto _ : etat) {
        cmd_moteur::cmdsens = 1;
        boucle.reste = 2 * impulsions;
        cmd_moteur::jogequa_az();
    }
    boucle.reste = -1;
    etat.SetItemsProcessed(etat.iterations() * impulsions);
}

void pointage(benchmark::State& etat) {
    prepare();
    for (auto _ : etat) {
        pointing::reticulead = 0;
        pointing::ciblead = 7200; // half a turn of 200000 pulses
        pointing::pointeequa();
    }
    etat.SetItemsProcessed(etat.iterations() * (impulsions + 2));
}

} // namespace

BENCHMARK_CAPTURE(filtre, galaxies, frmequapointage::choix.mnugalaxies)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(filtre, aucun, frmequapointage::choix.mnuaucun)->Unit(benchmark::kMicrosecond);
BENCHMARK(jog)->Unit(benchmark::kMillisecond);
BENCHMARK(pointage)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
