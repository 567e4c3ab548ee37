// What the observer's own account remembers from run to run; the data folder knows nothing of it.
#pragma once

#include <QRect>
#include <QString>
#include <optional>

namespace plateforme::qt {

/// Whether the night colours were on when they were last changed by their key; false if they never were.
bool nuit_retenue();
void retient_nuit(bool oui);

/// Where the observer last put a window, by its name; none if he never moved it. Of a window inside another
/// only the place counts, in that one's pixels.
std::optional<QRect> place_retenue(const QString& nom);
void retient_place(const QString& nom, const QRect& place);
void oublie_les_places();

} // namespace plateforme::qt
