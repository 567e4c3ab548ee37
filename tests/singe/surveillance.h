// One scenario played under watch, in a process of its own.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace shell {
class entree;
}

namespace singe {

/// Gives the next line, with the popup that waits for its answer, if any; an empty line ends the scenario.
using source = std::function<std::string(const shell::entree*)>;

struct verdict {
    std::string faute;   ///< empty: none. The same fault gives the same text
    std::string fin;     ///< how the run ended: its status, or what a failure named
    std::string trace;   ///< what went to standard error
    std::string comptes; ///< lines of a name, a tab and a number
    std::vector<std::string> lignes;
};

/// Plays the lines to their end and judges the run. The child process has a temporary folder of its own.
///
/// Faults: the process dies or a sanitizer speaks; a write outside the two registers or with a value that no
/// motion and no mode command may put there; a write while an act runs that is neither; a line the program
/// does not understand; a motion that its stops do not end; a failure without a cause; standing still
/// without an end.
verdict joue_sous_surveillance(const source& lignes, const std::filesystem::path& donnees);

} // namespace singe
