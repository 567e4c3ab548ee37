// The paddle's step loop beside the jog's at equal counts, on the simulated port: the paddle reads both
// registers after each step, the jog does not. Waits are precise ones, a yield costs nothing here. 60 counts
// are about 250,000 pulses a second.
#include "bench/port_simule.h"
#include "drive/cmd_moteur.h"
#include "drive/raquette.h"
#include "machines/linux/attente_precise.h"
#include "seam/plateforme.h"

#include <benchmark/benchmark.h>

namespace {

using namespace cmd_moteur;

// Lets go of the key and of the command after a number of yields, two a step.
class boucle_comptee final : public plateforme::boucle {
  public:
    explicit boucle_comptee(banc::port_simule& p) : port_(p) {}
    void part(std::int64_t pas) {
        reste_ = 2 * pas;
        cmdsens = 1;
        presse(9);
    }
    void attend(std::int64_t ns) override { attente_.attend(ns); }
    void cede() override {
        if (--reste_ == 0) {
            cmdsens = 0;
            presse(banc::port_simule::sans_touche);
        }
    }
    void arme(plateforme::rappel&, int) override {}
    void desarme(plateforme::rappel&) override {}
    [[noreturn]] void termine(int statut) override { std::exit(statut); }

  private:
    void presse(int code) {
        if (!port_.presente(code))
            std::abort();
    }
    banc::port_simule& port_;
    plateforme::attente_precise attente_;
    std::int64_t reste_ = 0;
};

constexpr std::int64_t lot = 10'000; // steps a measure: a jog reads its inversion file once

void boucle(benchmark::State& etat, bool raquette) {
    banc::monture monture;
    banc::port_simule port{monture};
    boucle_comptee b{port};
    plateforme::courante = {&port, nullptr, &b, VELMORIA_DONNEES};
    plateforme::Out32(plateforme::registre_controle, banc::port_simule::sans_touche);
    classevitaz = 0;
    vitessealtaz[0] = static_cast<int>(etat.range(0));
    tempopaddle = vitessealtaz[0];
    for (auto _ : etat) {
        b.part(lot);
        if (!raquette) {
            jogaltaz_az();
            continue;
        }
        plateforme::Out32(plateforme::registre_donnees, 0);
        baselinepaddle = 0;
        codepaddle = 9;
        bitsens = 0;
        bitpas = 4;
        paddleaz();
    }
    const auto n = monture.compte();
    if (n.az0 + n.az8 != static_cast<std::uint64_t>(lot * etat.iterations()))
        etat.SkipWithError("pulses lost");
    etat.SetItemsProcessed(lot * etat.iterations());
}

} // namespace

BENCHMARK_CAPTURE(boucle, jog, false)->ArgName("comptes")->Arg(0)->Arg(60)->Arg(1000)->UseRealTime();
BENCHMARK_CAPTURE(boucle, raquette, true)->ArgName("comptes")->Arg(0)->Arg(60)->Arg(1000)->UseRealTime();

BENCHMARK_MAIN();
