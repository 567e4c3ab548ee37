#include "seam/entete_image.h"

#include <cstdint>

namespace plateforme {

namespace {

int octet(std::string_view s, std::size_t i) { return static_cast<std::uint8_t>(s[i]); }
int gros_boutiste(std::string_view s, std::size_t i) { return octet(s, i) * 256 + octet(s, i + 1); }

std::optional<image> lit_gif(std::string_view s) {
    if (s.size() < 10)
        return std::nullopt;
    return image{0, octet(s, 6) + 256 * octet(s, 7), octet(s, 8) + 256 * octet(s, 9), 96};
}

// A JPEG file is a chain of segments, each 0xFF, a marker and a length; the frame header holds the size, the
// JFIF header the density (unit 1: per inch, 2: per centimetre).
std::optional<image> lit_jpeg(std::string_view s) {
    image i{0, 0, 0, 96};
    std::size_t p = 2;
    while (p + 4 <= s.size() && octet(s, p) == 0xFF) {
        const int marque = octet(s, p + 1);
        if (marque == 0xFF) { // fill byte
            ++p;
            continue;
        }
        const auto longueur = static_cast<std::size_t>(gros_boutiste(s, p + 2));
        const auto corps = s.substr(p + 4, longueur < 2 ? 0 : longueur - 2);
        if (longueur < 2 || corps.size() + 2 < longueur)
            return std::nullopt;
        if (marque == 0xE0 && corps.size() >= 12 && corps.starts_with(std::string_view{"JFIF\0", 5})) {
            const int densite = gros_boutiste(corps, 8);
            if (densite > 0 && octet(corps, 7) == 1)
                i.ppp = densite;
            if (densite > 0 && octet(corps, 7) == 2)
                i.ppp = densite * 2.54;
        }
        const bool cadre =
            marque >= 0xC0 && marque <= 0xCF && marque != 0xC4 && marque != 0xC8 && marque != 0xCC;
        if (cadre) {
            if (corps.size() < 5)
                return std::nullopt;
            i.hauteur = gros_boutiste(corps, 1);
            i.largeur = gros_boutiste(corps, 3);
            return i;
        }
        p += 2 + longueur;
    }
    return std::nullopt;
}

} // namespace

std::optional<image> lit_entete(std::string_view octets) {
    auto i = octets.starts_with("GIF87a") || octets.starts_with("GIF89a") ? lit_gif(octets)
             : octets.starts_with("\xFF\xD8")                             ? lit_jpeg(octets)
                                                                          : std::nullopt;
    return i && i->largeur > 0 && i->hauteur > 0 ? i : std::nullopt;
}

} // namespace plateforme
