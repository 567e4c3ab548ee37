// What the monkey does next: legal acts of a person, drawn from the live program.
#pragma once

#include "hasard.h"

#include <deque>
#include <string>

namespace shell {
class controle;
class entree;
} // namespace shell

namespace singe {

/// Gives a scenario line by line, from the start of the program on. It looks at the panels as they stand, by
/// the program's own list of them, and loads none by looking.
class generateur {
  public:
    generateur(std::uint64_t graine, int actes) : hasard_(graine), reste_(actes) {}

    /// The next line; empty at the end. `popup` is the menu that is open and waits for its answer, or null.
    std::string suivante(const shell::entree* popup);

  private:
    void prelude();
    void acte_et_ordres();
    void arrets();
    std::string acte();
    std::string acte_sur(const shell::controle& c);
    std::string acte_sur_panneau();
    std::string decor();
    std::string fichier_gate();
    std::string texte(bool plusieurs_lignes);
    std::string duree(double bas_ms, double haut_ms);
    std::string touche_raquette();
    std::string choix(const shell::entree& racine);

    hasard hasard_;
    int reste_;
    bool commence_ = false;
    std::deque<std::string> file_; // lines decided and not yet given
};

} // namespace singe
