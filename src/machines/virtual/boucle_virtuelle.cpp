#include "machines/virtual/boucle_virtuelle.h"

#include "sky/calendrier.h"

#include <algorithm>

namespace plateforme {

namespace {

constexpr std::int64_t ns_par_ms = 1'000'000;
constexpr std::int64_t jour_ns = 24LL * 3600 * 1'000'000'000;
constexpr std::int64_t cessions_maximum = 2 * 100'000'000LL; // two a step

} // namespace

void boucle_virtuelle::attend(std::int64_t ns) { temps_ += std::max<std::int64_t>(ns, 0); }

void boucle_virtuelle::cede() {
    if (ordres_ > 0)
        commence_acte();
    else if (++cessions_ > cessions_maximum || temps_ - debut_acte_ > jour_ns)
        throw mouvement_sans_fin{};
    // What comes due while these run waits for the next yield.
    const auto limite = temps_;
    while (!file_.empty() && file_.begin()->quand <= limite)
        lance_premier();
}

void boucle_virtuelle::commence_acte() {
    debut_acte_ = temps_;
    cessions_ = 0;
}

void boucle_virtuelle::lance_premier() {
    auto noeud = file_.extract(file_.begin());
    const auto& e = noeud.value();
    if (e.rappel) {
        e.rappel->tic();
        return;
    }
    --ordres_;
    const auto avant = std::exchange(echeance_, e.quand);
    e.f();
    echeance_ = avant;
}

void boucle_virtuelle::arme(rappel& r, int ms) {
    desarme(r);
    file_.insert({temps_ + ms * ns_par_ms, 1, numeros_++, &r, {}, {}});
}

void boucle_virtuelle::desarme(rappel& r) {
    std::erase_if(file_, [&r](const evenement& e) { return e.rappel == &r; });
}

void boucle_virtuelle::termine(int statut) { throw fin_du_processus{statut}; }

void boucle_virtuelle::programme(std::int64_t ns, std::string texte, std::function<void()> f) {
    ++ordres_;
    file_.insert({temps_ + ns, 0, numeros_++, nullptr, std::move(texte), std::move(f)});
}

std::string boucle_virtuelle::retire(std::int64_t instant, const std::string& debut) {
    const auto e = std::find_if(file_.begin(), file_.end(), [&](const evenement& x) {
        return x.quand == instant && !x.rappel && x.texte.starts_with(debut);
    });
    if (e == file_.end())
        return {};
    auto texte = e->texte;
    file_.erase(e);
    --ordres_;
    return texte;
}

void boucle_virtuelle::avance(std::int64_t ns) {
    const auto fin = temps_ + ns;
    while (!file_.empty() && file_.begin()->quand <= fin) {
        temps_ = std::max(temps_, file_.begin()->quand);
        commence_acte();
        lance_premier();
    }
    temps_ = std::max(temps_, fin);
}

void boucle_virtuelle::regle_horloge(const instant& c) { civil_ = depuis_date(c) - temps_ / ns_par_ms; }

instant boucle_virtuelle::maintenant() { return date_civile(civil_ + temps_ / ns_par_ms); }

} // namespace plateforme
