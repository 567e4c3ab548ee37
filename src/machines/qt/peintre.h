// Paints a drawing into an image at the screen's own pixels.
#pragma once

#include "seam/toile.h"

#include <QImage>
#include <map>
#include <tuple>

namespace plateforme::qt {

/// Small circles and letters repeat by the hundred: each is painted once and then copied.
class peintre {
  public:
    /// Paints all of a drawing into `image`, on black. `densite`: the image's pixels to a logical one of 96
    /// to the inch.
    void peint(QImage& image, const toile& t, double densite);

  private:
    struct jour; // the image in work
    using cle = std::tuple<double, QRgb, QRgb, bool, int, int>;

    void cercle(jour& j, const primitive& p);
    void ligne(jour& j, const primitive& p);
    void lettre(jour& j, const primitive& p);
    const QImage& pastille(const jour& j, const primitive& p, int phase_x, int phase_y);

    double densite_ = 0; // for which the copies below were made
    std::map<cle, QImage> pastilles_;
    std::map<std::pair<std::string, QRgb>, QImage> lettres_;
};

} // namespace plateforme::qt
