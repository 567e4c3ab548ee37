// Files of single-byte text (Windows-1252), at the edge of a program whose own text is UTF-8.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace base {

/// Windows-1252 to UTF-8. A byte without a character becomes the control character of the same number, so
/// that it survives a load and a save.
std::string de_1252(std::string_view octets);

/// UTF-8 to Windows-1252; a character without a byte, or a malformed one, becomes `?`.
std::string vers_1252(std::string_view utf8);

/// The whole file, byte for byte. Missing or unreadable is fatal (`fichier_introuvable`), with the file's
/// name.
std::string lit_fichier(const std::filesystem::path& chemin);

/// Opens for output (which empties the file), writes all and closes. Failing in any of these is fatal
/// (`fichier_introuvable`), with the file's name; a file that cannot be opened keeps its content.
void ecrit_fichier(const std::filesystem::path& chemin, std::string_view octets);

} // namespace base
