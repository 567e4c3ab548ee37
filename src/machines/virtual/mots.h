// The words of a scenario's line.
#pragma once

#include <charconv>
#include <string>
#include <utility>

namespace plateforme {

/// Thrown for a line that is not understood, with the reason.
struct ligne_incomprise {
    std::string raison;
};

/// The first word, and what follows the one blank behind it.
inline std::pair<std::string, std::string> premier_mot(const std::string& s) {
    const auto blanc = s.find(' ');
    if (blanc == std::string::npos)
        return {s, {}};
    return {s.substr(0, blanc), s.substr(blanc + 1)};
}

/// A whole number, all of the text.
inline int entier(const std::string& s) {
    int n = 0;
    const auto* fin = s.data() + s.size();
    const auto lu = std::from_chars(s.data(), fin, n);
    if (s.empty() || lu.ec != std::errc{} || lu.ptr != fin)
        throw ligne_incomprise{"un nombre entier était attendu : \"" + s + "\""};
    return n;
}

} // namespace plateforme
