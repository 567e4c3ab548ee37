// The eight data lines as lamps.
#pragma once

#include <QWidget>

namespace banc {

class voyants final : public QWidget {
  public:
    explicit voyants(QWidget* parent);
    /// Paints only if the byte differs from the one shown.
    void montre(int donnees);

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    int donnees_ = 0;
};

} // namespace banc
