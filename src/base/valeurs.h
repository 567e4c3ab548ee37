// The text form of the settings, almanac and catalogue files: a bare sequence of values, known by their
// place.
#pragma once

#include "base/entier.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace valeurs {

/// What parts two values besides a line end.
enum class separateurs {
    virgule,          ///< a comma; blanks around a value are dropped
    virgule_ou_blanc, ///< blanks too, as in the almanac's columns
};

/// Reads the values of one file in order. The file is read whole and closed by the constructor; it is fatal
/// if it is missing (`fichier_introuvable`), and so is reading past its end (`fin_de_fichier`), both with the
/// file's name.
class lecteur {
  public:
    explicit lecteur(const std::filesystem::path& chemin, separateurs s = separateurs::virgule);

    /// Whether nothing is left to read.
    bool fini() const { return place_ >= octets_.size(); }

    /// The next value as UTF-8 text, without the blanks around it.
    std::string texte();
    /// The same, but a text in double quotes is read up to the closing quote, commas included.
    std::string texte_entre_guillemets();
    /// The next value as a text field takes it back: a number as its plain text (045 gives "45"), else as it
    /// stands.
    std::string champ();
    /// The next value by the lenient conversion; an empty one is 0.
    double nombre();
    /// The same, rounded with ties to the even number; what does not fit is fatal (`depassement`), with the
    /// file's name.
    base::entier16 nombre16() { return base::entier16{nombre(), nom_}; }
    base::entier32 nombre32() { return base::entier32{nombre(), nom_}; }
    /// True only if the next value is exactly "Vrai".
    bool vrai();
    /// The next line whole as UTF-8 text: commas and blanks belong to it, its line end doesn't.
    std::string ligne();

    /// How many values, or lines, have been read.
    int lues() const { return lues_; }

  private:
    void compte(const char* quoi); ///< one more is read; fatal at the end of the file
    std::string_view suivante();

    std::string nom_;
    std::string octets_;
    std::size_t place_ = 0;
    int lues_ = 0;
    separateurs separateurs_;
};

/// Builds a file's text, one value a line, and writes it in one go: a failure in building it leaves the old
/// file.
class ecrivain {
  public:
    /// The characters of a text field as they stand.
    void texte(std::string_view utf8);
    /// A number with a blank in the sign's place and one behind it: " 250 ".
    void nombre(double x);
    void nombre(base::entier32 n) { nombre(n.reel()); }
    /// "Vrai" or "Faux".
    void booleen(base::booleen16 b);
    /// Replaces the file's content, or leaves it whole: fatal (`ecriture_impossible`) if it cannot be
    /// written.
    void enregistre(const std::filesystem::path& chemin) const;

  private:
    std::string octets_;
};

} // namespace valeurs
