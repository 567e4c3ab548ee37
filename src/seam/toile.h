// What a panel draws: a list of primitives, the same for a window, a scenario and a test.
//
// Lengths are twips of the drawing surface, y downwards. Outline colour, fill colour and fill style stay from
// call to call until they are set anew.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace plateforme {

struct couleur {
    std::uint8_t r = 0;
    std::uint8_t v = 0;
    std::uint8_t b = 0;
    friend bool operator==(const couleur&, const couleur&) = default;
};

/// One thing drawn, with the colours it was drawn in.
struct primitive {
    enum class forme { efface, cercle, ligne, texte };
    forme quoi = forme::efface;
    double x = 0; ///< centre, first end, or the text's upper left corner
    double y = 0;
    double x2 = 0; ///< second end of a line
    double y2 = 0;
    double rayon = 0;  ///< of a circle
    couleur contour;   ///< also a line's and a text's colour
    couleur fond;      ///< of a full circle
    bool plein = true; ///< a circle is filled
    std::string texte; ///< in the symbol font, 12 points
};

class toile {
  public:
    void contour(couleur c) { contour_ = c; }
    void fond(couleur c) { fond_ = c; }
    /// Circles from now on are filled, or hollow.
    void plein(bool oui) { plein_ = oui; }

    /// Forgets all that was drawn; colours and fill style stay.
    void efface() {
        primitives_.clear();
        primitives_.emplace_back();
    }
    void cercle(double x, double y, double rayon) {
        primitives_.push_back({primitive::forme::cercle, x, y, 0, 0, rayon, contour_, fond_, plein_, {}});
    }
    /// In the outline colour.
    void ligne(double x1, double y1, double x2, double y2) { ligne(x1, y1, x2, y2, contour_); }
    /// In a colour of its own; the outline colour stays what it was.
    void ligne(double x1, double y1, double x2, double y2, couleur c) {
        primitives_.push_back({primitive::forme::ligne, x1, y1, x2, y2, 0, c, {}, false, {}});
    }
    /// In the outline colour.
    void texte(double x, double y, std::string t) {
        primitives_.push_back({primitive::forme::texte, x, y, 0, 0, 0, contour_, {}, false, std::move(t)});
    }

    const std::vector<primitive>& primitives() const { return primitives_; }

  private:
    couleur contour_;
    couleur fond_{255, 255, 255};
    bool plein_ = true;
    std::vector<primitive> primitives_;
};

} // namespace plateforme
