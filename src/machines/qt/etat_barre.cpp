#include "machines/qt/etat_barre.h"

#include "frame/etat.h"
#include "machines/qt/guichet.h"
#include "machines/qt/mesures.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <utility>

namespace plateforme::qt {

namespace {

constexpr int periode_de_l_etat_ms = 250;
constexpr int largeur_de_l_etat = 560; // the longest line, and a main frame of 1000 beside its menus
constexpr int marge_de_l_etat = 8;

QString present() {
    auto s = etat::ligne();
    if (guichet_ouvert)
        s += " · " + guichet_ouvert->etat();
    return affiche(s);
}

} // namespace

etat_barre::etat_barre(QWidget* parent) : QWidget(parent), texte_(present()) {
    setObjectName("etat");
    setAccessibleName(texte_);
    startTimer(periode_de_l_etat_ms);
}

QSize etat_barre::sizeHint() const { return {largeur_de_l_etat, fontMetrics().height() + 6}; }

void etat_barre::timerEvent(QTimerEvent*) {
    if (auto t = present(); t != texte_) {
        texte_ = std::move(t);
        setAccessibleName(texte_);
        update();
    }
}

// What finds no room is in the tooltip.
void etat_barre::paintEvent(QPaintEvent*) {
    QPainter p{this};
    p.setPen(palette().color(QPalette::WindowText));
    const auto place = rect().adjusted(0, 0, -marge_de_l_etat, 0);
    p.drawText(place, Qt::AlignRight | Qt::AlignVCenter,
               fontMetrics().elidedText(texte_, Qt::ElideRight, place.width()));
}

bool etat_barre::event(QEvent* e) {
    if (e->type() != QEvent::ToolTip)
        return QWidget::event(e);
    QToolTip::showText(static_cast<QHelpEvent*>(e)->globalPos(), texte_);
    return true;
}

} // namespace plateforme::qt
