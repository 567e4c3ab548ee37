// The bench's clock: tonight's sky in the almanac's years until it is set, then what it was set to; it runs
// on.
#pragma once

#include "sky/horloge_equivalente.h"

#include <optional>

namespace banc {

class horloge_banc final : public plateforme::horloge {
  public:
    /// `decalage` gives the hours the program subtracts.
    horloge_banc(const plateforme::temps& t, std::function<int()> decalage);

    plateforme::instant maintenant() override;
    /// Sets civil date and time.
    void regle(const plateforme::instant& civil);
    /// Back to tonight.
    void revient() { depart_.reset(); }

  private:
    std::function<std::int64_t()> ecoule_;
    plateforme::horloge_equivalente equivalente_;
    std::optional<std::int64_t>
        depart_; // shown time where `ecoule_` counts from, milliseconds; none: tonight
};

} // namespace banc
