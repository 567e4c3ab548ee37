// The view of a scenario: it prints what a person would be shown and asked, and paints nothing.
#pragma once

#include "platform/vue.h"

#include <functional>
#include <iosfwd>
#include <optional>

namespace plateforme {

class vue_scenario final : public vue {
  public:
    /// `choix` is asked for the name of the entry chosen in a popup, "-" for none.
    vue_scenario(std::ostream& sortie, std::function<std::string()> choix);

    void panneau_change(const shell::panneau&) override {}
    void eleve(const shell::panneau&) override {}
    void repeint(const shell::panneau&) override {}
    void controle_change(const shell::controle&, aspect) override {}
    shell::entree* ouvre_menu(shell::entree& racine, const shell::entree* defaut) override;
    void message(const std::string& texte) override;
    image charge_image(const std::filesystem::path& chemin) override;

  private:
    std::ostream& sortie_;
    std::function<std::string()> choix_;
    int images_ = 0;
};

/// Thrown for an entry that the popup does not have.
struct entree_inconnue {
    std::string nom;
};

/// A text on one line: line ends become `|`.
std::string sur_une_ligne(const std::string& texte);

} // namespace plateforme
