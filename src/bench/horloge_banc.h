// The bench's clock: tonight's sky in the almanac's years until it is set, then what it was set to; it runs
// on.
#pragma once

#include "sky/horloge_equivalente.h"

#include <optional>
#include <string_view>

namespace banc {

class horloge_banc final : public plateforme::horloge {
  public:
    /// `temps_reel` gives the present instant in milliseconds, `decalage` the hours the program subtracts.
    horloge_banc(std::function<std::int64_t()> temps_reel, std::function<int()> decalage);

    plateforme::instant maintenant() override;
    /// Sets civil date and time.
    void regle(const plateforme::instant& civil);
    /// Back to tonight.
    void revient() { ecart_.reset(); }

  private:
    std::function<std::int64_t()> temps_reel_;
    plateforme::horloge_equivalente equivalente_;
    std::optional<std::int64_t> ecart_; // from real to shown time, milliseconds; none: tonight
};

/// A date and time written as 2001-08-15 22:00:00, with the seconds and their thousandths left out at will;
/// none if it is no such date.
std::optional<plateforme::instant> lit_date(std::string_view texte);

} // namespace banc
