#include "sky/equinoxe.h"

#include <cmath>
#include <numbers>

namespace general {

namespace {

constexpr double ms_par_jour = 86'400'000;
constexpr std::int64_t j2000 = 946'728'000'000; // 2000 January 1, 12 h
constexpr double radian = std::numbers::pi / 180;
constexpr double seconde = radian / 3600;

double jours(std::int64_t date) { return static_cast<double>(date - j2000) / ms_par_jour; }
double siecles(std::int64_t date) { return jours(date) / 36525; }

// The three angles of the rotation, radians.
struct precession {
    double zeta, z, theta;
    explicit precession(double t)
        : zeta((2.650545 +
                (2306.083227 + (0.2988499 + (0.01801828 - (5.971e-6 + 3.173e-7 * t) * t) * t) * t) * t) *
               seconde),
          z((-2.650545 +
             (2306.077181 + (1.0927348 + (0.01826837 - (2.8596e-5 + 2.904e-7 * t) * t) * t) * t) * t) *
            seconde),
          theta((2004.191903 - (0.4294934 + (0.04182264 + (7.089e-6 + 1.274e-7 * t) * t) * t) * t) * t *
                seconde) {}
};

double reduit(double x, double tour) {
    const double r = std::fmod(x, tour);
    return r < 0 ? r + tour : r;
}

// A turn about the pole by `avant`, then one about the equator's x-to-z axis, then about the new pole.
place tourne(place p, double avant, double bascule, double apres) {
    const double a = p.ad * 15 * radian + avant;
    const double d = p.dec * radian;
    const double x = std::cos(bascule) * std::cos(d) * std::cos(a) - std::sin(bascule) * std::sin(d);
    const double y = std::cos(d) * std::sin(a);
    const double z = std::sin(bascule) * std::cos(d) * std::cos(a) + std::cos(bascule) * std::sin(d);
    return {reduit((std::atan2(y, x) + apres) / radian / 15, 24), std::atan2(z, std::hypot(x, y)) / radian};
}

} // namespace

place vers_la_date(place de_j2000, std::int64_t date) {
    const precession q{siecles(date)};
    return tourne(de_j2000, q.zeta, q.theta, q.z);
}

place vers_j2000(place de_la_date, std::int64_t date) {
    const precession q{siecles(date)};
    return tourne(de_la_date, -q.z, -q.theta, -q.zeta);
}

double sideral_greenwich(std::int64_t date) {
    const double t = siecles(date);
    const double tours = 0.7790572732640 + 0.00273781191135448 * jours(date) +
                         std::fmod(jours(date), 1); // the Earth's rotation
    const double polaire =
        0.014506 + (4612.156534 + (1.3915817 + (-4.4e-7 + (-2.9956e-5 - 3.68e-8 * t) * t) * t) * t) * t;
    return reduit(tours * 86400 + polaire / 15, 86400);
}

} // namespace general
