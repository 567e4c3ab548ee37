#include "machines/qt/style.h"

#include "machines/qt/nuit.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>

namespace plateforme::qt {

namespace {

// What a toolbar too narrow for its tools shows at its end.
QIcon chevrons() {
    QPixmap p{16, 16};
    p.fill(Qt::transparent);
    QPainter peintre{&p};
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen({Qt::black, 2});
    for (const int x : {3, 8})
        peintre.drawPolyline(QPolygon{{{x, 3}, {x + 5, 8}, {x, 13}}});
    return p;
}

// Fusion without its animations, since a repaint while a motor runs is a late pulse, with plain buttons in
// its boxes, and without the context menu of scroll bars, which is not in French.
class style_calme final : public QProxyStyle {
  public:
    style_calme() : QProxyStyle(QStyleFactory::create("Fusion")) {}
    // Every toolbar asks for it, and Qt loads all its picture plugins to read its own.
    QIcon standardIcon(StandardPixmap lequel, const QStyleOption* option,
                       const QWidget* widget) const override {
        if (lequel == SP_ToolBarHorizontalExtensionButton || lequel == SP_ToolBarVerticalExtensionButton)
            return chevrons();
        return QProxyStyle::standardIcon(lequel, option, widget);
    }

    int styleHint(StyleHint indice, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* retour) const override {
        switch (indice) {
        case SH_Widget_Animate:
        case SH_Widget_Animation_Duration:
        case SH_DialogButtonBox_ButtonsHaveIcons:
        case SH_ScrollBar_ContextMenu:
            return 0;
        case SH_MenuBar_AltKeyNavigation:
            return 1;
        default:
            return QProxyStyle::styleHint(indice, option, widget, retour);
        }
    }
    int pixelMetric(PixelMetric mesure, const QStyleOption* option, const QWidget* widget) const override {
        if (mesure == PM_TextCursorWidth && nuit())
            return 0; // text fields draw it
        // A pixel less than the style's own: the panels' outer sizes leave their frames no more.
        return mesure == PM_MdiSubWindowFrameWidth ? 3 : QProxyStyle::pixelMetric(mesure, option, widget);
    }

    // The style mixes whites of its own into the palette's colours: by night they go through the filter.
    void drawPrimitive(PrimitiveElement quoi, const QStyleOption* option, QPainter* p,
                       const QWidget* widget) const override {
        filtre(*p, option->rect, [&](QPainter& q) { QProxyStyle::drawPrimitive(quoi, option, &q, widget); });
    }
    void drawControl(ControlElement quoi, const QStyleOption* option, QPainter* p,
                     const QWidget* widget) const override {
        if (nuit() && quoi == CE_PushButtonLabel) {
            auto o = *qstyleoption_cast<const QStyleOptionButton*>(option);
            o.icon = icone_de_nuit(o.icon);
            filtre(*p, o.rect, [&](QPainter& q) { QProxyStyle::drawControl(quoi, &o, &q, widget); });
        } else if (nuit() && quoi == CE_ToolButtonLabel) {
            auto o = *qstyleoption_cast<const QStyleOptionToolButton*>(option);
            o.icon = icone_de_nuit(o.icon);
            filtre(*p, o.rect, [&](QPainter& q) { QProxyStyle::drawControl(quoi, &o, &q, widget); });
        } else {
            filtre(*p, option->rect,
                   [&](QPainter& q) { QProxyStyle::drawControl(quoi, option, &q, widget); });
        }
    }
    void drawComplexControl(ComplexControl quoi, const QStyleOptionComplex* option, QPainter* p,
                            const QWidget* widget) const override {
        filtre(*p, option->rect, [&](QPainter& q) {
            QProxyStyle::drawComplexControl(quoi, option, &q, widget);
            if (quoi == CC_ScrollBar)
                poignee(q, *option, widget);
        });
    }
    void drawItemPixmap(QPainter* p, const QRect& place, int cadrage, const QPixmap& image) const override {
        filtre(*p, place, [&](QPainter& q) { QProxyStyle::drawItemPixmap(&q, place, cadrage, image); });
    }

  private:
    // A scroll bar's thumb, which the style hardly parts from its groove.
    void poignee(QPainter& p, const QStyleOptionComplex& o, const QWidget* widget) const {
        const auto place = subControlRect(CC_ScrollBar, &o, SC_ScrollBarSlider, widget);
        if (!(o.state & State_Enabled) || place.isEmpty())
            return;
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(o.palette.color(QPalette::Dark));
        p.setBrush(nuit() ? o.palette.color(QPalette::Highlight).lighter(140)
                          : o.palette.color(QPalette::Highlight).lighter(135));
        p.drawRoundedRect(QRectF{place}.adjusted(1.5, 1.5, -1.5, -1.5), 2, 2);
    }

    template <class F> static void filtre(QPainter& p, const QRect& ou, const F& dessine) {
        if (nuit())
            a_travers_le_filtre(p, ou, dessine);
        else
            dessine(p);
    }
};

} // namespace

void prepare() {
    // Qt's own event dispatcher takes half the time of GLib's for a pass with nothing to do.
    qputenv("QT_NO_GLIB", "1");
    // Nothing here draws by OpenGL: its libraries would only lengthen the start.
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QGuiApplication::setDesktopSettingsAware(false);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    // Nobody wants a telescope program that the next login starts by itself.
    QCoreApplication::setAttribute(Qt::AA_DisableSessionManager);
}

void habille() {
    QApplication::setStyle(new style_calme);
    QApplication::setPalette(palette_de_jour());
    QFont police{"DejaVu Sans"};
    police.setPixelSize(hauteur_police);
    QApplication::setFont(police);
    QApplication::setQuitOnLastWindowClosed(false);
    for (const auto effet : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo, Qt::UI_AnimateTooltip,
                             Qt::UI_FadeTooltip, Qt::UI_AnimateToolBox})
        QApplication::setEffectEnabled(effet, false);
}

} // namespace plateforme::qt
