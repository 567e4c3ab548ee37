// Numbers and texts: the lenient reading of a field, and the plain decimal text of a number.
#pragma once

#include "base/entier.h"

#include <string>
#include <string_view>

namespace base {

/// The number a text begins with, 0 if it begins with none. Blanks are skipped wherever they stand, the
/// decimal sign is the point, an exponent is taken, the rest is ignored: "12abc" is 12, "abc" is 0. Fatal
/// (`depassement`) beyond the range of a double; `ou` says where the text stands, for the message.
double nombre(std::string_view texte, const lieu& ou);

/// Whether a text is a number from its first character to its last, blanks around it apart.
bool est_nombre(std::string_view texte);

/// The shortest fixed-point decimal that reads back to the same double; no exponent, no "-0". Fatal if not
/// finite.
std::string texte(double x);
inline std::string texte(entier16 n) { return std::to_string(n.valeur()); }
inline std::string texte(entier32 n) { return std::to_string(n.valeur()); }

/// The same with one blank in the sign's place of a number that is not negative.
std::string texte_signe(double x);

/// x itself. Fatal (`depassement`) if it is infinite or not a number; `quoi` names the value.
double fini(double x, const lieu& quoi);

/// a / b; a zero divisor is fatal. `quoi` names the quotient for the message.
double divise(double a, double b, std::string_view quoi);

/// Square root; a negative argument is fatal.
double racine(double x, std::string_view quoi);

/// The element at a place; a place outside the table is fatal (`indice`), `nom` names the table.
template <class Table> auto& element(Table& table, std::int64_t place, std::string_view nom) {
    if (place < 0 || static_cast<std::uint64_t>(place) >= table.size())
        fatale(cause::indice, std::string{nom} + "(" + std::to_string(place) + ")");
    return table[static_cast<std::size_t>(place)];
}

} // namespace base
