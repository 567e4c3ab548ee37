// The failures that stop the program. There is no error code and no recovery: a routine that cannot go on
// names the cause and what it concerns, and the handler chosen at start ends the run.
#pragma once

#include <concepts>
#include <string>
#include <string_view>

namespace base {

enum class cause {
    division_par_zero,
    depassement,
    indice,
    fichier_introuvable,
    fin_de_fichier,
    racine_negative,
    propriete,
    image_illisible,
    ecriture_impossible,
};

/// Where a value was read or what it was to become, for a failure's message: a file, a variable, or a field
/// of a panel. It looks at its names and keeps none.
class lieu {
  public:
    template <std::convertible_to<std::string_view> Nom>
    constexpr lieu(const Nom& nom, std::string_view champ = {}, int indice = -1)
        : nom_(nom), champ_(champ), indice_(indice) {}

    /// "config_altaz.ini : ", "frmaltazpilot.tAZ(0) : ".
    std::string devant() const { return nom() + " : "; }
    std::string nom() const;

  private:
    std::string_view nom_; ///< of the file, the variable or the panel
    std::string_view champ_;
    int indice_; ///< the field's place in its array
};

/// The French name of a cause, as the observer reads it.
std::string_view libelle(cause c);

/// Receives a failure; must not return (end the process or throw).
using gestionnaire_fatal = void (*)(cause c, const std::string& detail);

/// Installs the handler; the one before is given back. Without one, the cause goes to standard error and the
/// process ends with status 1.
gestionnaire_fatal installe_gestionnaire(gestionnaire_fatal g);

/// Ends the run. `detail` names the file, field or table concerned, so that an observer can mend it.
[[noreturn]] void fatale(cause c, const std::string& detail);

} // namespace base
