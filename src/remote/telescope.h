// What the program believes of its telescope, for a reader from outside: nothing here loads a panel, writes a
// field, reads the almanac or can fail; what is not known is none.
#pragma once

#include "seam/plateforme.h"
#include "sky/equinoxe.h"

#include <cstdint>
#include <optional>

namespace planetarium {

enum class monture { aucune, equatoriale, altazimutale };

/// The mount mode chosen, by the toolbar that stands on screen.
monture mode();
/// The hand paddle has the port.
bool raquette();
/// A slew runs, of either mount.
bool pointage_en_cours();

/// Where the telescope points, mean equator and equinox of a date (milliseconds of universal time). On an
/// equatorial mount the reticle, and in a slew the pulses sent. On the other the believed azimuth and
/// altitude at the time on the panels, once the almanac has been read.
std::optional<general::place> position(std::int64_t date);

struct horizontale {
    double az = 0; ///< degrees
    double alt = 0;
};
/// On an alt-azimuth mount, once the almanac has been read.
std::optional<horizontale> horizon();

struct site {
    double longitude = 0; ///< degrees east
    double latitude = 0;  ///< degrees north
};
/// From the configuration panel, or from its file where the panel is not loaded.
std::optional<site> lieu();

struct heure {
    std::int64_t tu = 0; ///< milliseconds of universal time since 1970
    int decalage = 0;    ///< hours from universal to civil time
};
/// The time of the clock panel in alt-azimuth mode, else that of the machine's clock.
std::optional<heure> maintenant();

/// Local sidereal time, seconds, 0 to 86400: from the almanac in alt-azimuth mode, once it has been read,
/// else by the clock.
std::optional<double> temps_sideral();

} // namespace planetarium
