// What the monkey does next: legal acts of a person, drawn from the live program.
#pragma once

#include "surveillance.h"

#include <cstdint>

namespace singe {

/// Gives a scenario of about `actes` acts line by line, from the start of the program on; the same start
/// value gives the same one on every machine. It looks at the panels as they stand, by the program's own list
/// of them, and loads none by looking.
source generateur(std::uint64_t graine, int actes);

/// Every control that does something for a person at some time; a drawing surface once for the mouse and once
/// for the keys.
std::vector<std::string> a_toucher();

} // namespace singe
