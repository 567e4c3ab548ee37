#include "machines/qt/nuit.h"

#include "machines/qt/preferences.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace plateforme::qt {

namespace {

bool allumee = false;
bool filtre_en_cours = false; // what paints inside a filter is filtered with it

// Premultiplied pixels: alpha stays, the brightest part becomes the red.
void rougit(QImage& i) {
    for (int y = 0; y < i.height(); ++y) {
        auto* ligne = reinterpret_cast<QRgb*>(i.scanLine(y));
        for (int x = 0; x < i.width(); ++x) {
            const QRgb c = ligne[x];
            const int vif = std::max({qRed(c), qGreen(c), qBlue(c)});
            ligne[x] = qRgba(std::min(vif, rouge_le_plus_vif), 0, 0, qAlpha(c));
        }
    }
}

QPalette de_nuit() {
    const auto rouge = [](int n) { return QColor{n, 0, 0}; };
    const int texte = 190;
    const int eteint = 90;
    QPalette p{rouge(66), rouge(34)};
    for (const auto& [role, n] : std::initializer_list<std::pair<QPalette::ColorRole, int>>{
             {QPalette::Window, 34},
             {QPalette::Base, 6},
             {QPalette::AlternateBase, 18},
             {QPalette::Button, 66},
             {QPalette::Light, 80},
             {QPalette::Midlight, 68},
             {QPalette::Mid, 50},
             {QPalette::Dark, 34},
             {QPalette::Shadow, 0},
             {QPalette::WindowText, texte},
             {QPalette::Text, texte},
             {QPalette::ButtonText, texte},
             {QPalette::BrightText, rouge_le_plus_vif},
             {QPalette::Highlight, 96},
             {QPalette::HighlightedText, rouge_le_plus_vif},
             {QPalette::Link, rouge_le_plus_vif},
             {QPalette::LinkVisited, 150},
             {QPalette::ToolTipBase, 40},
             {QPalette::ToolTipText, texte},
             {QPalette::PlaceholderText, eteint}})
        p.setColor(role, rouge(n));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, rouge(eteint));
    return p;
}

} // namespace

QPalette palette_de_jour() {
    QPalette p{QColor{0xEF, 0xEF, 0xEC}};
    p.setColor(QPalette::Window, QColor{0xEF, 0xEF, 0xEC});
    p.setColor(QPalette::Base, Qt::white);
    p.setColor(QPalette::Text, Qt::black);
    p.setColor(QPalette::WindowText, Qt::black);
    p.setColor(QPalette::ButtonText, Qt::black);
    p.setColor(QPalette::Highlight, QColor{0x2F, 0x6D, 0xB5});
    p.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, QColor{0x8C, 0x8C, 0x8C});
    return p;
}

QColor fond_de_la_zone() { return nuit() ? QColor{Qt::black} : QColor{0x8A, 0x90, 0x99}; }

bool nuit() { return allumee; }

namespace {

// A key reaches its window first, once; then its widgets, one after the other.
class interrupteur final : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* objet, QEvent* e) override {
        if (e->type() == QEvent::KeyPress && objet->isWindowType()) {
            const auto& k = static_cast<QKeyEvent&>(*e);
            if (k.key() == Qt::Key_F9 && k.modifiers() == Qt::NoModifier && !k.isAutoRepeat()) {
                met_la_nuit(!nuit());
                retient_nuit(nuit());
            }
        }
        return false;
    }
};

} // namespace

void ecoute_la_touche_de_nuit(bool nuit) {
    if (nuit || nuit_retenue())
        met_la_nuit(true);
    qApp->installEventFilter(new interrupteur{qApp});
}

void met_la_nuit(bool oui) {
    allumee = oui;
    const auto p = oui ? de_nuit() : palette_de_jour();
    QApplication::setPalette(p);
    QToolTip::setPalette(p);
    for (auto* w : QApplication::topLevelWidgets())
        for (auto* zone : w->findChildren<QMdiArea*>())
            zone->setBackground(fond_de_la_zone());
}

