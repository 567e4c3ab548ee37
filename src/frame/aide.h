// Where the help pages are.
#pragma once

#include <string>

namespace aide {

/// The address of the first help page, to be typed into a browser: `file://` and its full path, or its path
/// beside the program where the program's own folder is not told. Blanks and accents stand as they are; `%`,
/// `#` and `?`, which an address gives a meaning of their own, are written as %25, %23 and %3F.
std::string adresse();

} // namespace aide
