#include "machines/qt/bench/cadran.h"

#include "machines/qt/nuit.h"

#include <QPainter>
#include <cmath>

namespace banc {

using plateforme::qt::nuit;
using plateforme::qt::teinte;

namespace {
constexpr int cote = 92;
constexpr double rayon = cote / 2.0 - 2;
} // namespace

cadran::cadran(double zero, int sens) : zero_(zero), sens_(sens) { setFixedSize(cote, cote); }

void cadran::montre(double secondes) {
    const int dixiemes = static_cast<int>(std::lround(std::fmod(secondes / 360.0, 3600.0)));
    if (dixiemes == dixiemes_)
        return;
    dixiemes_ = dixiemes;
    update();
}

void cadran::peint_le_fond(QPainter& p) {
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(cote / 2.0, cote / 2.0);
    p.setPen(teinte(QColor{0x60, 0x60, 0x60}));
    p.setBrush(nuit() ? QColor{16, 0, 0} : Qt::white);
    p.drawEllipse(QPointF{0, 0}, rayon, rayon);
    for (int i = 0; i < 36; ++i) {
        p.drawLine(QPointF{0, -rayon}, QPointF{0, -rayon + (i % 9 == 0 ? 9 : 4)});
        p.rotate(10);
    }
}

void cadran::paintEvent(QPaintEvent*) {
    QPainter p{this};
    p.drawPixmap(0, 0, fond());
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(cote / 2.0, cote / 2.0);
    p.rotate(zero_ + sens_ * dixiemes_ / 10.0);
    p.setPen(QPen{teinte(QColor{0xC8, 0x32, 0x28}), 2.5, Qt::SolidLine, Qt::RoundCap});
    p.drawLine(QPointF{0, 8}, QPointF{0, -rayon + 10});
    p.setBrush(teinte(QColor{0xC8, 0x32, 0x28}));
    p.drawEllipse(QPointF{0, 0}, 3, 3);
}

} // namespace banc
