// The almanac: sidereal time of Greenwich at 0 h universal time, one file a month, for 2000 and 2001.
#pragma once

#include "base/entier.h"

#include <array>
#include <string>

namespace general {

inline std::string chemindate;    ///< folder of the month last read, inside the data folder
inline base::entier16 indicejour; ///< next row to fill while reading
inline base::entier32 tsg0;       ///< sidereal time at 0 h of the day read last, seconds
/// The columns of the file read last, row k for day k; row 0 stays 0.
inline std::array<base::entier16, 33> jouralm;
inline std::array<base::entier16, 33> heurealm;
inline std::array<base::entier16, 33> minutealm;
inline std::array<base::entier16, 33> secondealm;

/// Reads the file of the month selected on `frmcoord` and writes the sidereal time at 0 h of its selected day
/// to `txtessai`: no day selected gives 0. A year other than 2000 and 2001 gives a message and goes on with
/// the folder read last. Fatal: a missing file, a row cut short, a row beyond the 32nd.
void lit_almanach();

} // namespace general
