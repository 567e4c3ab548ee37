// The section of both pilot panels that tunes the delay counts: five speed classes an axis, each a bar with a
// field beside it, to the right of what the closed panel shows.
#pragma once

#include "store/controles.h"

#include <array>
#include <cstddef>

namespace piloting {

class champs_reglage {
  public:
    /// What one axis is called: its caption, its array of fields, its five bars.
    struct axe {
        const char* legende;
        const char* champs;
        std::array<const char*, 5> barres;
    };

    /// `gauche`: the section's left edge, twips.
    constexpr champs_reglage(shell::panneau& p, int gauche, const axe& premier, const axe& second)
        : Label1{p,
                 "Label1",
                 {gauche, 60, 4500, 300},
                 {.legende = "Ajustement des vitesses", .traits = shell::gras}},
          premier_{p, gauche, "Label3", premier}, second_{p, gauche + 2310, "Label2", second} {}

    /// Class `i`: 0 to 4 of the first axis, 5 to 9 of the second.
    shell::champ_barre& barre(std::size_t i) { return cote(i).barres[i % 5]; }
    shell::champ_texte& champ(std::size_t i) { return cote(i).champs(static_cast<int>(i % 5)); }

    std::vector<shell::controle*> controles() {
        return shell::liste(Label1, premier_.legende, second_.legende, premier_.barres, premier_.champs,
                            second_.barres, second_.champs);
    }

  private:
    static constexpr int ligne(int k) { return 780 + 480 * k; }

    struct colonne {
        shell::champ_etiquette legende;
        std::array<shell::champ_barre, 5> barres;
        shell::tableau<shell::champ_texte, 5> champs;

        constexpr colonne(shell::panneau& p, int x, const char* nom_legende, const axe& a)
            : legende{p, nom_legende, {x, 435, 2190, 285}, {.legende = a.legende}},
              barres{{barre(p, x, a, 0), barre(p, x, a, 1), barre(p, x, a, 2), barre(p, x, a, 3),
                      barre(p, x, a, 4)}},
              champs{p,
                     a.champs,
                     {{x + 1350, ligne(0), 840, 375},
                      {x + 1350, ligne(1), 840, 375},
                      {x + 1350, ligne(2), 840, 375},
                      {x + 1350, ligne(3), 840, 375},
                      {x + 1350, ligne(4), 840, 375}}} {}

        static constexpr shell::champ_barre barre(shell::panneau& p, int x, const axe& a, int k) {
            return {p,
                    a.barres[static_cast<std::size_t>(k)],
                    {x, ligne(k) + 30, 1290, 300},
                    {.max = 32767, .grand = 100}};
        }
    };

    colonne& cote(std::size_t i) { return i < 5 ? premier_ : second_; }

    shell::champ_etiquette Label1;
    colonne premier_;
    colonne second_;
};

inline constexpr std::array<const char*, 5> barres_1_a_5{"HScroll1", "HScroll2", "HScroll3", "HScroll4",
                                                         "HScroll5"};
inline constexpr std::array<const char*, 5> barres_6_a_10{"HScroll6", "HScroll7", "HScroll8", "HScroll9",
                                                          "HScroll10"};

} // namespace piloting
