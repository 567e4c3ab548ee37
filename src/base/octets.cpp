#include "base/octets.h"

#include <array>
#include <cstdint>
#include <utility>

namespace base {

namespace {

// Characters of the bytes 0x80 to 0x9F; those without a character keep their own number.
constexpr std::array<std::uint16_t, 32> haut = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

void ajoute_utf8(std::string& s, std::uint32_t c) {
    if (c < 0x80) {
        s += static_cast<char>(c);
    } else if (c < 0x800) {
        s += static_cast<char>(0xC0 | (c >> 6));
        s += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        s += static_cast<char>(0xE0 | (c >> 12));
        s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        s += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// The next character of a UTF-8 text, and how many bytes it took; a malformed byte gives U+FFFD and takes
// one.
std::pair<std::uint32_t, std::size_t> suivant(std::string_view s) {
    const auto premier = static_cast<std::uint8_t>(s[0]);
    if (premier < 0x80)
        return {premier, 1};
    const std::size_t n = premier >= 0xF0 ? 4 : premier >= 0xE0 ? 3 : 2;
    if (premier < 0xC2 || premier > 0xF4 || s.size() < n)
        return {0xFFFD, 1};
    std::uint32_t c = premier & (0x7Fu >> n);
    for (std::size_t i = 1; i < n; ++i) {
        const auto b = static_cast<std::uint8_t>(s[i]);
        if ((b & 0xC0) != 0x80)
            return {0xFFFD, 1};
        c = (c << 6) | (b & 0x3Fu);
    }
    return {c, n};
}

char octet_de(std::uint32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(static_cast<std::uint8_t>(c));
    for (std::size_t i = 0; i < haut.size(); ++i)
        if (haut[i] == c)
            return static_cast<char>(static_cast<std::uint8_t>(0x80 + i));
    return '?';
}

} // namespace

std::string de_1252(std::string_view octets) {
    std::string s;
    s.reserve(octets.size());
    for (char o : octets) {
        const auto b = static_cast<std::uint8_t>(o);
        ajoute_utf8(s, b >= 0x80 && b < 0xA0 ? haut[b - 0x80u] : b);
    }
    return s;
}

std::string vers_1252(std::string_view utf8) {
    std::string s;
    s.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto [c, n] = suivant(utf8);
        s += octet_de(c);
        utf8.remove_prefix(n);
    }
    return s;
}

} // namespace base
