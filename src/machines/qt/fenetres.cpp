#include "machines/qt/fenetres.h"

#include "machines/qt/accord.h"
#include "machines/qt/etat_barre.h"
#include "machines/qt/fabrique.h"
#include "machines/qt/images.h"
#include "machines/qt/menus.h"
#include "machines/qt/mesures.h"
#include "machines/qt/pieces.h"
#include "machines/qt/places.h"
#include "machines/qt/style.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace plateforme::qt {

namespace {

using namespace shell;

class cadre_principal final : public QMainWindow {
  public:
    explicit cadre_principal(panneau& p) : fiche_(p) { setContextMenuPolicy(Qt::PreventContextMenu); }

  protected:
    // The store decides what a close box does.
    void closeEvent(QCloseEvent* e) override {
        e->ignore();
        fiche_.ferme();
    }

    // From the end of the toolbar the tab key goes on to the panel that is active.
    bool focusNextPrevChild(bool suivant) override {
        auto* actif = static_cast<zone*>(centralWidget())->activeSubWindow();
        auto* outil = QApplication::focusWidget();
        if (actif && outil && premier_arret_de_tab(*outil->parentWidget(), !suivant) == outil)
            if (auto* w = premier_arret_de_tab(*actif, suivant)) {
                w->setFocus(suivant ? Qt::TabFocusReason : Qt::BacktabFocusReason);
                return true;
            }
        return QMainWindow::focusNextPrevChild(suivant);
    }

  private:
    panneau& fiche_;
};

// What a drawing stands on. A style sheet would keep the colours of the night from its controls.
class fond_noir final : public QWidget {
  public:
    using QWidget::QWidget;

