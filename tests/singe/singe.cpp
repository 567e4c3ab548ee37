// essais_singe GRAINE ACTES: lives one life after another, from the start value GRAINE on, until so many acts
// were carried out; prints the shortest scenario found for each fault. Status 1 if there was one.
// essais_singe GRAINE: prints the life of one start as it was played.
// essais_singe FICHIER: plays a scenario under the same watch.

#include "generateur.h"
#include "platform/virtuelle/scenario.h"
#include "surveillance.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>
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

// The controls that no line of any life acted on. A popup's entry belongs to the panel of the line before it.
class touches {
  public:
    void note(const std::vector<std::string>& lignes) {
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
            ++vus_[mot == "souris" || mot == "touche" ? sujet + " " + mot : sujet];
        }
    }
    void montre() const {
        std::istringstream rien;
        std::ostringstream tu;
        plateforme::joue({rien, "singe", donnees, donnees, tu, tu}); // puts the panels together
        std::cout << "jamais touché :";
        for (const auto& c : singe::a_toucher())
            if (!vus_.contains(c))
                std::cout << ' ' << c;
        std::cout << '\n';
    }

  private:
    std::map<std::string, int> vus_;
};

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::filesystem::exists(argv[1]))
        return joue_fichier(argv[1]);
    if (argc < 2 || argc > 3) {
        std::cerr << "usage : essais_singe GRAINE [ACTES], ou essais_singe FICHIER\n";
        return 2;
    }
    auto graine = std::strtoull(argv[1], nullptr, 10);
    if (argc == 2) {
        montre(vit(graine));
        return 0;
    }
    const auto voulus = std::strtoull(argv[2], nullptr, 10);
    std::map<std::string, std::pair<int, std::uint64_t>> fins; // how often, and the first start value
    std::map<std::string, int> fautes;
    std::map<std::string, int> cessions;
    touches touches;
    int vies = 0;
    std::uint64_t actes = 0;
    std::array<std::uint64_t, 256> ecritures{};
    std::signal(SIGTERM, [](int) { assez = 1; });
    for (; actes < voulus && !assez; ++graine, ++vies) {
        const auto v = vit(graine);
        actes += v.actes;
        touches.note(v.lignes);
        for (std::size_t i = 0; i < ecritures.size(); ++i)
            ecritures[i] += v.ecritures[i];
        std::istringstream table{v.cessions};
        std::string n;
        for (std::string m; std::getline(table, m, '\t') && std::getline(table, n);)
            cessions[m] += std::stoi(n);
        auto& fin = fins[v.fin];
        if (fin.first++ == 0)
            fin.second = graine;
        if (v.faute.empty() || ++fautes[v.faute] > 1)
            continue; // the same fault is told once
        std::cout << "# graine " << graine << " : " << v.lignes.size() << " lignes : " << v.faute
                  << std::endl;
        montre(reduit(v));
    }
    std::cout << "vies " << vies << ", actes " << actes << "\nordres joués dans les cessions :";
    for (const auto& [mouvement, n] : cessions)
        std::cout << ' ' << mouvement << " x " << n;
    std::cout << "\nécritures sur 888 :";
    for (std::size_t i = 0; i < ecritures.size(); ++i)
        if (ecritures[i] > 0)
            std::cout << ' ' << i << " x " << ecritures[i];
    std::cout << '\n';
    touches.montre();
    for (const auto& [fin, n] : fins)
        std::cout << "  " << n.first << " x fin " << fin << " (graine " << n.second << ")\n";
    for (const auto& [faute, n] : fautes)
        std::cout << "  " << n << " x FAUTE " << faute << '\n';
    return fautes.empty() ? 0 : 1;
}
