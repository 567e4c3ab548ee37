// essais_singe GRAINE ACTES: lives one life after another, from the start value GRAINE on, until so many acts
// were carried out; prints the shortest scenario found for each fault. Status 1 if there was one.
// essais_singe GRAINE: prints the life of one start as it was played.
// essais_singe FICHIER: plays a scenario under the same watch.

#include "singe.h"

#include "machines/virtual/scenario.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>

namespace {

using singe::verdict;

const std::filesystem::path donnees{VELMORIA_DONNEES};

volatile std::sig_atomic_t assez = 0; // by SIGTERM: the life under way is the last
constexpr int actes_d_une_vie = 1000;

verdict vit(std::uint64_t graine) {
    return singe::joue_sous_surveillance(singe::generateur(graine, actes_d_une_vie), donnees);
}

verdict rejoue(const std::vector<std::string>& lignes) {
    std::size_t i = 0;
    return singe::joue_sous_surveillance(
        [&](const shell::entree*) { return i < lignes.size() ? lignes[i++] : std::string{}; }, donnees);
}

// Takes out ever smaller stretches of lines for as long as the same fault stays.
verdict reduit(verdict v) {
    int essais = 400;
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

// What lines act on. A popup's entry belongs to the panel of the line before it.
void note_touches(const std::vector<std::string>& lignes, std::set<std::string>& touches) {
    std::string fiche;
    for (const auto& l : lignes) {
        std::istringstream mots{l};
        std::string mot;
        std::string sujet;
        for (mots >> mot >> sujet; mot == "a"; mots >> sujet)
            mots >> mot;
        if (mot == "menu")
            sujet = fiche + "." + sujet;
        else
            fiche = sujet.substr(0, sujet.find('.'));
        touches.insert(mot == "souris" || mot == "touche" ? sujet + " " + mot : sujet);
    }
}

void montre_jamais(const std::set<std::string>& touches) {
    std::istringstream rien;
    std::ostringstream tu;
    plateforme::joue({rien, "singe", donnees, donnees, tu, tu}); // puts the panels together
    std::cout << "jamais touché :";
    for (const auto& c : singe::a_toucher())
        if (!touches.contains(c))
            std::cout << ' ' << c;
    std::cout << '\n';
}

// Lives from this start value on. Whether one found a fault.
bool vies(std::uint64_t graine, std::uint64_t voulus) {
    std::map<std::string, std::pair<std::uint64_t, std::uint64_t>>
        comptes; // how much, and the first start value
    std::set<std::string> touches;
    std::set<std::string> fautes;
    std::uint64_t actes = 0;
    for (; actes < voulus && !assez; ++graine) {
        const auto v = vit(graine);
        const auto compte = [&](const std::string& quoi, std::uint64_t n) {
            comptes.try_emplace(quoi, 0, graine).first->second.first += n;
        };
        for (const auto& l : v.lignes)
            actes += l.starts_with("a ") ? 0 : 1;
        note_touches(v.lignes, touches);
        std::istringstream table{v.comptes};
        std::string n;
        for (std::string m; std::getline(table, m, '\t') && std::getline(table, n);)
            compte(m, std::stoull(n));
        compte("fin " + v.fin, 1);
        if (v.faute.empty())
            continue;
        compte("FAUTE " + v.faute, 1);
        if (!fautes.insert(v.faute).second)
            continue; // the same fault is told once
        std::cout << "# graine " << graine << " : " << v.lignes.size() << " lignes : " << v.faute
                  << std::endl;
        montre(reduit(v));
    }
    for (const auto& [quoi, n] : comptes)
        std::cout << n.first << " x " << quoi << " (graine " << n.second << ")\n";
    montre_jamais(touches);
    std::cout << "actes " << actes << '\n';
    return !fautes.empty();
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::filesystem::exists(argv[1]))
        return joue_fichier(argv[1]);
    if (argc < 2 || argc > 3) {
        std::cerr << "usage : essais_singe GRAINE [ACTES], ou essais_singe FICHIER\n";
        return 2;
    }
    std::signal(SIGTERM, [](int) { assez = 1; });
    const auto graine = std::strtoull(argv[1], nullptr, 10);
    if (argc == 3)
        return vies(graine, std::strtoull(argv[2], nullptr, 10)) ? 1 : 0;
    montre(vit(graine));
    return 0;
}
