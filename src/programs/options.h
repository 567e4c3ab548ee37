// The command line of the programs: a table of options, and what the line says read against it.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace options {

struct option {
    std::string nom;    ///< with its dashes: "--port"
    std::string valeur; ///< what stands for its value in the help ("ADRESSE"); empty if it takes none
    std::string aide;   ///< what it does, in French, without a point at the end
    /// Takes the value (empty if it takes none); gives what is wrong with it, in French, or nothing.
    std::function<std::string(std::string_view)> prend;
};

struct programme {
    std::string nom;  ///< as it is called: "velmoria"
    std::string role; ///< what it is for, one French sentence
    std::vector<option> options = {};
    /// The file that must follow, as the help names it; empty if none may.
    std::string fichier = {};
    std::string sens_du_fichier = {};
};

struct lecture {
    std::optional<int> statut; ///< with which the process must end (0 or 2); none if it goes on
    std::string fichier;
};

/// Reads the command line, which opens no window and no file. `--help` and `--version` are answered on
/// standard output; what is not understood gives one sentence on standard error. A value follows its option
/// or stands behind `=`.
[[nodiscard]] lecture lit(const programme& p, int argc, const char* const* argv);

} // namespace options
