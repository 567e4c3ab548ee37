// The hand paddle: its keys pull lines of the control register and two lines of the data register. The code
// that the two registers make, less what the program itself drives, tells axis, direction and speed.
#pragma once

#include "drive/etat_moteur.h"

namespace cmd_moteur {

/// One scan: decodes the paddle into `codepaddle` and, for a key, runs the step loop of its axis until the
/// code changes. The direction comes from the inversion box of the axis as it stands now, whether saved or
/// not. Code 11, no key, clears `bitsens`, `bitpas` and `tempopaddle`; a code of no key changes nothing but
/// `sensplus`, which is cleared.
void scruteraquette();

/// Starts the scan. The first time in a run, on a port through which no key can be seen, one box says why.
void demarre_scrutation();

/// Step loops with the delay `tempopaddle`, as long as the registers make `codepaddle`. Each step is counted
/// in `compteaz`, `jeucourantaz` and `pasencodeaz` (or those of altitude). The step in which the key is let
/// go is finished and counted.
void paddleaz();
void paddlealt();

} // namespace cmd_moteur
