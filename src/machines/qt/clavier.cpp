#include "machines/qt/clavier.h"

#include "fields/frmDepl_champs.h"
#include "fields/frmaltazpilot_champs.h"
#include "fields/frmequapilot_champs.h"
#include "fields/frminterface_champs.h"
#include "machines/qt/surface.h"

#include <QApplication>
#include <QFocusFrame>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <utility>

namespace plateforme::qt {

namespace {

// The stop of a slew, else of the pilot panel of the mount in use, else of the other one. Nothing is loaded.
bool presse_l_arret() {
    auto* pilotage = &frmaltazpilot::fiche;
    auto* autre = &frmequapilot::fiche;
    if (frminterface::barequa.regarde().visible)
        std::swap(pilotage, autre);
    for (auto* p : {&frmDepl::fiche, pilotage, autre})
        if (p->est_visible()) {
            p->touche_echap();
            return true;
        }
    return false;
}

// Sees a key before the widget that has the focus, which might take Escape for itself. An open popup or box
// keeps it.
class guet final : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* o, QEvent* e) override {
        if (e->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(e)->key() != Qt::Key_Escape ||
            !o->isWidgetType() || QApplication::activePopupWidget() || QApplication::activeModalWidget())
            return false;
        return presse_l_arret() && !dynamic_cast<surface*>(o); // the chart redraws at every key
    }
};

// Around the control that has the focus, whatever its kind shows of it.
class cadre_du_focus final : public QFocusFrame {
  protected:
    void paintEvent(QPaintEvent*) override {
        constexpr int trait = 2;
        QPainter p{this};
        p.setPen(QPen{palette().color(QPalette::Highlight), trait});
        p.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};

} // namespace

void ecoute_le_clavier() {
    qApp->installEventFilter(new guet{qApp});
    QObject::connect(qApp, &QApplication::focusChanged, qApp, [](QWidget*, QWidget* w) {
        static QPointer<cadre_du_focus> cadre; // it goes with the window it lies in
        delete cadre;
        if (!w || !(w->focusPolicy() & Qt::TabFocus) || dynamic_cast<surface*>(w))
            return;
        cadre = new cadre_du_focus;
        cadre->setWidget(w);
    });
}

} // namespace plateforme::qt
