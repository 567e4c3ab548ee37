#include "machines/linux/attente_precise.h"

#include <cerrno>
#include <ctime>
#include <sys/prctl.h>

namespace plateforme {

namespace {

constexpr std::int64_t seconde = 1'000'000'000;

/// Sleeps until an instant of the monotonic clock; a signal does not cut it short.
void dort_jusque(std::int64_t instant) {
    timespec t{};
    t.tv_sec = static_cast<std::time_t>(instant / seconde);
    t.tv_nsec = static_cast<long>(instant % seconde);
    while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &t, nullptr) == EINTR) {
    }
}

} // namespace

std::int64_t horloge_monotone() {
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC, &t);
    return std::int64_t{t.tv_sec} * seconde + t.tv_nsec;
}

attente_precise::attente_precise() {
    // The kernel may otherwise delay a wake-up by 50 microseconds to share it with another.
    prctl(PR_SET_TIMERSLACK, 1UL, 0UL, 0UL, 0UL);
}

void attente_precise::attend(std::int64_t ns) {
    if (ns <= 0)
        return;
    std::int64_t maintenant = horloge_monotone();
    const std::int64_t fin = maintenant + ns;
    if (ns > marge_.valeur()) {
        const std::int64_t reveil = fin - marge_.valeur();
        dort_jusque(reveil);
        maintenant = horloge_monotone();
        marge_.apprend(maintenant - reveil);
    } else if (ns > marge_de_reveil::minimum) {
        // Watched from end to end, which teaches nothing; but a margin left wide by a busy moment must come
        // down, or waits shorter than it would never sleep again.
        marge_.apprend(0);
    }
    while (maintenant < fin)
        maintenant = horloge_monotone();
    pire_retard_ = std::max(pire_retard_, maintenant - fin);
}

} // namespace plateforme
