#include "machines/qt/clavier.h"

#include "fields/frmDepl_champs.h"
#include "fields/frmaltazpilot_champs.h"
#include "fields/frmequapilot_champs.h"
#include "fields/frminterface_champs.h"
#include "machines/qt/mesures.h"
#include "machines/qt/pieces.h"
#include "machines/qt/surface.h"

#include <QAbstractSlider>
#include <QApplication>
#include <QFocusFrame>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPainter>
#include <QPointer>
#include <utility>

namespace plateforme::qt {

namespace {

using shell::champ_bouton;

bool dans_la_fenetre_de(const shell::panneau& p, const QWidget& w) {
    for (const auto* parent = &w; parent; parent = parent->parentWidget())
        if (const auto* sous = qobject_cast<const QMdiSubWindow*>(parent))
            return sous->objectName() == affiche(p.nom());
    return false;
}

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

// In an active pilot panel, a list, a bar and a field keep the arrows; else each presses its direction, once:
// a jog goes on until it is stopped, as with the mouse.
bool presse_une_direction(const QWidget& w, const QKeyEvent& k) {
    const struct {
        int touche;
        champ_bouton& altaz;
        champ_bouton& equa;
    } directions[] = {{Qt::Key_Up, frmaltazpilot::deplacement.cmdhh, frmequapilot::deplacement.cmdhh},
                      {Qt::Key_Down, frmaltazpilot::deplacement.cmdhb, frmequapilot::deplacement.cmdhb},
                      {Qt::Key_Left, frmaltazpilot::deplacement.cmdag, frmequapilot::deplacement.cmdag},
                      {Qt::Key_Right, frmaltazpilot::deplacement.cmdad, frmequapilot::deplacement.cmdad}};
    if (k.modifiers() & ~Qt::KeypadModifier || qobject_cast<const QAbstractSlider*>(&w) ||
        qobject_cast<const QLineEdit*>(&w) || qobject_cast<const QAbstractItemView*>(&w))
        return false;
    for (const auto& d : directions)
        for (auto* bouton : {&d.altaz, &d.equa})
            if (k.key() == d.touche && w.isVisible() && dans_la_fenetre_de(bouton->fiche(), w)) {
                if (!k.isAutoRepeat())
                    bouton->clic();
                return true;
            }
    return false;
}

// What a right click does, for the keys that stand for it.
bool clique_a_droite(QWidget* w) {
    if (auto* l = dynamic_cast<liste*>(w))
        l->clic_droit();
    else if (auto* s = dynamic_cast<surface*>(w))
        s->clic_droit();
    else
        return false;
    return true;
}

// The menu bar takes the focus, or gives it back.
bool bascule_la_barre_de_menus(const QWidget& w) {
    static QPointer<QWidget> avant;
    const auto* principale = qobject_cast<QMainWindow*>(w.window());
    if (!principale)
        return false;
    auto* barre = principale->menuBar();
    if (barre->hasFocus()) {
        if (avant)
            avant->setFocus(Qt::MenuBarFocusReason);
        return true;
    }
    avant = QApplication::focusWidget();
    barre->setFocus(Qt::MenuBarFocusReason);
    barre->setActiveAction(barre->actions().first());
    return true;
}

// Sees a key before the widget that has the focus, which might take it for itself. An open popup or box keeps
// all of them, and the chart, which redraws at every key, gets them too.
class guet final : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* o, QEvent* e) override {
        if (e->type() != QEvent::KeyPress || QApplication::activePopupWidget() ||
            QApplication::activeModalWidget())
            return false;
        const auto* premier = QApplication::focusWidget();
        if (o != (premier ? premier : QApplication::activeWindow()))
            return false; // on its way up
        auto* w = static_cast<QWidget*>(o);
        return agit(w, static_cast<QKeyEvent&>(*e)) && !dynamic_cast<surface*>(w);
    }

  private:
    static bool agit(QWidget* w, const QKeyEvent& k) {
        switch (k.key()) {
        case Qt::Key_Escape:
            return qobject_cast<QMenuBar*>(w) ? bascule_la_barre_de_menus(*w) : presse_l_arret();
        case Qt::Key_Menu:
            return clique_a_droite(w);
        case Qt::Key_F10:
            return k.modifiers() & Qt::ShiftModifier ? clique_a_droite(w) : bascule_la_barre_de_menus(*w);
        default:
            return presse_une_direction(*w, k);
        }
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
