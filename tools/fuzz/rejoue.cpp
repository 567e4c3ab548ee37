// rejoue CIBLE DOSSIER: feeds every file of a folder to a target. Status 1 if there is none.
#include "base/octets.h"
#include "cibles.h"

#include <filesystem>
#include <iostream>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage : rejoue CIBLE DOSSIER\n";
        return 2;
    }
    const auto& cible = fuzz::cible_nommee(argv[1]);
    int joues = 0;
    for (const auto& f : std::filesystem::directory_iterator{argv[2]}) {
        std::cout << f.path().filename().string() << std::endl; // the last one named is the one that broke it
        cible.essaie(base::lit_fichier(f.path()));
        ++joues;
    }
    return joues > 0 ? 0 : 1;
}
