// The failures that stop the program. There is no error code and no recovery: a routine that cannot go on
// names the cause and what it concerns, and the handler chosen at start ends the run.
#pragma once

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
