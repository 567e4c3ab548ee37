// essais_singe GRAINE ACTES [DEPARTS]: plays DEPARTS runs (default 1) of about ACTES acts each, from the
// start value GRAINE on; prints the shortest scenario found for each fault. Status 1 if there was one.
// essais_singe GRAINE ACTES 0: prints the run of one start as it was played.
// essais_singe FICHIER: plays a scenario under the same watch.

#include "generateur.h"
#include "surveillance.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>

namespace {

using singe::verdict;

const std::filesystem::path donnees{VELMORIA_DONNEES};

verdict depart(std::uint64_t graine, int actes) {
    singe::generateur generateur{graine, actes};
    return singe::joue_sous_surveillance(
        [&generateur](const shell::entree* popup) { return generateur.suivante(popup); }, donnees);
}

verdict rejoue(const std::vector<std::string>& lignes) {
    std::size_t i = 0;
    return singe::joue_sous_surveillance(
        [&](const shell::entree*) { return i < lignes.size() ? lignes[i++] : std::string{}; }, donnees);
}

// Takes out ever smaller stretches of lines for as long as the same fault stays.
verdict reduit(verdict v) {
    int essais = 600;
    for (std::size_t part = std::max<std::size_t>(1, v.lignes.size() / 2); part > 0 && essais > 0;) {
        bool mieux = false;
        for (std::size_t debut = 0; debut < v.lignes.size() && essais-- > 0;) {
            auto moins = v.lignes;
            const auto fin = std::min(debut + part, moins.size());
            moins.erase(moins.begin() + static_cast<std::ptrdiff_t>(debut),
                        moins.begin() + static_cast<std::ptrdiff_t>(fin));
            auto w = rejoue(moins);
            if (w.faute == v.faute) {
                v = std::move(w);
                mieux = true;
            } else {
                debut += part;
            }
        }
        if (part > 1)
            part /= 2;
        else if (!mieux)
            break;
    }
    return v;
}

void montre(const verdict& v) {
    for (const auto& l : v.lignes)
        std::cout << l << '\n';
    std::cout << "# faute : " << (v.faute.empty() ? "aucune" : v.faute) << "\n# fin : " << v.fin << '\n'
              << v.trace << std::flush;
}

int joue_fichier(const char* nom) {
    std::ifstream f{nom};
    std::vector<std::string> lignes;
    for (std::string l; std::getline(f, l);)
        if (!l.empty() && l.front() != '#')
            lignes.push_back(l);
    const auto v = rejoue(lignes);
    montre(v);
    return v.faute.empty() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2)
        return joue_fichier(argv[1]);
    if (argc < 3 || argc > 4) {
        std::cerr << "usage : essais_singe GRAINE ACTES [DEPARTS], ou essais_singe FICHIER\n";
        return 2;
    }
    const auto graine = std::strtoull(argv[1], nullptr, 10);
    const int actes = std::atoi(argv[2]);
    const int departs = argc == 4 ? std::atoi(argv[3]) : 1;
    std::map<std::string, std::pair<int, std::uint64_t>> fins; // how often, and the first start value
    std::map<std::string, int> fautes;
    std::uint64_t lignes = 0;
    std::array<std::uint64_t, 256> ecritures{};
    if (departs == 0)
        montre(depart(graine, actes));
    for (int n = 0; n < departs; ++n) {
        const auto g = graine + static_cast<std::uint64_t>(n);
        const auto v = depart(g, actes);
        lignes += v.lignes.size();
        for (std::size_t i = 0; i < ecritures.size(); ++i)
            ecritures[i] += v.ecritures[i];
        auto& fin = fins[v.fin.substr(0, v.fin.find(" : ", 4))];
        if (fin.first++ == 0)
            fin.second = g;
        if (v.faute.empty() || ++fautes[v.faute] > 1)
            continue; // the same fault is told once
        std::cout << "# graine " << g << " : " << v.lignes.size() << " lignes : " << v.faute << std::endl;
        montre(reduit(v));
    }
    std::cout << "départs " << departs << ", lignes " << lignes << "\nécritures sur 888 :";
    for (std::size_t i = 0; i < ecritures.size(); ++i)
        if (ecritures[i] > 0)
            std::cout << ' ' << i << " x " << ecritures[i];
    std::cout << '\n';
    for (const auto& [fin, n] : fins)
        std::cout << "  " << n.first << " x fin " << fin << " (graine " << n.second << ")\n";
    for (const auto& [faute, n] : fautes)
        std::cout << "  " << n << " x FAUTE " << faute << '\n';
    return fautes.empty() ? 0 : 1;
}
