// How the command set writes times, angles and coordinates, and how it is read.
//
// Two precisions: the short one ends at the tenth of a minute of time and the minute of arc, the long one at
// the second of either.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace planetarium {

/// A right ascension in hours, any number of turns: "05:35.2" or "05:35:17".
std::string ecrit_ad(double heures, bool longue);
/// Degrees with a sign and two figures, -90 to 90: "+22*01" or "+22*00'52".
std::string ecrit_angle(double degres, bool longue);
/// An azimuth in degrees, any number of turns: "183*37" or "183*37'12".
std::string ecrit_azimut(double degres, bool longue);
/// A longitude in degrees east, which the command set counts towards west: "-006*27".
std::string ecrit_longitude(double est);
/// Seconds of a day: "21:04:59".
std::string ecrit_heure(double secondes);

/// Right ascension in hours, 0 to below 24, of either precision; none if it is no such text. Blanks around it
/// and a fraction of the last figure are taken.
std::optional<double> lit_ad(std::string_view texte);
/// Declination in degrees, -90 to 90. A sign may be missing; between degrees and minutes stands `*`, `:` or
/// the degree sign of either alphabet.
std::optional<double> lit_dec(std::string_view texte);

} // namespace planetarium
