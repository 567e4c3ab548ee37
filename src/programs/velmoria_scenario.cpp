// velmoria-scenario FILE: plays a scenario on the bench, in virtual time. `-` is standard input.

#include "machines/virtual/scenario.h"
#include "programs/options.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>

namespace fs = std::filesystem;

namespace {

// The delivered data: those beside the executable, unless a file beside it, made where it is built, names
// others.
fs::path donnees_livrees() {
    std::error_code erreur;
    const auto ici = fs::read_symlink("/proc/self/exe", erreur).parent_path();
    std::string ailleurs;
    if (std::ifstream f{ici / "velmoria-scenario.donnees"}; std::getline(f, ailleurs))
        return ailleurs;
    return ici / "data";
}

} // namespace

int main(int argc, char** argv) {
    const auto [statut_lu, nom] =
        options::lit({.nom = "velmoria-scenario",
                      .role = "Joue un scénario sur le banc, en temps virtuel.",
                      .fichier = "FICHIER",
                      .sens_du_fichier = "le scénario, ou - pour l'entrée standard"},
                     argc, argv);
    if (statut_lu)
        return *statut_lu;
    std::ios::sync_with_stdio(false);
    std::ifstream fichier;
    if (nom != "-") {
        fichier.open(nom);
        if (!fichier) {
            std::cerr << nom << " : fichier introuvable\n";
            return 1;
        }
    }
    const int statut =
        plateforme::joue({.lignes = nom == "-" ? std::cin : fichier,
                          .nom = nom,
                          .dossier = nom == "-" ? fs::current_path() : fs::absolute(nom).parent_path(),
                          .donnees = donnees_livrees(),
                          .sortie = std::cout,
                          .explications = std::cerr});
    std::cout.flush();
    return statut;
}
