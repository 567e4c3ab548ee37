// The view of a scenario: it prints what a person would be shown and asked, and paints nothing.
#pragma once

#include "seam/toile.h"
#include "store/vue.h"

#include <functional>
#include <iosfwd>
#include <optional>
#include <vector>

namespace plateforme {

class vue_scenario final : public shell::vue {
  public:
    /// `choix` is asked for the name of the entry chosen in a popup, "-" for none.
    vue_scenario(std::ostream& sortie, std::function<std::string()> choix);

    void panneau_change(shell::panneau&) override {}
    void eleve(shell::panneau&) override {}
    void repeint(shell::panneau&) override {}
    void controle_change(shell::controle& c, shell::aspect a) override;
    shell::entree* ouvre_menu(shell::entree& racine, const shell::entree* defaut) override;
    void message(const std::string& texte, shell::titre t) override;
    image charge_image(const std::filesystem::path& chemin) override;

    /// The last drawing made on a surface, also when its panel has gone; empty before the first.
    const std::vector<primitive>& dessin() const { return dessin_; }

  private:
    std::ostream& sortie_;
    std::function<std::string()> choix_;
    int images_ = 0;
    std::vector<primitive> dessin_;
};

/// Thrown for an entry that the popup does not have.
struct entree_inconnue {
    std::string nom;
};

/// One line of a drawing: `cercle 4500 4500 25 240,240,240 250,250,250`. Twips; colours as red, green, blue;
/// `-` for the fill of a hollow circle.
std::string texte_de(const primitive& p);

/// A text on one line: line ends become `|`.
std::string sur_une_ligne(const std::string& texte);

} // namespace plateforme
