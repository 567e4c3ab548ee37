#include "sky/calendrier.h"

#include <array>
#include <charconv>
#include <chrono>

namespace plateforme {

namespace c = std::chrono;

instant date_civile(std::int64_t ms, int decalage) {
    const auto t = c::sys_time<c::milliseconds>{c::milliseconds{ms}} + c::hours{decalage};
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

std::optional<instant> lit_date(std::string_view texte) {
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
    const c::year_month_day date{c::year{n[0]}, c::month{static_cast<unsigned>(n[1])},
                                 c::day{static_cast<unsigned>(n[2])}};
    if (!texte.empty() || !date.ok() || n[0] > 9999 || n[3] > 23 || n[4] > 59 || n[5] > 59)
        return std::nullopt;
    return instant{n[0], n[1], n[2], n[3], n[4], n[5], n[6]};
}

} // namespace plateforme
