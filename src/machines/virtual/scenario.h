// Plays a scenario: the whole program without a window, driven by lines of text, on the bench and in virtual
// time.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>

namespace plateforme {

struct partie {
    std::istream& lignes;
    std::string nom;               ///< of the file, for explanations
    std::filesystem::path dossier; ///< `donnees` is relative to it
    std::filesystem::path donnees; ///< the delivered data folder
    std::ostream& sortie;
    std::ostream& explications;
};

/// Plays it to its end. Gives the exit status: 0; 1 for a failed `attend`, a line that is not understood or a
/// motion without end; 3 after a fatal failure.
int joue(const partie& p);

} // namespace plateforme
