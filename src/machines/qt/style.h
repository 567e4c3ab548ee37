// One look on every machine: widget style, colours and font.
#pragma once

#include <QColor>
#include <QPalette>

namespace plateforme::qt {

/// Height of the font, logical pixels.
inline constexpr int hauteur_police = 12;

/// To be called before the application object is made.
void prepare();

/// To be called once it is.
void habille();

/// The colours of the day.
QPalette palette_de_jour();

/// What the child windows lie on, by day or by night.
QColor fond_de_la_zone();

} // namespace plateforme::qt
