#include "machines/qt/bench/voyants.h"

#include "machines/qt/nuit.h"
#include <QPaintEvent>
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

// Lamp i from the left, with room for its smooth edge.
QRect place(int i) { return {i * largeur + (largeur - diametre) / 2 - 1, 1, diametre + 2, diametre + 2}; }

} // namespace

voyants::voyants() { setFixedSize(8 * largeur, hauteur); }

void voyants::montre(int donnees) {
    for (int i = 0; i < 8; ++i)
        if (((donnees ^ donnees_) >> (7 - i)) & 1)
            update(place(i));
    donnees_ = donnees;
}

void voyants::peint_le_fond(QPainter& p) {
    p.setPen(palette().color(QPalette::WindowText));
    for (int i = 0; i < 8; ++i)
        p.drawText(QRect{i * largeur, diametre + 6, largeur, hauteur - diametre - 6},
                   Qt::AlignHCenter | Qt::AlignTop, QString::fromUtf8(noms[static_cast<std::size_t>(i)]));
}

void voyants::paintEvent(QPaintEvent* e) {
    QPainter p{this};
    p.setRenderHint(QPainter::Antialiasing);
    p.drawPixmap(0, 0, fond());
    p.setPen(teinte(QColor{0x40, 0x40, 0x40}));
    for (int i = 0; i < 8; ++i) {
        if (!e->region().intersects(place(i)))
            continue;
        const bool allume = (donnees_ >> (7 - i)) & 1;
        p.setBrush(nuit()   ? QColor{allume ? rouge_le_plus_vif : 24, 0, 0}
                   : allume ? QColor{0xE8, 0x3A, 0x2C}
                            : QColor{0xD4, 0xD0, 0xCC});
        p.drawEllipse(place(i).adjusted(1, 1, -1, -1));
    }
}

} // namespace banc
