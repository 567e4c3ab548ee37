// The monkey's rooms: who acts, who watches, and what the port's rules are.
#pragma once

#include <cstdint>
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

/// A scenario of about `actes` acts from the start of the program on; the same start value gives the same one
/// on every machine. It looks at the panels as they stand, and loads none by looking.
source generateur(std::uint64_t graine, int actes);

/// Every control that does something for a person at some time; a drawing surface once for the mouse and once
/// for the keys.
std::vector<std::string> a_toucher();

struct verdict {
    std::string faute;   ///< empty: none. The same fault gives the same text
    std::string fin;     ///< how the run ended: its status, or what a failure named
    std::string trace;   ///< what went to standard error
    std::string comptes; ///< lines of a name, a tab and a number
    std::vector<std::string> lignes;
};

/// Plays the lines to their end, in a process and a temporary folder of their own, and judges the run.
verdict joue_sous_surveillance(const source& lignes, const std::filesystem::path& donnees);

/// What a life may put on the port, who may do so, and how it may end. Its state is that of one process.
namespace regles {

/// The line that is about to be carried out, and virtual time in ns.
void ligne(const std::string& l, std::int64_t temps);
/// What moves a motor now: the control that was acted on, or a timer.
std::string mouvement();
/// Empty, or what is wrong with this write.
std::string ecriture(int adresse, std::uint8_t valeur);
/// Empty, or what is wrong with an end by this failure. `explication` names cause and detail.
std::string echec(const std::string& explication);
/// Whether a motion of more than a day may be under way: a burst, which nothing stops, with a typed delay.
bool rafale_d_un_jour();

} // namespace regles

} // namespace singe
