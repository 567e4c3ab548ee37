// Tonight's sky out of the almanac's two years: the clock of the equivalent instant.
//
// Instants are milliseconds of universal time since 1970 January 1, 0 h; UT1 is taken for UTC.
#pragma once

#include "seam/plateforme.h"

#include <cstdint>
#include <functional>

namespace plateforme {

/// The instant of universal time nearest in the calendar, July to December in 2000 and January to June in
/// 2001, at which the Earth has turned as far as at `reel` (rotation angle of IAU 2000). Not the same
/// sidereal time: that counts from the moving equinox, and would turn the J2000 sky of the catalogues by 46"
/// a year.
std::int64_t instant_equivalent(std::int64_t reel);

/// Hours from universal to civil time as `frmcoord` chooses them by the month: 2 from May to October, else 1.
int decalage_du_mois(int mois);

/// Starts at the equivalent of the present instant and goes on at the rate of real time: the computer's clock
/// is asked once, and no later step of it is seen. Its civil time is universal time plus what the program is
/// going to subtract.
class horloge_equivalente : public horloge {
  public:
    /// `decalage` gives the hours the program subtracts, 0 as long as it has not chosen: the month's count
    /// then.
    horloge_equivalente(const temps& t, std::function<int()> decalage);
    instant maintenant() override;

  private:
    std::function<std::int64_t()> ecoule_;
    std::function<int()> decalage_;
    std::int64_t depart_; // shown universal time where `ecoule_` counts from, milliseconds
};

} // namespace plateforme
