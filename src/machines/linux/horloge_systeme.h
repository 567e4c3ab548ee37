// The computer's clocks: civil time, and the time since it was started.
#pragma once

#include "seam/plateforme.h"

#include <ctime>

namespace plateforme {

inline std::int64_t millisecondes(clockid_t horloge) {
    timespec t{};
    clock_gettime(horloge, &t);
    return std::int64_t{t.tv_sec} * 1000 + t.tv_nsec / 1'000'000;
}

inline temps temps_systeme() {
    return {[] { return millisecondes(CLOCK_REALTIME); }, [] { return millisecondes(CLOCK_BOOTTIME); }};
}

class horloge_systeme final : public horloge {
  public:
    instant maintenant() override {
        timespec t{};
        std::tm c{};
        clock_gettime(CLOCK_REALTIME, &t);
        localtime_r(&t.tv_sec, &c);
        return {c.tm_year + 1900,
                c.tm_mon + 1,
                c.tm_mday,
                c.tm_hour,
                c.tm_min,
                c.tm_sec,
                static_cast<int>(t.tv_nsec / 1'000'000)};
    }
};

} // namespace plateforme
