// The captions of the labels that open and close a part of a panel: two characters of their symbol font,
// which shows them as arrows.
#pragma once

namespace fleches {

inline constexpr const char* ouvre = "8";   ///< closed: a click opens
inline constexpr const char* referme = "7"; ///< open: a click closes

} // namespace fleches
