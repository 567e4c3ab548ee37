// Universal time and date on `frmcoord`, from the computer's civil clock.
#pragma once

#include "base/entier.h"
#include "seam/plateforme.h"

namespace general {

inline base::entier16
    decalageheure; ///< hours from universal to civil time: 1 winter, 2 summer, 0 not chosen yet

/// Writes universal hour, minute and second to `frmcoord`. In the computer's hour 0 the list of days goes to
/// the day before and the almanac is read; hour 1 leaves the date alone.
void synchro_heure();

/// Writes an hour of the computer's clock to `txth` as a universal one.
void ecritheure(int heure);

/// Sets the date lists of `frmcoord` to a date. A year outside 2000 to 2009 is fatal (`propriete`).
void ecritdate(const plateforme::instant& date);

/// At universal midnight (`txth`, `txtmin`, `txts` all 0): the lists go to the computer's date and the
/// almanac is read.
void passe_minuit();

} // namespace general
