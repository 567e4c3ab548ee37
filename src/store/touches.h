// The codes of the keys that mean something.
#pragma once

namespace touches {

inline constexpr int echappement = 27;
inline constexpr int page_haut = 33;
inline constexpr int page_bas = 34;
inline constexpr int fin = 35;
inline constexpr int debut = 36;
inline constexpr int gauche = 37;
inline constexpr int haut = 38;
inline constexpr int droite = 39;
inline constexpr int bas = 40;
inline constexpr int supprime = 46;

} // namespace touches
