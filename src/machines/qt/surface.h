// The widget of a drawing surface: it shows what the store holds, keeps that as an image, and hands on mouse
// and keys.
#pragma once

#include "machines/qt/peintre.h"
#include "store/controles.h"

#include <QImage>
#include <QWidget>

namespace plateforme::qt {

class surface final : public QWidget {
  public:
    surface(shell::champ_surface& c, QWidget* parent);

    /// Paints the store's drawing, on screen before it returns.
    void montre();

    /// Where the pointer stands, or in the middle if it is elsewhere.
    void clic_droit();

  protected:
    void paintEvent(QPaintEvent* e) override;
    void changeEvent(QEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    bool focusNextPrevChild(bool) override { return false; } // the tab key is a key as the others

  private:
    void presse(Qt::MouseButton bouton, QPointF ou);
    QSize taille_voulue() const; // in the screen's pixels
    void peint();

    shell::champ_surface& champ_;
    peintre peintre_;
    QImage image_;
};

} // namespace plateforme::qt
