// What a scenario has an observer do: clicks, texts typed, choices, the mouse and the keys of a drawing.
#pragma once

#include <string>
#include <string_view>

namespace plateforme {

/// Carries out one act, `mot` with what follows it; false if it is none. Throws `ligne_incomprise`.
bool agit(std::string_view mot, const std::string& reste);

} // namespace plateforme
