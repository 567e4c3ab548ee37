#include "bench/vcd.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace banc {
namespace {

// One page: a few microseconds of writing now and then, where a large buffer would hold a half-pulse up for
// twenty-five.
constexpr std::size_t taille_tampon = 4096;
constexpr std::array<const char*, 8> noms{"pas_alt", "sens_alt", "pas_az", "sens_az", "d4", "d5", "d6", "d7"};
constexpr char premiere_marque = '!'; // of the data lines, by bit
constexpr char marque_controle = ')';

char* met_ligne(char* p, unsigned bit, unsigned donnees) {
    *p++ = ((donnees >> bit) & 1U) ? '1' : '0';
    *p++ = static_cast<char>(premiere_marque + static_cast<char>(bit));
    *p++ = '\n';
    return p;
}

char* met_controle(char* p, unsigned controle) {
    *p++ = 'b';
    for (unsigned bit = 4; bit-- > 0;)
        *p++ = ((controle >> bit) & 1U) ? '1' : '0';
    *p++ = ' ';
    *p++ = marque_controle;
    *p++ = '\n';
    return p;
}

std::string entete(unsigned donnees, unsigned controle) {
    std::string texte = "$version Velmoria $end\n$timescale 1 ns $end\n$scope module port $end\n";
    for (unsigned bit = 0; bit < noms.size(); ++bit)
        texte += std::string("$var wire 1 ") + static_cast<char>(premiere_marque + static_cast<char>(bit)) +
                 " " + noms[bit] + " $end\n";
    texte += std::string("$var wire 4 ") + marque_controle + " controle [3:0] $end\n";
    texte += "$upscope $end\n$enddefinitions $end\n#0\n$dumpvars\n";
    std::array<char, 48> valeurs;
    char* p = valeurs.data();
    for (unsigned bit = 0; bit < noms.size(); ++bit)
        p = met_ligne(p, bit, donnees);
    p = met_controle(p, controle);
    texte.append(valeurs.data(), p);
    return texte + "$end\n";
}

} // namespace

bool vcd::ouvre(const std::filesystem::path& chemin, std::int64_t debut_ns, std::uint8_t donnees,
                std::uint8_t controle) {
    ferme();
    fichier_ = std::fopen(chemin.c_str(), "wb");
    if (!fichier_)
        return false;
    std::setvbuf(fichier_, nullptr, _IONBF, 0);
    tampon_.reserve(taille_tampon);
    debut_ = debut_ns;
    dernier_ = 0;
    donnees_ = donnees;
    controle_ = controle & 15U;
    const std::string texte = entete(donnees_, controle_);
    ajoute(texte.data(), texte.size());
    vide(); // so that a full disk is known at once
    return !perdu_ || ferme();
}

bool vcd::note(std::int64_t instant_ns, std::uint8_t donnees, std::uint8_t controle) {
    if (!fichier_ || perdu_)
        return false;
    const unsigned c = controle & 15U;
    unsigned change = donnees_ ^ donnees;
    if (change == 0 && c == controle_)
        return true;
    dernier_ = std::max(instant_ns - debut_, dernier_ + 1);
    std::array<char, 64> texte; // 22 of time, 24 of data lines, 8 of control at most
    char* p = texte.data();
    *p++ = '#';
    p = std::to_chars(p, texte.data() + texte.size(), dernier_).ptr;
    *p++ = '\n';
    for (unsigned bit = 0; change != 0; ++bit, change >>= 1U)
        if (change & 1U)
            p = met_ligne(p, bit, donnees);
    if (c != controle_)
        p = met_controle(p, c);
    donnees_ = donnees;
    controle_ = c;
    ajoute(texte.data(), static_cast<std::size_t>(p - texte.data()));
    return !perdu_;
}

void vcd::rince() {
    if (fichier_ && !tampon_.empty())
        vide();
}

bool vcd::ferme() {
    if (!fichier_)
        return true;
    vide();
    const bool garde = std::fclose(fichier_) == 0 && !perdu_;
    fichier_ = nullptr;
    perdu_ = false;
    return garde;
}

void vcd::ajoute(const char* texte, std::size_t longueur) {
    if (tampon_.size() + longueur > taille_tampon)
        vide();
    tampon_.insert(tampon_.end(), texte, texte + longueur);
}

void vcd::vide() {
    perdu_ = perdu_ || std::fwrite(tampon_.data(), 1, tampon_.size(), fichier_) != tampon_.size();
    tampon_.clear();
}

} // namespace banc
