#include "store/champs_fichier.h"

#include "base/valeurs.h"
#include "seam/plateforme.h"

namespace reglages {

void lit(const std::string& fichier, std::span<shell::champ_texte* const> champs) {
    valeurs::lecteur f{plateforme::fichier_donnees(fichier)};
    std::vector<std::string> textes;
    for (std::size_t i = 0; i < champs.size(); ++i)
        textes.push_back(f.champ());
    for (std::size_t i = 0; i < champs.size(); ++i)
        champs[i]->ecrit(textes[i]);
}

void ecrit(const std::string& fichier, std::span<shell::champ_texte* const> champs) {
    valeurs::ecrivain f;
    for (auto* champ : champs)
        f.texte(champ->lit());
    f.enregistre(plateforme::fichier_donnees(fichier));
}

} // namespace reglages
