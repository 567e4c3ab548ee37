#include "bench/horloge_banc.h"

#include <array>
#include <charconv>
#include <chrono>

namespace banc {

horloge_banc::horloge_banc(std::function<std::int64_t()> temps_reel, std::function<int()> decalage)
    : temps_reel_(temps_reel), equivalente_(std::move(temps_reel), std::move(decalage)) {}

plateforme::instant horloge_banc::maintenant() {
    return ecart_ ? plateforme::date_civile(temps_reel_() + *ecart_) : equivalente_.maintenant();
}

void horloge_banc::regle(const plateforme::instant& civil) {
    ecart_ = plateforme::depuis_date(civil) - temps_reel_();
}

std::optional<plateforme::instant> lit_date(std::string_view texte) {
    // The separator that follows each figure; the text may end after the minutes, the seconds or the
    // thousandths.
    constexpr std::string_view separateurs = "-- ::.";
    std::array<int, 7> n{};
    std::size_t lus = 0;
    while (lus < n.size()) {
        const auto* fin = texte.data() + texte.size();
        const auto lu = std::from_chars(texte.data(), fin, n[lus]);
        const auto longueur = static_cast<std::size_t>(lu.ptr - texte.data());
        if (lu.ec != std::errc{} || n[lus] < 0 || (lus == 6 && longueur != 3))
            return std::nullopt;
        texte.remove_prefix(longueur);
        ++lus;
        if (texte.empty())
            break;
        if (lus > separateurs.size() || texte.front() != separateurs[lus - 1])
            return std::nullopt;
        texte.remove_prefix(1);
    }
    // The calendar's own types keep 8 bits of these two.
    if (lus < 5 || n[1] > 12 || n[2] > 31)
        return std::nullopt;
    using namespace std::chrono;
    const year_month_day date{year{n[0]}, month{static_cast<unsigned>(n[1])},
                              day{static_cast<unsigned>(n[2])}};
    if (!texte.empty() || !date.ok() || n[0] > 9999 || n[3] > 23 || n[4] > 59 || n[5] > 59)
        return std::nullopt;
    return plateforme::instant{n[0], n[1], n[2], n[3], n[4], n[5], n[6]};
}

} // namespace banc
