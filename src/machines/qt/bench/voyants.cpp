#include "machines/qt/bench/voyants.h"

#include "machines/qt/nuit.h"

#include <QPainter>
#include <array>

namespace banc {

using plateforme::qt::nuit;
using plateforme::qt::rouge_le_plus_vif;
using plateforme::qt::teinte;

namespace {

// From the highest line to the lowest, as a byte is written.
constexpr std::array<const char*, 8> noms = {"128\nraquette", "64",         "32",           "16\nraquette",
                                             "8\nsens az.",   "4\npas az.", "2\nsens alt.", "1\npas alt."};
constexpr int largeur = 62;
constexpr int hauteur = 58;
constexpr int diametre = 18;

} // namespace

voyants::voyants(QWidget* parent) : QWidget(parent) { setFixedSize(8 * largeur, hauteur); }

void voyants::montre(int donnees) {
    if (donnees == donnees_)
        return;
    donnees_ = donnees;
    update();
}

void voyants::paintEvent(QPaintEvent*) {
    QPainter p{this};
    p.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 8; ++i) {
        const bool allume = (donnees_ >> (7 - i)) & 1;
        const int x = i * largeur;
        p.setPen(teinte(QColor{0x40, 0x40, 0x40}));
        p.setBrush(nuit()   ? QColor{allume ? rouge_le_plus_vif : 24, 0, 0}
                   : allume ? QColor{0xE8, 0x3A, 0x2C}
                            : QColor{0xD4, 0xD0, 0xCC});
        p.drawEllipse(x + (largeur - diametre) / 2, 2, diametre, diametre);
        p.setPen(palette().color(QPalette::WindowText));
        p.drawText(QRect{x, diametre + 6, largeur, hauteur - diametre - 6}, Qt::AlignHCenter | Qt::AlignTop,
                   QString::fromUtf8(noms[static_cast<std::size_t>(i)]));
    }
}

} // namespace banc
