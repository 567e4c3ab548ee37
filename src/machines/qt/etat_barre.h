// The line at the right end of the menu bar that tells what is on.
#pragma once

#include <QSize>
#include <QString>
#include <QWidget>

namespace plateforme::qt {

/// Of a fixed width: a change of its text paints itself and nothing else. It looks four times a second.
class etat_barre final : public QWidget {
  public:
    explicit etat_barre(QWidget* parent);
    const QString& texte() const { return texte_; }
    QSize sizeHint() const override;

  protected:
    void timerEvent(QTimerEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    bool event(QEvent* e) override;

  private:
    QString texte_;
};

} // namespace plateforme::qt
