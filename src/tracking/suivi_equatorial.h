// The sidereal drive of an equatorial mount, a group of its pilot panel: once a second of the computer's
// clock the right ascension axis gets the steps of that second. It shares `cmdsens` with the panel's jogs,
// and no rule keeps them apart: after a jog's stop the bursts move nothing until the next start.
#pragma once

namespace suivi_equatorial {

/// Wires the group's events; part of the panel's composition.
void branche();

} // namespace suivi_equatorial
