// The position of the telescope on the panels.
#pragma once

namespace general {

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
