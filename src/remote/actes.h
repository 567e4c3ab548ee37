// What a planetarium may have the telescope do: the buttons of the program's own panels and the chart's two
// operations, one act at a time.
//
// A jog or a slew is only asked for where its command is read, often in a motion's yield. It starts when
// `commence` is called with no motion on the stack, so that nothing nests: a jog asked for during a jog
// presses the stop, and starts once the first has left the stack. The last one asked for counts.
#pragma once

#include "sky/equinoxe.h"

#include <string>

namespace planetarium {

enum class cote { nord, sud, est, ouest };

/// Whose jog it is: a connection's number, 0 for none.
using numero = int;

/// Asks for a jog: north and east are those of a slew towards larger declination and right ascension, or
/// larger altitude and azimuth. Gives why it is refused, in French, or nothing.
std::string demande_jog(numero qui, cote c);

/// Asks for a slew to a place of J2000. Gives why it is refused, or nothing.
std::string demande_pointage(general::place j2000);

/// Tells that the telescope points there, J2000. Gives why it is refused, or nothing.
std::string aligne(general::place j2000);

/// Sets both sliders of the pilot panel to a class, 0 to 4. Gives why it is refused, or nothing.
std::string regle_vitesse(int classe);

/// Presses the stop of the jog under way and forgets one asked for; `tout`: those of a slew too.
void arrete(bool tout);

/// A connection has gone: stops its jog, and nothing else.
void abandonne(numero qui);

/// Whether a slew runs or is about to.
bool pointe();

/// Starts what was asked for, if nothing moves; returns at its end.
void commence();

} // namespace planetarium
