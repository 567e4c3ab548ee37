// What the programs on the real port have in common.
#pragma once

#include "programs/options.h"
#include "seam/plateforme.h"

/// Reads the command line, takes the port, locks it, gives up every privilege, then runs the program with
/// this clock. Refuses to start, with status 1, if another program holds the port; goes on without a port,
/// and says why, if there is none.
int lance_sur_le_port(options::programme programme, int argc, char** argv, plateforme::horloge& horloge);
