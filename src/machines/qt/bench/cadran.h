// The angle of an axis as a dial, so that a motion is seen.
#pragma once

#include "machines/qt/bench/afficheur.h"

namespace banc {

class cadran final : public piece_rapide {
  public:
    /// `zero`: where 0 degrees stands, in degrees from the top, clockwise; `sens` 1 clockwise, -1 the other
    /// way.
    cadran(double zero, int sens);
    /// Arcseconds. Paints only if the needle would move by a visible bit.
    void montre(double secondes);

  protected:
    void peint_le_fond(QPainter& p) override;
    void paintEvent(QPaintEvent*) override;

  private:
    double zero_;
    int sens_;
    int dixiemes_ = 0; // of a degree, what the needle shows
};

} // namespace banc
