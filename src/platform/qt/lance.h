// What the programs with windows have in common: a main file only picks a port, a clock and its waits.
#pragma once

#include "platform/plateforme.h"

#include <cstdint>
#include <functional>
#include <string>

namespace plateforme::qt {

struct composition {
    plateforme::port& port;
    plateforme::horloge& horloge;
    /// Returns no earlier than that many nanoseconds after its call.
    std::function<void(std::int64_t)> attente;
    /// Runs at the end of each yield; empty for nothing.
    std::function<void()> apres_cession = {};
    const char* icone = "velmoria"; ///< the program's icon among the pictures built in
    std::string avis = {};               ///< shown in a box before the main frame loads; empty for none
    /// Runs once the main frame is on screen: the bench opens its own window there.
    std::function<void()> ensuite = {};
};

/// Builds the program on Qt and runs it; the process ends inside.
int lance(int argc, char** argv, const composition& c);

/// Says in a box why the program does not start; gives the exit status 1.
int refuse(int argc, char** argv, const std::string& raison);

} // namespace plateforme::qt
