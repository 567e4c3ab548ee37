// A settings file whose values are the texts of a panel's fields, in order.
#pragma once

#include "store/controles.h"

#include <span>
#include <string>

namespace reglages {

/// Reads one value for each field. All are read before the first is written. Fatal: a missing or short file.
void lit(const std::string& fichier, std::span<shell::champ_texte* const> champs);

/// Writes the fields' texts as they stand, one a line.
void ecrit(const std::string& fichier, std::span<shell::champ_texte* const> champs);

} // namespace reglages
