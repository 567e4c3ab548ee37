// Civil dates and instants. An instant is so many milliseconds of universal time since 1970 January 1, 0 h.
#pragma once

#include "seam/plateforme.h"

#include <optional>
#include <string_view>

namespace plateforme {

/// The civil date and time of an instant so many hours east, and back.
instant date_civile(std::int64_t ms, int decalage = 0);
std::int64_t depuis_date(const instant& i);

/// A date and time written as 2001-08-15 22:00:00.000, years 0 to 9999, with the seconds and their
/// thousandths left out at will; none if it is no such date.
std::optional<instant> lit_date(std::string_view texte);

} // namespace plateforme
