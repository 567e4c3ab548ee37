// The delay counts of the three speed files.
#pragma once

namespace vitesses {

/// Fills `vitessemanu`, `vitesseequa`, `vitessealtaz` from their files, in this order. A file that ends early
/// leaves the rest of its table as it was; a value beyond the table is fatal (`indice`), a missing file too.
void litvitesses();

} // namespace vitesses
