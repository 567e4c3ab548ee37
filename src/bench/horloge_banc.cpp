#include "bench/horloge_banc.h"

#include "sky/calendrier.h"

namespace banc {

horloge_banc::horloge_banc(const plateforme::temps& t, std::function<int()> decalage)
    : ecoule_(t.ecoule), equivalente_(t, std::move(decalage)) {}

plateforme::instant horloge_banc::maintenant() {
    return depart_ ? plateforme::date_civile(*depart_ + ecoule_()) : equivalente_.maintenant();
}

void horloge_banc::regle(const plateforme::instant& civil) {
    depart_ = plateforme::depuis_date(civil) - ecoule_();
}

} // namespace banc
