// Between the store and the widgets: lengths and texts.
#pragma once

#include "store/panneau.h"

#include <QRect>
#include <QString>
#include <string>
#include <string_view>

namespace plateforme::qt {

/// Twips to logical pixels of a 96-pixel inch, to the nearest.
constexpr int pixels(int twips) {
    const int n = twips >= 0 ? twips + shell::twips_par_pixel / 2 : twips - shell::twips_par_pixel / 2;
    return n / shell::twips_par_pixel;
}

/// The edges are rounded, not the size, so that neighbours stay neighbours.
constexpr QRect rectangle(shell::boite b) {
    const int x = pixels(b.x);
    const int y = pixels(b.y);
    return {x, y, pixels(b.x + b.l) - x, pixels(b.y + b.h) - y};
}

inline QString affiche(std::string_view s) {
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

inline std::string lu(const QString& s) { return s.toStdString(); }

} // namespace plateforme::qt
