// How late the waits end and what they cost the processor, beside a loop that does nothing but read the
// clock: what that loop suffers is the machine's own noise. The two take turns within each run, so that a
// ratio compares the same seconds.
#include "machines/linux/attente_precise.h"
#include "mesure.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

using mesure::mediane;

constexpr int nombre_passages = 7;

struct epreuve {
    std::int64_t nominal; // ns
    int attentes;         // per run
    double mediane_max;   // promised median lateness, us
    double charge_max;    // promised processor load, %; 100 = none promised
};

// The longest first: the margin learnt there is then small enough for the shorter ones to sleep as well.
constexpr epreuve epreuves[] = {
    {10'000'000, 200, 2, 5}, {1'000'000, 1000, 2, 15}, {100'000, 2000, 2, 100}, {10'000, 5000, 2, 100}};

struct passage {
    double mediane = 0, centile99 = 0, pire = 0; // us
    double charge = 0;                           // %
    bool trop_court = false;
};

std::int64_t temps_processeur() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return std::int64_t{t.tv_sec} * 1'000'000'000 + t.tv_nsec;
}

template <class Attend> passage chronometre(const epreuve& e, Attend&& attend) {
    std::vector<double> retards;
    retards.reserve(static_cast<std::size_t>(e.attentes));
    const auto debut = plateforme::horloge_monotone();
    const auto debut_processeur = temps_processeur();
    for (int i = 0; i < e.attentes; ++i) {
        const auto avant = plateforme::horloge_monotone();
        attend(e.nominal);
        retards.push_back(static_cast<double>(plateforme::horloge_monotone() - avant - e.nominal) / 1000);
    }
    const auto processeur = static_cast<double>(temps_processeur() - debut_processeur);
    const auto duree = static_cast<double>(plateforme::horloge_monotone() - debut);
    std::sort(retards.begin(), retards.end());
    return {retards[retards.size() / 2], retards[retards.size() * 99 / 100], retards.back(),
            100 * processeur / duree, retards.front() < 0};
}

void guette_l_horloge(std::int64_t ns) {
    const auto fin = plateforme::horloge_monotone() + ns;
    while (plateforme::horloge_monotone() < fin) {
    }
}

template <class Champ> double mediane_des(const std::vector<passage>& m, Champ champ) {
    std::vector<double> v;
    for (const auto& x : m)
        v.push_back(x.*champ);
    return mediane(v);
}

} // namespace

int main() {
    std::printf("Médianes de %d passages ; retards en µs ; entre parenthèses, la boucle qui ne fait que lire "
                "l'horloge.\n",
                nombre_passages);
    std::printf(
        "  nominal      retard médian      99e centile   rapport des 99e       pire            charge\n");
    plateforme::attente_precise attente;
    bool court = false;
    bool tenu = true;
    for (const auto& e : epreuves) {
        std::vector<passage> nous, boucle;
        std::vector<double> rapports;
        for (int p = 0; p < nombre_passages; ++p) {
            nous.push_back(chronometre(e, [&](std::int64_t ns) { attente.attend(ns); }));
            boucle.push_back(chronometre(e, guette_l_horloge));
            rapports.push_back(nous.back().centile99 / boucle.back().centile99);
            court = court || nous.back().trop_court;
        }
        const double retard = mediane_des(nous, &passage::mediane);
        const double charge = mediane_des(nous, &passage::charge);
        std::printf("%6lld µs  %7.2f (%6.2f)  %7.2f (%7.2f)      %7.2f  %8.1f (%8.1f)  %5.1f %% (%5.1f %%)\n",
                    static_cast<long long>(e.nominal / 1000), retard, mediane_des(boucle, &passage::mediane),
                    mediane_des(nous, &passage::centile99), mediane_des(boucle, &passage::centile99),
                    mediane(rapports), mediane_des(nous, &passage::pire), mediane_des(boucle, &passage::pire),
                    charge, mediane_des(boucle, &passage::charge));
        tenu = tenu && retard <= e.mediane_max && charge <= e.charge_max;
    }
    std::printf(
        "%s\n",
        court  ? "DÉFAUT : une attente plus courte que sa durée nominale."
        : tenu ? "Promesses tenues : retard médian de 2 µs au plus, charge de 15 % à 1 ms et 5 % à 10 ms."
               : "Promesses non tenues (machine chargée ?).");
    return court ? 1 : 0;
}
