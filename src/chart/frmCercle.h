// The observer's acts on the sky chart: one popup at the right mouse button, and the keys.
#pragma once

#include "base/fatale.h"

namespace frmCercle {

/// The operations of the popup on a place of the sky, catalogue units: the equatorial slew, the place rounded
/// with ties to the even number and believed reached when it returns, and the alignment, which moves nothing.
/// Both show the place on the pointing panel that `panneaualtaz` names. `ou` tells where the place was read.
void pointe(double ad, double dec, const base::lieu& ou);
void aligne(double ad, double dec);

/// Wires the panel's events; part of the program's composition.
void branche();

} // namespace frmCercle
