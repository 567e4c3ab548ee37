// The program by name: its panels, their controls and its variables, for scenarios and views.
#pragma once

#include "base/nombre.h"
#include "store/controles.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace shell {

/// A program-wide variable or table. `lit` gives the text of its value; the place is -1 for a plain variable.
/// `remet` puts it back to what it was when it was named.
struct variable {
    std::string nom;
    int taille = -1; ///< entries of a table, -1 for a plain variable
    std::function<std::string(int)> lit;
    std::function<void()> remet;
};

struct registre {
    std::vector<panneau*> panneaux;
    std::vector<variable> variables;

    /// By name; null if there is none.
    panneau* trouve_panneau(std::string_view nom) const;
    /// A control of a panel by its name there: "txth", "tAZ(2)", "barequa(3)". Loads nothing.
    controle* trouve_controle(std::string_view panneau, std::string_view nom) const;
    /// The text of "posaz" or "vitessealtaz(5)"; false if there is no such variable or entry.
    bool lit_variable(std::string_view nom, std::string& valeur) const;
};

inline std::string texte_de(double x) { return base::texte(x); }
inline std::string texte_de(base::entier16 n) { return base::texte(n); }
inline std::string texte_de(base::entier32 n) { return base::texte(n); }
inline std::string texte_de(const std::string& t) { return t; }
inline std::string texte_de(base::booleen16 b) { return std::to_string(b.valeur()); }

template <class T> variable nomme(std::string nom, T& v) {
    return {std::move(nom), -1, [&v](int) { return texte_de(v); }, [&v, premiere = v] { v = premiere; }};
}

template <class T, std::size_t N> variable nomme(std::string nom, std::array<T, N>& table) {
    return {std::move(nom), static_cast<int>(N),
            [&table](int i) { return texte_de(table[static_cast<std::size_t>(i)]); },
            [&table, premiere = table] { table = premiere; }};
}

} // namespace shell