QColor teinte(QColor c) {
    if (!allumee)
        return c;
    return QColor{std::min(std::max({c.red(), c.green(), c.blue()}), rouge_le_plus_vif), 0, 0, c.alpha()};
}

// The weights part the chart's seven colours; what is drawn at all is never too dark to be seen.
QColor teinte_de_carte(couleur c) {
    if (!allumee)
        return QColor{c.r, c.v, c.b};
    const double poids = 0.45 * c.r + 0.25 * c.v + 0.30 * c.b;
    const double plancher = std::min(40.0, poids);
    return QColor{static_cast<int>(std::lround(std::min(plancher + 0.64 * poids, double{rouge_le_plus_vif}))),
                  0, 0};
}

namespace {

// The light of a premultiplied pixel: a photograph's as the eye weighs it, a drawing's by its brightest part.
int clarte_de(QRgb c, nature n) {
    return n == nature::photographie ? qGray(c) : std::max({qRed(c), qGreen(c), qBlue(c)});
}

// Between 0 and 255, weighed by what is not transparent.
int clarte_moyenne(const QImage& i) {
    qint64 somme = 0;
    qint64 poids = 0;
    for (int y = 0; y < i.height(); ++y) {
        const auto* ligne = reinterpret_cast<const QRgb*>(i.constScanLine(y));
        for (int x = 0; x < i.width(); ++x) {
            somme += clarte_de(ligne[x], nature::decor);
            poids += qAlpha(ligne[x]);
        }
    }
    return poids > 0 ? static_cast<int>(255 * somme / poids) : 0;
}

// A dark icon would be lost on its button, a white ground would dazzle.
bool a_retourner(const QImage& i, nature n) {
    constexpr int sombre = 96;
    constexpr int clair = 150;
    return (n == nature::icone && clarte_moyenne(i) < sombre) ||
           (n == nature::decor && clarte_moyenne(i) > clair);
}

} // namespace

QImage eclaire(const QImage& i, nature n) {
    if (!allumee || i.isNull())
        return i;
    auto rouge = i.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const bool negatif = a_retourner(rouge, n);
    for (int y = 0; y < rouge.height(); ++y) {
        auto* ligne = reinterpret_cast<QRgb*>(rouge.scanLine(y));
        for (int x = 0; x < rouge.width(); ++x) {
            const int alpha = qAlpha(ligne[x]);
            const int clarte = negatif ? alpha - clarte_de(ligne[x], n) : clarte_de(ligne[x], n);
            ligne[x] = qRgba(clarte * rouge_le_plus_vif / 255, 0, 0, alpha);
        }
    }
    return rouge;
}

QIcon icone_de_nuit(const QIcon& i) {
    static std::map<qint64, QIcon> faites;
    auto& nocturne = faites[i.cacheKey()];
    if (nocturne.isNull())
        for (const auto& taille : i.availableSizes())
            nocturne.addPixmap(QPixmap::fromImage(eclaire(i.pixmap(taille, 1.0).toImage(), nature::icone)));
    return nocturne;
}

void a_travers_le_filtre(QPainter& p, const QRect& ou, const std::function<void(QPainter&)>& dessine) {
    constexpr int marge = 3; // some outlines run a little beyond their place
    const auto place = ou.adjusted(-marge, -marge, marge, marge);
    if (!allumee || filtre_en_cours || ou.isEmpty()) {
        dessine(p);
        return;
    }
    const double densite = p.device()->devicePixelRatioF();
    QImage image{(QSizeF{place.size()} * densite).toSize(), QImage::Format_ARGB32_Premultiplied};
    image.setDevicePixelRatio(densite);
    image.fill(Qt::transparent);
    {
        QPainter q{&image};
        q.translate(-place.topLeft());
        q.setFont(p.font());
        q.setPen(p.pen());
        q.setBrush(p.brush());
        q.setRenderHints(p.renderHints());
        q.setLayoutDirection(p.layoutDirection());
        filtre_en_cours = true;
        dessine(q);
        filtre_en_cours = false;
    }
    rougit(image);
    p.drawImage(place.topLeft(), image);
}

} // namespace plateforme::qt
