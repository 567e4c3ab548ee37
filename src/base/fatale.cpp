#include "base/fatale.h"

#include <cstdio>
#include <cstdlib>

namespace base {

namespace {

gestionnaire_fatal gestionnaire = nullptr;

} // namespace

std::string lieu::devant() const {
    if (nom.empty())
        return {};
    std::string s{nom};
    if (!champ.empty())
        s += "." + std::string{champ};
    if (indice >= 0)
        s += "(" + std::to_string(indice) + ")";
    return s + " : ";
}

std::string_view libelle(cause c) {
    switch (c) {
    case cause::division_par_zero:
        return "division par zéro";
    case cause::depassement:
        return "dépassement de capacité";
    case cause::indice:
        return "indice hors limites";
    case cause::fichier_introuvable:
        return "fichier introuvable";
    case cause::fin_de_fichier:
        return "fin de fichier dépassée";
    case cause::racine_negative:
        return "racine d'un nombre négatif";
    case cause::propriete:
        return "valeur de propriété non valide";
    case cause::image_illisible:
        return "image illisible";
    }
    return "";
}

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
