// A rate for display: pulses per second from a counter that is looked at now and then.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace banc {

/// Remembers when the counter was seen to grow, so that one pulse a second reads 1 and does not flicker
/// between 0 and 4 as a short window would have it.
class cadence {
  public:
    /// Pulses per second. `total` is the count since the start, `maintenant_ns` a monotonic time; called at
    /// each refresh, some 5 to 50 times a second. A rate is known at the second growth seen, 5 s after
    /// the first at most; it falls to 0 after twice the last interval between growths, and 250 ms at least,
    /// without another one.
    double mesure(std::uint64_t total, std::int64_t maintenant_ns);

  private:
    struct releve {
        std::int64_t instant;
        std::uint64_t total;
    };
    static constexpr std::size_t capacite = 128;

    const releve& age(std::size_t rang) const { return releves_[(suivant_ - 1 - rang) % capacite]; }
    void retient(std::int64_t instant, std::uint64_t total);
    double estime() const;
    std::int64_t silence_admis() const;

    std::array<releve, capacite> releves_{};
    std::size_t suivant_ = 0; // readings kept since the start; the newest stands one place before
    std::size_t nombre_ = 0;  // readings that belong to the motion under way
    std::uint64_t vu_ = 0;
    bool commence_ = false;
};

} // namespace banc
