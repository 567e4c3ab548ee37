// The eight data lines as lamps.
#pragma once

#include "machines/qt/bench/afficheur.h"

namespace banc {

class voyants final : public piece_rapide {
  public:
    voyants();
    /// Paints the lamps that differ from those shown.
    void montre(int donnees);

  protected:
    void peint_le_fond(QPainter& p) override;
    void paintEvent(QPaintEvent* e) override;

  private:
    int donnees_ = 0;
};

} // namespace banc
