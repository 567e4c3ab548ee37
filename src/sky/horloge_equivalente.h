// Tonight's sky out of the almanac's two years: the clock of the equivalent instant.
//
// Instants are milliseconds of universal time since 1970 January 1, 0 h; UT1 is taken for UTC.
#pragma once

#include "seam/plateforme.h"

#include <cstdint>
#include <functional>

namespace plateforme {

/// The instant of universal time nearest in the calendar, July to December in 2000 and January to June in
/// 2001, at which Greenwich mean sidereal time is that of `reel`. Mean sidereal time of IAU 1982.
std::int64_t instant_equivalent(std::int64_t reel);

/// The civil date and time of an instant of universal time so many hours east, and back.
instant date_civile(std::int64_t ms, int decalage = 0);
std::int64_t depuis_date(const instant& i);

/// Hours from universal to civil time as `frmcoord` chooses them by the month: 2 from May to October, else 1.
int decalage_du_mois(int mois);

/// Starts at the equivalent of the present instant and goes on at the rate of real time. Its civil time is
/// universal time plus what the program is going to subtract.
class horloge_equivalente : public horloge {
  public:
    /// `temps_reel` gives the present instant; `decalage` the hours the program subtracts, 0 as long as it
    /// has not chosen: the month's count then.
    horloge_equivalente(std::function<std::int64_t()> temps_reel, std::function<int()> decalage);
    instant maintenant() override;

  private:
    std::function<std::int64_t()> temps_reel_;
    std::function<int()> decalage_;
    std::int64_t ecart_; // from real to shown universal time, milliseconds
};

} // namespace plateforme
