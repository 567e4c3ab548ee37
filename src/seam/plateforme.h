// What the program asks of the machine. A main file chooses one port, one clock and one event loop, and
// installs them, with a view (store/vue.h), before anything else runs.
#pragma once

#include "base/entier.h"
#include "seam/port.h"
#include "seam/rappel.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>

namespace plateforme {

/// Nanoseconds of one delay count: of the general loop (jogs, paddle, slews), and of the plain integer loop
/// (bursts).
inline constexpr std::int64_t ns_par_compte = 30;
inline constexpr std::int64_t ns_par_compte_entier = 3;

/// Civil date and time. Month and day from 1.
struct instant {
    int annee = 2000;
    int mois = 1;
    int jour = 1;
    int heure = 0;
    int minute = 0;
    int seconde = 0;
    int milliseconde = 0;
};

/// Where a clock that no one may set takes its time from, in milliseconds.
struct temps {
    std::function<std::int64_t()> universel; ///< universal time since 1970 January 1, 0 h, which may be set
    std::function<std::int64_t()> ecoule;    ///< since some fixed instant, sleep included: nothing sets it
};

class horloge {
  public:
    virtual ~horloge() = default;
    virtual instant maintenant() = 0;
};

/// Waiting, yielding, timers and the end of the process.
class boucle {
  public:
    virtual ~boucle() = default;
    /// Returns no earlier than this many nanoseconds after the call; at once if 0 or negative. Runs no event.
    virtual void attend(std::int64_t ns) = 0;
    /// Runs every pending event and returns.
    virtual void cede() = 0;
    /// Calls `r.tic()` from the event loop once, `ms` milliseconds from now; replaces an earlier call for it.
    virtual void arme(rappel& r, int ms) = 0;
    virtual void desarme(rappel& r) = 0;
    /// Ends the process from inside any nesting; nothing is unwound that could write a port or a file.
    [[noreturn]] virtual void termine(int statut) = 0;
};

struct machine {
    plateforme::port* port = nullptr;
    plateforme::horloge* horloge = nullptr;
    plateforme::boucle* boucle = nullptr;
    std::filesystem::path donnees;       ///< the data folder
    std::filesystem::path aide = "aide"; ///< the help pages' folder, relative where no one will open them
};

/// The machine in use. Installed once at start (again by each test).
inline machine courante;

/// Writes the low byte of `valeur` to a register.
inline void Out32(int registre, base::entier16 valeur) {
    courante.port->ecrit(registre, static_cast<std::uint8_t>(valeur.valeur() & 0xFF));
}

/// The byte a register shows, 0 to 255.
inline base::entier16 Inp32(int registre) { return courante.port->lit(registre); }

inline void cede() { courante.boucle->cede(); }
inline instant maintenant() { return courante.horloge->maintenant(); }
[[noreturn]] inline void termine(int statut) {
    courante.boucle->termine(statut);
    std::abort();
}

/// The path of a delivered file, by its name inside the data folder: "inversion.ini", "img/liste.txt".
inline std::filesystem::path fichier_donnees(const std::string& nom) { return courante.donnees / nom; }

} // namespace plateforme
