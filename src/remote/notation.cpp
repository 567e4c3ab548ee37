#include "remote/notation.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace planetarium {

namespace {

// The whole of it in its last unit, folded into a turn.
long long reduit(double x, long long tour) {
    const auto n = std::llround(std::fmod(x, static_cast<double>(tour))) % tour;
    return n < 0 ? n + tour : n;
}

template <class... N> std::string forme(const char* modele, N... n) {
    std::array<char, 64> tampon{};
    std::snprintf(tampon.data(), tampon.size(), modele, n...); // NOLINT: the models are those below
    return tampon.data();
}

bool chiffre(char c) { return c >= '0' && c <= '9'; }

// What is left of a text to read.
struct lecteur {
    std::string_view reste;
    bool juste = true;

    // One or two figures, three for none of these texts.
    double entier() {
        double n = 0;
        std::size_t i = 0;
        for (; i < reste.size() && i < 2 && chiffre(reste[i]); ++i)
            n = n * 10 + (reste[i] - '0');
        juste = juste && i > 0;
        reste.remove_prefix(i);
        return n;
    }
    // A point and figures, or nothing.
    double fraction() {
        if (!prend("."))
            return 0;
        double n = 0;
        double poids = 0.1;
        for (; !reste.empty() && chiffre(reste.front()); reste.remove_prefix(1), poids /= 10)
            n += poids * (reste.front() - '0');
        return n;
    }
    bool prend(std::string_view debut) {
        if (!reste.starts_with(debut))
            return false;
        reste.remove_prefix(debut.size());
        return true;
    }
};

// Minutes, with a fraction or with seconds behind them, as a fraction of the unit; each below 60.
double minutes_et_secondes(lecteur& l) {
    const double minutes = l.entier();
    double secondes = l.fraction() * 60;
    if (l.prend(":") || l.prend("'")) {
        secondes = l.entier();
        l.juste = l.juste && secondes < 60;
        secondes += l.fraction();
    }
    l.juste = l.juste && minutes < 60;
    return minutes / 60 + secondes / 3600;
}

std::string_view sans_blancs(std::string_view t) {
    const auto debut = t.find_first_not_of(' ');
    return debut == std::string_view::npos ? std::string_view{}
                                           : t.substr(debut, t.find_last_not_of(' ') - debut + 1);
}

} // namespace

std::string ecrit_ad(double heures, bool longue) {
    if (longue)
        return ecrit_heure(heures * 3600);
    const auto n = reduit(heures * 600, 14400);
    return forme("%02lld:%02lld.%lld", n / 600, n / 10 % 60, n % 10);
}

std::string ecrit_angle(double degres, bool longue) {
    const auto n = std::llround(std::fabs(degres) * (longue ? 3600 : 60));
    const char signe = degres < 0 && n != 0 ? '-' : '+';
    return longue ? forme("%c%02lld*%02lld'%02lld", signe, n / 3600, n / 60 % 60, n % 60)
                  : forme("%c%02lld*%02lld", signe, n / 60, n % 60);
}

std::string ecrit_azimut(double degres, bool longue) {
    const auto n = reduit(degres * (longue ? 3600 : 60), longue ? 1296000 : 21600);
    return longue ? forme("%03lld*%02lld'%02lld", n / 3600, n / 60 % 60, n % 60)
                  : forme("%03lld*%02lld", n / 60, n % 60);
}

std::string ecrit_longitude(double est) {
    const auto n = std::llround(std::fabs(est) * 60);
    return forme("%c%03lld*%02lld", est > 0 && n != 0 ? '-' : '+', n / 60, n % 60);
}

std::string ecrit_heure(double secondes) {
    const auto n = reduit(secondes, 86400);
    return forme("%02lld:%02lld:%02lld", n / 3600, n / 60 % 60, n % 60);
}

std::optional<double> lit_ad(std::string_view texte) {
    lecteur l{sans_blancs(texte)};
    const double heures = l.entier();
    l.juste = l.juste && l.prend(":");
    const double x = heures + minutes_et_secondes(l);
    return l.juste && l.reste.empty() && x < 24 ? std::optional{x} : std::nullopt;
}

std::optional<double> lit_dec(std::string_view texte) {
    lecteur l{sans_blancs(texte)};
    const bool sud = l.prend("-");
    if (!sud)
        l.prend("+");
    const double degres = l.entier();
    l.juste = l.juste && (l.prend("*") || l.prend(":") || l.prend("\xDF") || l.prend("\xC2\xB0"));
    const double x = degres + minutes_et_secondes(l);
    if (!l.juste || !l.reste.empty() || x > 90)
        return std::nullopt;
    return sud ? -x : x;
}

} // namespace planetarium
