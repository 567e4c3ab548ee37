// What a scenario calls by name: panels, controls and variables, and the text of their values.
#pragma once

#include "store/registre.h"

#include <optional>
#include <string>
#include <string_view>

namespace plateforme {

/// A control by its full name, "frmconfig.txtlatdeg"; null if there is none. Loads nothing.
shell::controle* controle_nomme(const shell::registre& r, std::string_view nom);

/// The text of a panel's property, a control or one of its properties, or a variable; none if the name is not
/// understood. Naming a control loads its panel, naming a panel's property does not.
std::optional<std::string> valeur_de(const shell::registre& r, std::string_view nom);

} // namespace plateforme
