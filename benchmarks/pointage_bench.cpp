// What a filter of the largest catalogue costs, and what a pulse costs in a slew beside one in a jog: the
// program's own share, on a machine where port, waits and yields are free.
#include "catalogue/selecteur.h"
#include "drive/cmd_moteur.h"
#include "fields/frmequapointage_champs.h"
#include "frame/programme.h"
#include "seam/plateforme.h"
#include "slewing/etat_pointage.h"
#include "slewing/pointeequa.h"
#include "store/vue.h"

#include <benchmark/benchmark.h>

namespace {

struct port_libre final : plateforme::port {
    void ecrit(int, std::uint8_t valeur) override { benchmark::DoNotOptimize(valeur); }
    std::uint8_t lit(int) override { return 255; }
};

struct horloge_fixe final : plateforme::horloge {
    plateforme::instant maintenant() override { return {}; }
};

// Ends a jog after so many yields.
struct boucle_libre final : plateforme::boucle {
    std::int64_t reste = -1;
    void attend(std::int64_t) override {}
    void cede() override {
        if (reste > 0 && --reste == 0)
            cmd_moteur::cmdsens = 0;
    }
    void arme(shell::minuteur&, int) override {}
    void desarme(shell::minuteur&) override {}
    [[noreturn]] void termine(int statut) override { std::exit(statut); }
};

struct vue_libre final : plateforme::vue {
    void panneau_change(const shell::panneau&) override {}
    void eleve(const shell::panneau&) override {}
    void repeint(const shell::panneau&) override {}
    void controle_change(const shell::controle&, plateforme::aspect) override {}
    shell::entree* ouvre_menu(shell::entree&, const shell::entree*) override { return nullptr; }
    void message(const std::string&) override {}
    plateforme::image charge_image(const std::filesystem::path&) override { return {}; }
};

port_libre port;
horloge_fixe horloge;
boucle_libre boucle;
vue_libre vue;

void prepare() {
    plateforme::courante = {&port, &horloge, &boucle, &vue, DONNEES};
    programme::construit();
    frmequapointage::fiche.charge();
    frmequapointage::choix.lbCatalogue.visible(true);
    frmequapointage::choix.lbCatalogue.choisit(2); // IC, over a thousand objects
}

void filtre(benchmark::State& etat, shell::entree& entree) {
    prepare();
    for (auto _ : etat)
        entree.clic();
    etat.counters["lignes"] = static_cast<double>(frmequapointage::choix.lbObjets.regarde_lignes().size());
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
