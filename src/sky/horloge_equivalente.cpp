#include "sky/horloge_equivalente.h"

#include "sky/calendrier.h"

#include <cmath>
#include <utility>

namespace plateforme {

namespace {

constexpr std::int64_t ms_par_jour = 86'400'000;
constexpr std::int64_t j2000 = 946'728'000'000; // 2000 January 1, 12 h
constexpr double tours_par_jour = 1.00273781191135448;

// The Earth's rotation angle of IAU 2000 in turns, whole turns dropped: from J2000's origin, which does not
// move along the equator, so that a catalogue's J2000 sky comes back with it.
double rotation(std::int64_t ms) {
    const auto depuis = ms - j2000;
    const double jours = static_cast<double>(depuis) / ms_par_jour;
    const double du_jour = static_cast<double>(depuis % ms_par_jour) / ms_par_jour;
    return 0.7790572732640 + du_jour + (tours_par_jour - 1) * jours;
}

// The same day of the calendar and time of day in the year that stands for it. February 29 counts as March 1.
std::int64_t meme_date(std::int64_t ms) {
    auto date = date_civile(ms);
    date.annee = date.mois >= 7 ? 2000 : 2001;
    return depuis_date(date);
}

} // namespace

std::int64_t instant_equivalent(std::int64_t reel) {
    const std::int64_t meme = meme_date(reel);
    // Less than half a turn either way is the nearest.
    const double ecart = std::remainder(rotation(reel) - rotation(meme), 1.0);
    return meme + std::llround(ecart / tours_par_jour * ms_par_jour);
}

int decalage_du_mois(int mois) { return mois >= 5 && mois <= 10 ? 2 : 1; }

horloge_equivalente::horloge_equivalente(const temps& t, std::function<int()> decalage)
    : ecoule_(t.ecoule), decalage_(std::move(decalage)),
      depart_(instant_equivalent(t.universel()) - ecoule_()) {}

instant horloge_equivalente::maintenant() {
    const auto tu = depart_ + ecoule_();
    const int decalage = decalage_();
    return date_civile(tu, decalage != 0 ? decalage : decalage_du_mois(date_civile(tu).mois));
}

} // namespace plateforme
