// The computer's civil clock, local time.
#pragma once

#include "seam/plateforme.h"

#include <ctime>

namespace plateforme {

/// The present instant, milliseconds of universal time since 1970 January 1, 0 h.
inline std::int64_t temps_universel() {
    timespec t{};
    clock_gettime(CLOCK_REALTIME, &t);
    return std::int64_t{t.tv_sec} * 1000 + t.tv_nsec / 1'000'000;
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