  protected:
    void paintEvent(QPaintEvent* e) override { QPainter{this}.fillRect(e->rect(), Qt::black); }
};

bool a_un_dessin(const panneau& p) {
    const auto& tous = p.controles();
    return std::any_of(tous.begin(), tous.end(),
                       [](const controle* c) { return c->espece() == genre::surface; });
}

// All keys of a window with a drawing go to the drawing.
void cede_au_dessin(const fenetre& f) {
    if (!a_un_dessin(f.fiche))
        return;
    for (const auto* c : f.fiche.controles())
        if (auto* w = f.pieces.widget(*c); w && c->espece() != genre::surface)
            w->setFocusPolicy(Qt::NoFocus);
}

// A control's frame was declared before it, so its widget is there already.
void remplit(fenetre& f, QWidget* contenu) {
    for (auto* c : f.fiche.controles())
        if (c->espece() != genre::entree)
            f.pieces.range(*c, fabrique(*c, c->cadre() ? f.pieces.widget(*c->cadre()) : contenu));
    cede_au_dessin(f);
}

QToolBar* barre_outils(QMainWindow& w, const controle& c) {
    constexpr int cote_icone = 24;
    auto* barre = new QToolBar{&w};
    barre->setMovable(false);
    barre->setIconSize({cote_icone, cote_icone});
    barre->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    barre->setObjectName(affiche(c.nom()));
    barre->setAccessibleName(barre->objectName());
    w.addToolBar(barre);
    w.addToolBarBreak();
    return barre;
}

QAction* outil(QToolBar& barre, champ_outil& c) {
    auto* action = barre.addAction(affiche(c.regarde().texte));
    // Icons are read when their bar is first seen: at start most bars are hidden.
    QObject::connect(&barre, &QToolBar::visibilityChanged, action, [action, &c](bool visible) {
        if (visible && action->icon().isNull())
            action->setIcon(icone(c.comme_dessine().icone));
    });
    auto* touche = barre.widgetForAction(action);
    new montre_bulle{c, touche};
    touche->setFocusPolicy(Qt::TabFocus);
    touche->setObjectName(affiche(c.nom()));
    touche->setAccessibleName(touche->objectName());
    QObject::connect(action, &QAction::triggered, action, [&c] { c.clic(); });
    return action;
}

QLabel* barre_etat(QMainWindow& w, const controle& c) {
    auto* barre = w.statusBar();
    barre->setObjectName(affiche(c.nom()));
    barre->setAccessibleName(barre->objectName());
    auto* panneau = new QLabel{barre};
    panneau->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    barre->addWidget(panneau, 1);
    return panneau;
}

QWidget* principal(fenetre& f) {
    auto* w = new cadre_principal{f.fiche};
    f.enfants = new zone{w};
    w->setCentralWidget(f.enfants);
    for (auto* c : f.fiche.controles()) {
        if (c->espece() == genre::barre_outils)
            f.pieces.range(*c, barre_outils(*w, *c));
        else if (c->espece() == genre::outil)
            f.pieces.range(*c, outil(*static_cast<QToolBar*>(f.pieces.widget(*c->cadre())),
                                     static_cast<champ_outil&>(*c)));
        else if (c->espece() == genre::barre_etat)
            f.pieces.range(*c, barre_etat(*w, *c));
    }
    remplit_barre(*w->menuBar(), f.fiche, f.pieces);
    w->menuBar()->setCornerWidget(new etat_barre{w->menuBar()});
    return w;
}

// The stop first, where there is one; else the first control that no arrow key alters.
void donne_le_focus(fenetre& f) {
    auto* premier = f.enfant->arret;
    for (const auto* c : f.fiche.controles()) {
        const bool calme =
            c->espece() == genre::texte || c->espece() == genre::bouton || c->espece() == genre::surface;
        auto* w = f.pieces.widget(*c);
        if (!premier && calme && w && w->focusPolicy() & Qt::TabFocus && w->isEnabled() && w->isVisible())
            premier = w;
    }
    (premier ? premier : f.enfant->widget())->setFocus(Qt::OtherFocusReason);
}

QWidget* enfant(fenetre& f, zone& z) {
    auto* w = f.enfant = new sous_fenetre{f.fiche};
    auto* contenu = a_un_dessin(f.fiche) ? new fond_noir{w} : new QWidget{w};
    contenu->setFocusPolicy(Qt::ClickFocus);
    w->setWidget(contenu);
    remplit(f, contenu);
    for (const auto* c : f.fiche.controles())
        if (c->a(echap))
            w->arret = f.pieces.widget(*c);
    w->a_la_taille = [&f] {
        const bool ici = f.enfant->isAncestorOf(QApplication::focusWidget());
        for (const auto* c : f.fiche.controles())
            if (auto* piece = f.pieces.widget(*c))
                accorde(*c, piece, aspect::visible);
        if (ici && !f.enfant->isAncestorOf(QApplication::focusWidget()))
            donne_le_focus(f);
    };
    z.addSubWindow(w);
    w->hide();
    return w;
}

QWidget* accueil(fenetre& f) {
    // On screen at once: a window manager would take longer than the splash is there for.
    auto* w =
        new QWidget{nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint};
    remplit(f, w);
    return w;
}

// A frame that opens leaves room for what the window system puts around it.
QSize au_plus_l_ecran(const QWidget& w, QSize taille) {
    constexpr QSize bordures{16, 40};
    return taille.boundedTo(w.screen()->availableSize() - bordures);
}

void accorde_taille(fenetre& f) {
    const auto& p = f.fiche;
    const QSize taille{pixels(p.regarde_largeur()), pixels(p.regarde_hauteur())};
    auto& w = *f.cadre;
    if (!p.options().taille_fixe && p.est_maximise() != w.isMaximized())
        w.setWindowState(w.windowState() ^ Qt::WindowMaximized);
    // A size the observer gave it stays until the program asks for another.
    if (std::exchange(f.demandee, taille) == taille)
        return;
    if (p.options().taille_fixe)
        w.setFixedSize(taille);
    else
        w.resize(p.options().principal ? au_plus_l_ecran(w, taille) : taille);
    if (f.enfant && f.enfant->isVisible())
        f.enfants->ramene(*f.enfant);
}

void montre(fenetre& f) {
    auto& w = *f.cadre;
    for (const auto* c : f.fiche.controles())
        if (auto* piece = f.pieces.piece(*c))
            accorde_tout(*c, piece);
    accorde_taille(f);
    if (f.fiche.options().sans_bord)
        w.move(w.screen()->availableGeometry().center() - w.rect().center());
    else if (!f.enfant)
        reprend_sa_place(w);
    if (f.enfant)
        f.enfants->place(*f.enfant);
    w.show();
    if (f.enfant) {
        avance(f);
        donne_le_focus(f);
    }
}

} // namespace

std::unique_ptr<fenetre> cree_fenetre(panneau& p, zone* z) {
    auto f = std::make_unique<fenetre>(p);
    f->enfants = z;
    f->cadre = p.options().principal ? principal(*f) : p.options().sans_bord ? accueil(*f) : enfant(*f, *z);
    f->cadre->setObjectName(affiche(p.nom()));
    f->cadre->setAccessibleName(f->cadre->objectName());
    return f;
}

void accorde_fenetre(fenetre& f) {
    auto& w = *f.cadre;
    w.setWindowTitle(affiche(f.fiche.regarde_legende()));
    if (f.fiche.est_visible()) {
        if (w.isHidden())
            montre(f);
        else
            accorde_taille(f);
    } else if (!f.enfant) {
        w.hide();
    } else if (!w.isHidden()) {
        f.enfants->cache(*f.enfant);
    }
}

void avance(fenetre& f) {
    f.cadre->raise();
    if (!f.enfant)
        return f.cadre->activateWindow();
    f.enfants->ramene(*f.enfant);
    f.enfants->setActiveSubWindow(f.enfant);
}

void peint(fenetre& f) {
    const QDeadlineTimer patience{200};
    if (f.cadre->isWindow())
        while (!f.cadre->windowHandle()->isExposed() && !patience.hasExpired())
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 5);
    f.cadre->repaint();
}

} // namespace plateforme::qt
