// What the bench window shows of a run: each piece paints itself only when it changes, and nothing but
// itself, since a repaint while a motor runs is a late pulse.
#pragma once

#include <QPixmap>
#include <QWidget>

namespace banc {

/// A widget of fixed size that keeps a picture of what lies behind it, so that painting it anew asks nothing
/// of the frames around it.
class piece_rapide : public QWidget {
  public:
    piece_rapide();

  protected:
    /// What lies behind, and what of the piece itself never changes: to be painted first.
    const QPixmap& fond();
    virtual void peint_le_fond(QPainter&) {}
    bool event(QEvent* e) override;

  private:
    QPixmap fond_;
};

/// A figure or a short line; its accessible description says it too.
class afficheur final : public piece_rapide {
  public:
    /// As wide as `gabarit`.
    afficheur(const char* nom, const QString& gabarit, Qt::Alignment cote);
    void montre(const QString& texte);

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    QString texte_;
    Qt::Alignment cote_;
};

} // namespace banc
