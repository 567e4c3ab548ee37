// Waits of a stated length, for the step pulses.
#pragma once

#include <algorithm>
#include <cstdint>

namespace plateforme {

/// Nanoseconds on the computer's monotonic clock, from an arbitrary origin.
std::int64_t horloge_monotone();

/// How long before a deadline a sleeper must ask to be woken, learnt from the wake-up lateness seen: up by
/// half of what was missing, down by 1/1024 at each wake-up in time, so that it settles where a wake-up in
/// several hundred comes too late. A lateness beyond the maximum is a lost time slice, which no margin makes
/// up: it counts little, or a busy machine would have us spin all the time. All in nanoseconds.
class marge_de_reveil {
  public:
    static constexpr std::int64_t minimum = 20'000;
    static constexpr std::int64_t maximum = 200'000;
    /// Between a wake-up and the first look at the clock that counts.
    static constexpr std::int64_t reserve = 2'000;

    std::int64_t valeur() const { return valeur_; }

    /// Takes note of a wake-up that came `retard` after the instant asked for.
    void apprend(std::int64_t retard) {
        const std::int64_t voulue = std::min(retard + reserve, maximum);
        if (voulue <= valeur_)
            valeur_ = std::max(minimum, valeur_ - valeur_ / 1024);
        else
            valeur_ += (voulue - valeur_) / (retard > maximum ? 64 : 2);
    }

  private:
    std::int64_t valeur_ = 100'000;
};

/// The waits of one thread: sleeps while there is time, then watches the clock for the last stretch.
class attente_precise {
  public:
    /// Asks the kernel for a timer slack of 1 ns on the calling thread, which must be the one that waits.
    attente_precise();

    /// Returns `ns` nanoseconds after it was called, or later, never sooner. 0 or less returns at once. A
    /// wait no longer than the margin does not sleep. Each wait is measured from its own beginning: a late
    /// one is not made up by a hurried one, since a motor without feedback loses steps when hurried.
    void attend(std::int64_t ns);

    /// The worst lateness of a wait since the start or since `oublie_retard`, in nanoseconds; 0 if none
    /// waited.
    std::int64_t pire_retard() const { return pire_retard_; }
    void oublie_retard() { pire_retard_ = 0; }

    /// The margin before a deadline as learnt so far, in nanoseconds.
    std::int64_t marge() const { return marge_.valeur(); }

  private:
    marge_de_reveil marge_;
    std::int64_t pire_retard_ = 0;
};

} // namespace plateforme
