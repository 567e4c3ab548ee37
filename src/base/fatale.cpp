#include "base/fatale.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace base {

namespace {

gestionnaire_fatal gestionnaire = nullptr;

// In the order of the causes.
constexpr std::array<std::string_view, 9> libelles{"division par zéro",
                                                   "dépassement de capacité",
                                                   "indice hors limites",
                                                   "fichier introuvable",
                                                   "fin de fichier dépassée",
                                                   "racine d'un nombre négatif",
                                                   "valeur de propriété non valide",
                                                   "image illisible",
                                                   "écriture impossible"};
static_assert(libelles.size() == static_cast<std::size_t>(cause::ecriture_impossible) + 1);

} // namespace

std::string lieu::nom() const {
    std::string s{nom_};
    if (!champ_.empty())
        s += "." + std::string{champ_};
    if (indice_ >= 0)
        s += "(" + std::to_string(indice_) + ")";
    return s;
}

std::string_view libelle(cause c) { return libelles[static_cast<std::size_t>(c)]; }

gestionnaire_fatal installe_gestionnaire(gestionnaire_fatal g) {
    const auto ancien = gestionnaire;
    gestionnaire = g;
    return ancien;
}

void fatale(cause c, const std::string& detail) {
    if (gestionnaire)
        gestionnaire(c, detail);
    const std::string nom{libelle(c)};
    std::fprintf(stderr, "velmoria : %s : %s\n", nom.c_str(), detail.c_str());
    std::_Exit(1);
}

} // namespace base
