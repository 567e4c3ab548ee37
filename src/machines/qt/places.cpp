#include "machines/qt/places.h"

#include "machines/qt/preferences.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <algorithm>

namespace plateforme::qt {

namespace {

// The first moves are the program's own and the window system's.
class memoire final : public QObject {
  public:
    explicit memoire(QWidget& w) : QObject(&w), fenetre_(w) {
        constexpr int repos = 500; // ms without a further move
        attente_.setSingleShot(true);
        attente_.setInterval(repos);
        connect(&attente_, &QTimer::timeout, this, [this] {
            retient_place(fenetre_.objectName(), {fenetre_.pos(), fenetre_.size()});
        });
        depuis_.start();
        w.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* e) override {
        constexpr int debut = 1000; // ms
        const bool bouge = e->type() == QEvent::Move || e->type() == QEvent::Resize;
        if (bouge && fenetre_.isVisible() && !fenetre_.isMaximized() && depuis_.hasExpired(debut))
            attente_.start();
        return false;
    }

  private:
    QWidget& fenetre_;
    QTimer attente_;
    QElapsedTimer depuis_;
};

} // namespace

bool reprend_sa_place(QWidget& w) {
    new memoire{w};
    const auto retenue = place_retenue(w.objectName());
    if (!retenue)
        return false;
    const auto* ecran = QGuiApplication::screenAt(retenue->center());
    const auto libre = (ecran ? ecran : w.screen())->availableGeometry();
    const auto taille = retenue->size().boundedTo(libre.size());
    w.resize(taille);
    w.move(std::clamp(retenue->x(), libre.x(), libre.x() + libre.width() - taille.width()),
           std::clamp(retenue->y(), libre.y(), libre.y() + libre.height() - taille.height()));
    return true;
}

} // namespace plateforme::qt
