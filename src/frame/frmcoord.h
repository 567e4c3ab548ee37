// The clock and position panel: universal time, date and season, and the telescope's position, refreshed by
// the clock tick of the main frame.
#pragma once

namespace frmcoord {

/// Wires the panel's events and the clock tick; part of the program's composition.
void branche();

/// Fills the lists of days, months and years.
void remplirdates();

} // namespace frmcoord
