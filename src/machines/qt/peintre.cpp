#include "machines/qt/peintre.h"

#include "machines/qt/mesures.h"
#include "machines/qt/nuit.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace plateforme::qt {

namespace {

constexpr int phases = 4;            // places of a small circle within a pixel, on each axis
constexpr double rayon_copie = 24;   // logical pixels: larger circles are painted one by one
constexpr double corps_symbole = 16; // 12 points at 96 pixels to the inch

QRgb couleur_de(couleur c) { return teinte_de_carte(c).rgb(); }

// The symbol font's small letters, a to z.
QString en_grec(const std::string& t) {
    static const QString grec{"αβχδεφγηιϕκλμνοπθρστυϖωξψζ"};
    QString s;
    for (const char c : t)
        s += c >= 'a' && c <= 'z' ? grec[c - 'a'] : QChar::fromLatin1(c);
    return s;
}

} // namespace

struct peintre::jour {
    QPainter p;
    QRectF cadre;
    double pixels_par_twip;
    double trait; // width of an outline: one logical pixel, in whole device pixels

    // The middle of the pixel that a twip falls into, so that lines along the axes come out sharp.
    double place(double twips) const { return twips * pixels_par_twip + trait / 2; }
};

void peintre::peint(QImage& image, const toile& t, double densite) {
    if (densite_ != densite) {
        pastilles_.clear();
        lettres_.clear();
        densite_ = densite;
    }
    image.fill(Qt::black);
    jour j{QPainter{&image}, QRectF{image.rect()}, densite / shell::twips_par_pixel,
           std::max(1.0, std::round(densite))};
    j.p.setRenderHint(QPainter::Antialiasing);
    for (const auto& p : t.primitives()) {
        switch (p.quoi) {
        case primitive::forme::efface:
            break; // the list begins with it
        case primitive::forme::cercle:
            cercle(j, p);
            break;
        case primitive::forme::ligne:
            ligne(j, p);
            break;
        case primitive::forme::texte:
            lettre(j, p);
            break;
        }
    }
}

// A line along an axis lies on whole pixels.
void peintre::ligne(jour& j, const primitive& p) {
    const auto entiere = [&j](double twips) { return std::floor(twips * j.pixels_par_twip) + j.trait / 2; };
    QLineF l{j.place(p.x), j.place(p.y), j.place(p.x2), j.place(p.y2)};
    if (p.y == p.y2)
        l = {l.x1(), entiere(p.y), l.x2(), entiere(p.y)};
    else if (p.x == p.x2)
        l = {entiere(p.x), l.y1(), entiere(p.x), l.y2()};
    const auto autour = QRectF{l.p1(), l.p2()}.normalized().adjusted(-2, -2, 2, 2);
    if (!autour.intersects(j.cadre))
        return;
    j.p.setPen(QPen{QColor{couleur_de(p.contour)}, j.trait, Qt::SolidLine, Qt::FlatCap});
    j.p.drawLine(l);
}

void peintre::cercle(jour& j, const primitive& p) {
    const double r = p.rayon * j.pixels_par_twip;
    const double x = j.place(p.x);
    const double y = j.place(p.y);
    const double large = r + j.trait;
    if (!QRectF{x - large, y - large, 2 * large, 2 * large}.intersects(j.cadre))
        return;
    if (r > rayon_copie * densite_) {
        j.p.setPen(QPen{QColor{couleur_de(p.contour)}, j.trait});
        j.p.setBrush(p.plein ? QBrush{QColor{couleur_de(p.fond)}} : Qt::NoBrush);
        j.p.drawEllipse(QPointF{x, y}, r, r);
        return;
    }
    const auto quarts_x = static_cast<int>(std::floor(x * phases));
    const auto quarts_y = static_cast<int>(std::floor(y * phases));
    const auto& image = pastille(j, p, quarts_x & (phases - 1), quarts_y & (phases - 1));
    const int milieu = image.width() / 2;
    j.p.drawImage(QPoint{(quarts_x >> 2) - milieu, (quarts_y >> 2) - milieu}, image);
}

// A circle about the middle pixel of its image, the centre at a quarter of it.
const QImage& peintre::pastille(const jour& j, const primitive& p, int phase_x, int phase_y) {
    auto& image = pastilles_[{p.rayon, couleur_de(p.contour), p.plein ? couleur_de(p.fond) : 0, p.plein,
                              phase_x, phase_y}];
    if (!image.isNull())
        return image;
    const double r = p.rayon * j.pixels_par_twip;
    const int milieu = static_cast<int>(std::ceil(r + j.trait)) + 1;
    image = QImage{2 * milieu + 1, 2 * milieu + 1, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    QPainter pinceau{&image};
    pinceau.setRenderHint(QPainter::Antialiasing);
    pinceau.setPen(QPen{QColor{couleur_de(p.contour)}, j.trait});
    pinceau.setBrush(p.plein ? QBrush{QColor{couleur_de(p.fond)}} : Qt::NoBrush);
    const auto centre = [milieu](int phase) { return milieu + (phase + 0.5) / phases; };
    pinceau.drawEllipse(QPointF{centre(phase_x), centre(phase_y)}, r, r);
    return image;
}

// Letters stand on whole pixels.
void peintre::lettre(jour& j, const primitive& p) {
    auto& image = lettres_[{p.texte, couleur_de(p.contour)}];
    if (image.isNull()) {
        QFont police{"DejaVu Sans"};
        police.setPixelSize(static_cast<int>(std::lround(corps_symbole * densite_)));
        const QFontMetrics m{police};
        const auto grec = en_grec(p.texte);
        image = QImage{m.horizontalAdvance(grec) + 4, m.height() + 2, QImage::Format_ARGB32_Premultiplied};
        image.fill(Qt::transparent);
        QPainter pinceau{&image};
        pinceau.setFont(police);
        pinceau.setPen(QColor{couleur_de(p.contour)});
        pinceau.drawText(0, m.ascent(), grec);
    }
    const QPointF place{std::floor(p.x * j.pixels_par_twip), std::floor(p.y * j.pixels_par_twip)};
    if (QRectF{place, image.size()}.intersects(j.cadre))
        j.p.drawImage(place, image);
}

} // namespace plateforme::qt
