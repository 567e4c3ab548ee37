#include "base/nombre.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace base {

namespace {

bool blanc(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool chiffre(char c) { return c >= '0' && c <= '9'; }

// What follows an optional sign: digits, a point, digits, an exponent that has digits. Gives the length, 0
// for none.
std::size_t longueur_nombre(std::string_view t) {
    std::size_t i = 0;
    std::size_t chiffres = 0;
    for (; i < t.size() && chiffre(t[i]); ++i)
        ++chiffres;
    if (i < t.size() && t[i] == '.') {
        ++i;
        for (; i < t.size() && chiffre(t[i]); ++i)
            ++chiffres;
    }
    if (chiffres == 0)
        return 0;
    if (i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < t.size() && (t[j] == '+' || t[j] == '-'))
            ++j;
        if (j < t.size() && chiffre(t[j])) {
            while (j < t.size() && chiffre(t[j]))
                ++j;
            i = j;
        }
    }
    return i;
}

// The power of ten above the first digit that is not 0: 3 for "123", -1 for "0.01", 398 for "0.01e399".
std::int64_t ordre_de_grandeur(std::string_view n) {
    const auto e = std::min(n.find_first_of("eE"), n.size());
    std::int64_t exposant = 0;
    if (e < n.size()) {
        auto fin = n.substr(e + 1);
        const bool negatif = fin.front() == '-';
        fin.remove_prefix(negatif || fin.front() == '+' ? 1 : 0);
        for (char c : fin)
            exposant = std::min<std::int64_t>(exposant * 10 + (c - '0'), 1'000'000'000);
        exposant = negatif ? -exposant : exposant;
    }
    const auto mantisse = n.substr(0, e);
    const auto point = std::min(mantisse.find('.'), mantisse.size());
    const auto premier = std::min(mantisse.find_first_not_of("0."), mantisse.size());
    const auto rang = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(premier);
    return exposant + (rang < 0 ? rang + 1 : rang);
}

} // namespace

void deborde(double x, const lieu& ou, int bits) {
    fatale(cause::depassement, ou.devant() + (std::isfinite(x) ? texte(x) : "infini") +
                                   " hors d'un entier de " + std::to_string(bits) + " bits");
}

double nombre(std::string_view texte, const lieu& ou) {
    std::string serre;
    serre.reserve(texte.size());
    for (char c : texte)
        if (!blanc(c))
            serre += c;
    std::string_view reste{serre};
    bool negatif = false;
    if (!reste.empty() && (reste.front() == '+' || reste.front() == '-')) {
        negatif = reste.front() == '-';
        reste.remove_prefix(1);
    }
    const std::size_t n = longueur_nombre(reste);
    if (n == 0)
        return 0.0;
    double v = 0.0;
    const auto lu = std::from_chars(reste.data(), reste.data() + n, v);
    if (lu.ec == std::errc::result_out_of_range) {
        if (ordre_de_grandeur(reste.substr(0, n)) > 0)
            fatale(cause::depassement, ou.devant() + std::string{texte.substr(0, 40)});
        return 0.0;
    }
    return negatif && v != 0.0 ? -v : v;
}

bool est_nombre(std::string_view texte) {
    while (!texte.empty() && blanc(texte.front()))
        texte.remove_prefix(1);
    while (!texte.empty() && blanc(texte.back()))
        texte.remove_suffix(1);
    if (!texte.empty() && (texte.front() == '+' || texte.front() == '-'))
        texte.remove_prefix(1);
    return !texte.empty() && longueur_nombre(texte) == texte.size();
}

std::string texte(double x) {
    fini(x, "nombre à écrire");
    if (x == 0.0)
        return "0";
    std::array<char, 1100> tampon; // the smallest double has 1,074 decimals
    const auto fin = std::to_chars(tampon.data(), tampon.data() + tampon.size(), x, std::chars_format::fixed);
    return {tampon.data(), fin.ptr};
}

std::string texte_signe(double x) {
    auto t = texte(x);
    return t.front() == '-' ? t : " " + t;
}

double fini(double x, const lieu& quoi) {
    if (!std::isfinite(x))
        fatale(cause::depassement, quoi.nom());
    return x;
}

double divise(double a, double b, std::string_view quoi) {
    if (b == 0.0)
        fatale(cause::division_par_zero, std::string{quoi});
    return a / b;
}

double racine(double x, std::string_view quoi) {
    if (x < 0.0)
        fatale(cause::racine_negative, std::string{quoi});
    return std::sqrt(x);
}

} // namespace base
