// The pulses of a slew on one axis.
#pragma once

#include "base/entier.h"
#include "store/controles.h"

namespace pointing {

/// Sends `nombre` + 1 pulses, none for a number below 0, until a stop: `sens` on the data register, then
/// `sens` + `pas`, each followed by the delay `tempopas` and a yield. Both are read at each write, so that
/// what a handler in a yield changes acts at once. The bar takes whole percents; a count of 0 never writes
/// it. `envoyees` counts the pulses from 0 as they leave.
void envoie(double nombre, const base::entier16& sens, const base::entier16& pas,
            shell::champ_progression& barre, double& envoyees);

} // namespace pointing
