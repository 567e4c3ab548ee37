// velmoria-scenario FILE: plays a scenario on the bench, in virtual time. `-` is standard input.

#include "platform/virtuelle/scenario.h"

#include <cstdio>
#include <fstream>
#include <iostream>

namespace fs = std::filesystem;

namespace {

// The delivered data: those of the source tree where the program was built, else those beside the executable.
fs::path donnees_livrees() {
    std::error_code erreur;
    const fs::path source{VELMORIA_DONNEES};
    if (fs::is_directory(source, erreur))
        return source;
    return fs::read_symlink("/proc/self/exe", erreur).parent_path() / "data";
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage : velmoria-scenario FICHIER (- pour l'entrée standard)\n";
        return 1;
    }
    const std::string nom = argv[1];
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
