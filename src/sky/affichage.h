// Positions on the panels.
#pragma once

#include "store/controles.h"

namespace general {

/// Writes arcseconds to three fields as whole degrees and minutes, both rounded down, and the seconds left,
/// rounded with ties to the even number: 3599.6 shows 0, 59, 60, and -1 shows -1, 59, 59.
void ecritdms(double arcsec, shell::champ_texte& deg, shell::champ_texte& min, shell::champ_texte& sec);

/// Writes `adheures` and `decdeg` to the object fields of the tracking panel and of `frmconfig`. Hours are
/// rounded down; only 24 is taken for 0. A declination of 0 shows "-".
void affiche_equa();

/// Fold the steps counted into `posaz`, `posalt`, clear the counter and show the position on `frmcoord`. Each
/// is called by the clock tick alone.
void majaz();
void majalt();

/// Shows `posaz` and `posalt` in degrees, minutes and seconds on `frmcoord`.
void affichepos();

} // namespace general
