// The single-byte text of files (Windows-1252), at the edge of a program whose own text is UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace base {

/// Windows-1252 to UTF-8. A byte without a character becomes the control character of the same number, so
/// that it survives a load and a save.
std::string de_1252(std::string_view octets);

/// UTF-8 to Windows-1252; a character without a byte, or a malformed one, becomes `?`.
std::string vers_1252(std::string_view utf8);

} // namespace base
