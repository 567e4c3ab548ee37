// What is on, in one line, for the observer.
#pragma once

#include <string>

namespace etat {

/// Mount mode, who has the port, what moves and what is missing: "Altazimutal · ordinateur · suivi · sens non
/// pris". Loads no panel.
std::string ligne();

} // namespace etat
