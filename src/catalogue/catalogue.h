// The delivered catalogues, read from the top at each use.
//
// A sky position is two numbers everywhere: right ascension in tenths of a minute of time (600 to the hour, 0
// to 14399) and declination in tenths of a minute of arc, signed (600 to the degree).
#pragma once

#include "base/entier.h"
#include "base/valeurs.h"

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace catalogue {

/// Entries at most: stars and objects of a panel, stars and objects of the chart.
inline constexpr std::size_t etoiles_panneau = 121;
inline constexpr std::size_t objets_panneau = 1031;
inline constexpr std::size_t etoiles_carte = 201;
inline constexpr std::size_t objets_carte = 1101;

/// A catalogue as a list offers it.
struct entree {
    const char* titre;
    const char* fichier;
};

/// In the order of the lists; the first one is stars, the others objects.
inline constexpr std::array<entree, 11> entrees = {{{"Etoiles magnitude 5", "5magstar.cat"},
                                                    {"Objets Messier", "messier.cat"},
                                                    {"Objets IC", "ic.cat"},
                                                    {"Objets NGC de 1 à 999", "ngc0.cat"},
                                                    {"Objets NGC de 1000 à 1999", "ngc1.cat"},
                                                    {"Objets NGC de 2000 à 2999", "ngc2.cat"},
                                                    {"Objets NGC de 3000 à 3999", "ngc3.cat"},
                                                    {"Objets NGC de 4000 à 4999", "ngc4.cat"},
                                                    {"Objets NGC de 5000 à 5999", "ngc5.cat"},
                                                    {"Objets NGC de 6000 à 6999", "ngc6.cat"},
                                                    {"Objets NGC de 7000 à 7999", "ngc7.cat"}}};

/// Star and object records alike: name, constellation or type code, position.
struct astre {
    std::string nom;
    std::string code;
    double ad = 0;
    double dec = 0;
};

/// A catalogue being read, record by record.
class lecture {
  public:
    lecture(const std::string& fichier, std::size_t limite);
    /// False at the end of the file.
    bool suivant(astre& a);

  private:
    std::string nom_;
    valeurs::lecteur fichier_;
    std::size_t lus_ = 0;
    std::size_t limite_;
};

/// The records of a star or object catalogue, in order. Fatal: a missing file, a record cut short
/// (`fin_de_fichier`), a record beyond `limite` (`indice`), with the file and the record's number.
std::vector<astre> lit(const std::string& fichier, std::size_t limite);

/// The same, one by one: calls `f(place, record)`, which may take the texts away.
template <class F> void parcourt(const std::string& fichier, std::size_t limite, F&& f) {
    lecture l{fichier, limite};
    astre a;
    for (std::size_t i = 0; l.suivant(a); ++i)
        f(i, a);
}

/// One catalogue in a panel's memory: four parallel arrays and a count. The positions are rounded with ties
/// to the even number.
template <std::size_t N> struct table {
    std::array<std::string, N> noms;
    std::array<std::string, N> codes;
    std::array<base::entier32, N> ad{};
    std::array<base::entier32, N> dec{};
    int nombre = 0;
};

/// Replaces a table's entries by those of a file; gives the names in order, for a list. Entries past the
/// count stay. Fatal as `lit`, and a position beyond 32 bits.
template <std::size_t N> std::vector<std::string> charge(const std::string& fichier, table<N>& t) {
    std::vector<std::string> noms;
    t.nombre = 0;
    for (auto& a : lit(fichier, N)) {
        const auto i = static_cast<std::size_t>(t.nombre++);
        noms.push_back(a.nom);
        t.noms[i] = std::move(a.nom);
        t.codes[i] = std::move(a.code);
        t.ad[i] = {a.ad, fichier};
        t.dec[i] = {a.dec, fichier};
    }
    return noms;
}

/// A line of a constellation's figure: the places of two stars in `vstar.cat`, from 0.
struct trait {
    base::entier32 de;
    base::entier32 a;
};

/// The lines of `vconst.cat`.
std::vector<trait> lit_traits();

/// The full name of a constellation by its code, from `const.cat`, read at each call: the last record of that
/// code counts; empty if there is none.
std::string constellation(const std::string& code);

/// The long name of an object's type code, empty for an unknown one.
std::string nom_type(const std::string& code);

/// A star's Greek letter, from its word in capitals, as one character of the symbol font; a blank for any
/// other name, ALPHA and BETA among them.
std::string lettregrecque(const std::string& nom);

/// The photograph of an object by its name, and whether there is one (also an empty one).
std::filesystem::path photographie(const std::string& nom);
bool a_photographie(const std::string& nom);

/// A coordinate in whole hours or degrees, cut towards 0, and minutes with their decimals. The minutes keep
/// the sign: -7500 is -12 and -30, -300 is 0 and -30, 3305.5 is 5 and 30.55.
struct partie {
    double entiers = 0;
    double minutes = 0;
};
partie partage(double coordonnee);
inline partie partage(base::entier32 coordonnee) { return partage(coordonnee.reel()); }

/// A right ascension and a declination as labels show them, a blank in the sign's place of each number:
/// " 5h 30.5'", "-12°-30'".
std::string texte_ad(const partie& p);
std::string texte_dec(const partie& p);

/// The declination of an object chosen: with whole degrees below 0 the minutes lose their sign, "-12° 30'".
/// Under one degree they keep it: " 0°-30'".
std::string texte_dec_objet(double dec);
/// The declination of a star aligned on: with whole degrees below 0 the minutes are 60 less their size.
std::string texte_dec_etoile(double dec);

} // namespace catalogue
