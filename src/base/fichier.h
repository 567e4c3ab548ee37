// Files read and written whole.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace base {

/// The whole file, byte for byte. Missing, unreadable or no plain file (a folder, a pipe) is fatal
/// (`fichier_introuvable`), with its name.
std::string lit_fichier(const std::filesystem::path& chemin);

/// Makes the file hold these bytes, or leaves it as it was: they are written beside it, synced, and the new
/// file is renamed over the old one, in the folder where a link leads, with the old one's mode, group and,
/// where this account may give it, owner. Only where that folder takes no new file is the old one written in
/// place. A failure is fatal (`ecriture_impossible`), with the file's name and the system's reason.
void ecrit_fichier(const std::filesystem::path& chemin, std::string_view octets);

/// What an `errno` means, in French whatever the computer's language.
std::string raison(int erreur);

/// Asked before each system call of a save, by its name: 0 lets it happen, else it fails with that `errno`.
/// Null but in the tests of saves.
inline int (*avant_appel)(std::string_view appel) = nullptr;

} // namespace base
