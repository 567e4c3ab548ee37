// The panels in Qt's widgets. A panel's window is made when it is first shown and kept for the whole run.
#pragma once

#include "machines/qt/fenetres.h"
#include "store/vue.h"

namespace plateforme::qt {

class vue_qt final : public shell::vue {
  public:
    void panneau_change(shell::panneau& p) override;
    void eleve(shell::panneau& p) override;
    void repeint(shell::panneau& p) override;
    void controle_change(shell::controle& c, shell::aspect a) override;
    shell::entree* ouvre_menu(shell::entree& racine, const shell::entree* defaut) override;
    void message(const std::string& texte, shell::titre t = shell::titre::programme) override;
    plateforme::image charge_image(const std::filesystem::path& chemin) override;

    /// The main frame, if it has been shown.
    QWidget* principale() const;

  private:
    fenetre* trouve(const shell::panneau& p) const;
    std::vector<std::unique_ptr<fenetre>> fenetres_;
    zone* zone_ = nullptr;
};

} // namespace plateforme::qt
