// One look on every machine: widget style, colours and font.
#pragma once

namespace plateforme::qt {

/// Height of the font, logical pixels.
inline constexpr int hauteur_police = 12;

/// To be called before the application object is made.
void prepare();

/// To be called once it is.
void habille();

} // namespace plateforme::qt
