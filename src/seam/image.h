// A picture that a view has loaded. The logic knows its size only; the pixels stay with the view.
#pragma once

#include <array>

namespace plateforme {

struct image {
    int numero = 0;  ///< the view's own number, 0 for no picture
    int largeur = 0; ///< pixels
    int hauteur = 0; ///< pixels
    double ppp = 96; ///< pixels per inch, horizontally and vertically
    friend bool operator==(const image&, const image&) = default;
};

/// The button pictures in the order of `liste.txt`: 0 and 1 the save button of the notes at rest and held
/// down, 2 and 3 `Picinit`, 4 and 5 `picpointage` likewise. Users pick them by their place.
inline std::array<image, 31> imagesboutons;

} // namespace plateforme
