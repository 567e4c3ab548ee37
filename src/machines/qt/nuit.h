// Night colours: red on black in every window, so that the eye stays used to the dark.
#pragma once

#include "seam/toile.h"

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QPalette>
#include <functional>

class QPainter;

namespace plateforme::qt {

/// Takes the colours that the account remembers, or the night's if `nuit`; from then on F9 changes them and
/// has them remembered, in whatever window it is pressed, and goes on to that window. Needs the application
/// object.
void ecoute_la_touche_de_nuit(bool nuit);

/// The brightest red of the night, of 255; green and blue stay 0.
inline constexpr int rouge_le_plus_vif = 200;

/// The colours of the day.
QPalette palette_de_jour();

/// What the child windows lie on, by day or by night.
QColor fond_de_la_zone();

/// Whether the night colours are on.
bool nuit();

/// Turns them on or off in every window at once: each is told by a change of its palette. Needs the
/// application object.
void met_la_nuit(bool oui);

/// A colour as it shows now: itself by day, its brightest part as a red by night.
QColor teinte(QColor c);

/// A colour of the chart: by night the kinds of star, figure and object stay apart by their brightness.
QColor teinte_de_carte(couleur c);

enum class nature { photographie, decor, icone };

/// A picture as it shows now: by night its light in red. A dark icon and a decor on a white ground become
/// their negatives.
QImage eclaire(const QImage& i, nature n);

/// An icon as `eclaire` makes it, in all its sizes.
QIcon icone_de_nuit(const QIcon& i);

/// By night: what `dessine` paints within `ou` comes out in red, whatever its colours; by day it paints at
/// once.
void a_travers_le_filtre(QPainter& p, const QRect& ou, const std::function<void(QPainter&)>& dessine);

} // namespace plateforme::qt
