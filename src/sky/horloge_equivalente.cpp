#include "sky/horloge_equivalente.h"

#include <chrono>
#include <cmath>
#include <utility>

namespace plateforme {

namespace {

namespace c = std::chrono;

constexpr std::int64_t ms_par_jour = 86'400'000;
constexpr std::int64_t j2000 = 946'728'000'000; // 2000 January 1, 12 h
constexpr double jours_par_siecle = 36525.0;
// Sidereal over mean solar time.
constexpr double rapport = 1.00273790935;

c::sys_time<c::milliseconds> point(std::int64_t ms) {
    return c::sys_time<c::milliseconds>{c::milliseconds{ms}};
}

// Greenwich mean sidereal time of IAU 1982, seconds, whole days dropped: the time of day since noon, and what
// the sidereal clock has gained on it since 2000.
double tsmg(std::int64_t ms) {
    const double jours = static_cast<double>(ms - j2000) / static_cast<double>(ms_par_jour);
    const double t = jours / jours_par_siecle;
    const double fraction =
        static_cast<double>(((ms - j2000) % ms_par_jour + ms_par_jour) % ms_par_jour) / 1000.0;
    return 67310.54841 + fraction + (8640184.812866 + (0.093104 - 6.2e-6 * t) * t) * t;
}

// The same day of the calendar and time of day in the year that stands for it. February 29 counts as March 1.
std::int64_t meme_date(std::int64_t ms) {
    const auto jour = c::floor<c::days>(point(ms));
    const c::year_month_day date{jour};
    const auto annee = c::year{date.month() >= c::July ? 2000 : 2001};
    const c::sys_days transposee{annee / date.month() / date.day()};
    return ms + c::duration_cast<c::milliseconds>(transposee - jour).count();
}

} // namespace

std::int64_t instant_equivalent(std::int64_t reel) {
    const std::int64_t meme = meme_date(reel);
    // Less than half a sidereal day either way is the nearest.
    const double ecart = std::remainder(tsmg(reel) - tsmg(meme), 86400.0);
    return meme + std::llround(ecart / rapport * 1000.0);
}

instant date_civile(std::int64_t ms, int decalage) {
    const auto t = point(ms) + c::hours{decalage};
    const auto jour = c::floor<c::days>(t);
    const c::year_month_day date{jour};
    const c::hh_mm_ss heure{t - jour};
    return {.annee = static_cast<int>(date.year()),
            .mois = static_cast<int>(static_cast<unsigned>(date.month())),
            .jour = static_cast<int>(static_cast<unsigned>(date.day())),
            .heure = static_cast<int>(heure.hours().count()),
            .minute = static_cast<int>(heure.minutes().count()),
            .seconde = static_cast<int>(heure.seconds().count()),
            .milliseconde = static_cast<int>(heure.subseconds().count())};
}

std::int64_t depuis_date(const instant& i) {
    const c::sys_days jour{c::year{i.annee} / i.mois / i.jour};
    const auto t = jour + c::hours{i.heure} + c::minutes{i.minute} + c::seconds{i.seconde};
    return c::duration_cast<c::milliseconds>(t.time_since_epoch()).count() + i.milliseconde;
}

int decalage_du_mois(int mois) { return mois >= 5 && mois <= 10 ? 2 : 1; }

horloge_equivalente::horloge_equivalente(std::function<std::int64_t()> temps_reel,
                                         std::function<int()> decalage)
    : temps_reel_(std::move(temps_reel)), decalage_(std::move(decalage)) {
    const auto reel = temps_reel_();
    ecart_ = instant_equivalent(reel) - reel;
}

instant horloge_equivalente::maintenant() {
    const auto tu = temps_reel_() + ecart_;
    const int decalage = decalage_();
    return date_civile(tu, decalage != 0 ? decalage : decalage_du_mois(date_civile(tu).mois));
}

} // namespace plateforme
