#include "bench/cadence.h"

#include <algorithm>

namespace banc {
namespace {

constexpr std::int64_t milliseconde = 1'000'000;
constexpr std::int64_t ecart_minimal = 20 * milliseconde; // readings closer than this are not kept
constexpr std::int64_t fenetre_courte = 250 * milliseconde;
constexpr std::int64_t fenetre_longue = 2000 * milliseconde;    // for motions of few pulses
constexpr std::int64_t attente_du_second = 5000 * milliseconde; // of a slow motion's second growth
constexpr std::uint64_t impulsions_suffisantes = 50;            // 2 % of grain is steady enough to the eye

} // namespace

double cadence::mesure(std::uint64_t total, std::int64_t maintenant_ns) {
    const bool recule = nombre_ > 0 && maintenant_ns < age(0).instant;
    if (!commence_ || recule) {
        commence_ = true;
        nombre_ = 0;
        vu_ = total;
        return 0.0;
    }
    if (nombre_ > 0 && maintenant_ns - age(0).instant < ecart_minimal)
        return estime();
    const bool arrete = nombre_ > 0 && maintenant_ns - age(0).instant > silence_admis();
    if (arrete)
        nombre_ = 0;
    if (total != vu_)
        retient(maintenant_ns, total);
    return estime();
}

void cadence::retient(std::int64_t instant, std::uint64_t total) {
    releves_[suivant_ % capacite] = {instant, total};
    ++suivant_;
    nombre_ = std::min(nombre_ + 1, capacite);
    vu_ = total;
}

// From the newest growth back to the first one that leaves a long enough stretch between them.
double cadence::estime() const {
    if (nombre_ < 2)
        return 0.0;
    const releve fin = age(0);
    releve debut = age(1);
    for (std::size_t rang = 1; rang < nombre_; ++rang) {
        debut = age(rang);
        const std::int64_t duree = fin.instant - debut.instant;
        if (duree >= fenetre_longue ||
            (duree >= fenetre_courte && fin.total - debut.total >= impulsions_suffisantes))
            break;
    }
    return static_cast<double>(fin.total - debut.total) * 1e9 /
           static_cast<double>(fin.instant - debut.instant);
}

std::int64_t cadence::silence_admis() const {
    if (nombre_ < 2)
        return attente_du_second;
    return std::max(fenetre_courte, 2 * (age(0).instant - age(1).instant));
}

} // namespace banc
