#include "machines/qt/fenetres.h"

#include "machines/qt/accord.h"
#include "machines/qt/fabrique.h"
#include "machines/qt/images.h"
#include "machines/qt/menus.h"
#include "machines/qt/mesures.h"
#include "machines/qt/pieces.h"
#include "machines/qt/style.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QLabel>
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

// The store decides what a close box does: the widget itself never closes.
void demande_fermeture(QCloseEvent* e, panneau& p) {
    e->ignore();
    p.ferme();
}

class cadre_principal final : public QMainWindow {
  public:
    explicit cadre_principal(panneau& p) : fiche_(p) { setContextMenuPolicy(Qt::PreventContextMenu); }

  protected:
    void closeEvent(QCloseEvent* e) override { demande_fermeture(e, fiche_); }

  private:
    panneau& fiche_;
};

class sous_fenetre final : public QMdiSubWindow {
  public:
    sous_fenetre(panneau& p, Qt::WindowFlags traits) : QMdiSubWindow(nullptr, traits), fiche_(p) {
        setSystemMenu(nullptr); // its entries would not be in French
        setContextMenuPolicy(Qt::PreventContextMenu);
    }

  protected:
    void closeEvent(QCloseEvent* e) override { demande_fermeture(e, fiche_); }
    void keyPressEvent(QKeyEvent* e) override {
        if (e->key() == Qt::Key_Escape)
            fiche_.touche_echap();
        else
            QMdiSubWindow::keyPressEvent(e);
    }

  private:
    panneau& fiche_;
};

Qt::WindowFlags traits_de(const options_panneau& o) {
    Qt::WindowFlags t = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    if (o.boite_de_fermeture != fermeture::aucune)
        t |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    if (!o.taille_fixe)
        t |= Qt::WindowMaximizeButtonHint;
    return t;
}

void range(fenetre& f, const controle& c, QObject* piece) {
    f.pieces[static_cast<std::size_t>(c.rang())] = piece;
}

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
    if (!a_un_dessin(*f.fiche))
        return;
    for (const auto* c : f.fiche->controles())
        if (auto* piece = f.pieces[static_cast<std::size_t>(c->rang())];
            piece && piece->isWidgetType() && c->espece() != genre::surface)
            static_cast<QWidget*>(piece)->setFocusPolicy(Qt::NoFocus);
}

// A control's frame was declared before it, so its widget is there already.
void remplit(fenetre& f, QWidget* contenu) {
    for (auto* c : f.fiche->controles()) {
        auto* parent = c->cadre()
                           ? static_cast<QWidget*>(f.pieces[static_cast<std::size_t>(c->cadre()->rang())])
                           : contenu;
        if (c->espece() != genre::entree)
            range(f, *c, fabrique(*c, parent));
    }
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
    auto* action = barre.addAction(affiche(c.regarde_texte()));
    // Icons are read when their bar is first seen: at start most bars are hidden.
    QObject::connect(&barre, &QToolBar::visibilityChanged, action, [action, &c](bool visible) {
        if (visible && action->icon().isNull())
            action->setIcon(icone(c.comme_dessine().valeur));
    });
    auto* touche = barre.widgetForAction(action);
    new montre_bulle{c, touche};
    touche->setObjectName(affiche(c.nom()));
    touche->setAccessibleName(touche->objectName());
    QObject::connect(action, &QAction::triggered, action, [&c] { c.clic(); });
    return action;
}

QStatusBar* barre_etat(QMainWindow& w, const controle& c) {
    auto* barre = w.statusBar();
    barre->setObjectName(affiche(c.nom()));
    barre->setAccessibleName(barre->objectName());
    auto* panneau = new QLabel{barre};
    panneau->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    barre->addWidget(panneau, 1);
    return barre;
}

QWidget* principal(fenetre& f) {
    auto* w = new cadre_principal{*f.fiche};
    f.zone = new QMdiArea{w};
    f.zone->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    f.zone->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    f.zone->setBackground(fond_de_la_zone());
    w->setCentralWidget(f.zone);
    for (auto* c : f.fiche->controles()) {
        if (c->espece() == genre::barre_outils)
            range(f, *c, barre_outils(*w, *c));
        else if (c->espece() == genre::outil)
            range(f, *c,
                  outil(*static_cast<QToolBar*>(f.pieces[static_cast<std::size_t>(c->cadre()->rang())]),
                        static_cast<champ_outil&>(*c)));
        else if (c->espece() == genre::barre_etat)
            range(f, *c, barre_etat(*w, *c));
    }
    remplit_barre(*w->menuBar(), *f.fiche, f.pieces);
    return w;
}

QWidget* enfant(fenetre& f, QMdiArea& zone) {
    auto* w = new sous_fenetre{*f.fiche, traits_de(f.fiche->options())};
    auto* contenu = a_un_dessin(*f.fiche) ? new fond_noir{w} : new QWidget{w};
    w->setWidget(contenu);
    remplit(f, contenu);
    zone.addSubWindow(w);
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

// The stop first, where there is one; else the first control the tab key would reach.
void donne_le_focus(fenetre& f) {
    QWidget* premier = nullptr;
    for (const auto* c : f.fiche->controles()) {
        auto* piece = f.pieces[static_cast<std::size_t>(c->rang())];
        if (!piece || !piece->isWidgetType())
            continue;
        auto* w = static_cast<QWidget*>(piece);
        if (!(w->focusPolicy() & Qt::TabFocus) || !w->isEnabled() || w->isHidden())
            continue;
        if (!premier || c->a(echap))
            premier = w;
        if (c->a(echap))
            break;
    }
    if (premier)
        premier->setFocus(Qt::OtherFocusReason);
}

void accorde_taille(fenetre& f) {
    const QSize taille{pixels(f.fiche->regarde_largeur()), pixels(f.fiche->regarde_hauteur())};
    auto& w = *f.cadre;
    if (f.fiche->options().taille_fixe) {
        w.setFixedSize(taille);
        return;
    }
    if (f.fiche->est_maximise() != w.isMaximized())
        w.setWindowState(w.windowState() ^ Qt::WindowMaximized);
    // A size the observer gave it stays until the program asks for another.
    if (std::exchange(f.demandee, taille) != taille)
        w.resize(f.fiche->options().principal ? taille.boundedTo(w.screen()->availableSize()) : taille);
}

void montre(fenetre& f) {
    auto& w = *f.cadre;
    for (const auto* c : f.fiche->controles())
        if (auto* piece = f.pieces[static_cast<std::size_t>(c->rang())])
            accorde_tout(*c, piece);
    accorde_taille(f);
    if (f.fiche->options().sans_bord) {
        w.move(w.screen()->availableGeometry().center() - w.rect().center());
        w.show();
    } else if (f.fiche->options().principal) {
        w.show();
    } else {
        w.show();
        avance(f);
        donne_le_focus(f);
    }
}

} // namespace

std::unique_ptr<fenetre> cree_fenetre(panneau& p, QMdiArea* zone) {
    auto f = std::make_unique<fenetre>();
    f->fiche = &p;
    f->pieces.resize(p.controles().size());
    f->cadre = p.options().principal   ? principal(*f)
               : p.options().sans_bord ? accueil(*f)
                                       : enfant(*f, *zone);
    f->cadre->setObjectName(affiche(p.nom()));
    f->cadre->setAccessibleName(f->cadre->objectName());
    return f;
}

void accorde_fenetre(fenetre& f) {
    auto& w = *f.cadre;
    w.setWindowTitle(affiche(f.fiche->regarde_legende()));
    if (!f.fiche->est_visible())
        w.hide();
    else if (w.isHidden())
        montre(f);
    else
        accorde_taille(f);
}

void avance(fenetre& f) {
    f.cadre->raise();
    if (auto* sous = qobject_cast<QMdiSubWindow*>(f.cadre.data()))
        sous->mdiArea()->setActiveSubWindow(sous);
    else
        f.cadre->activateWindow();
}

void peint(fenetre& f) {
    const QDeadlineTimer patience{200};
    if (f.cadre->isWindow())
        while (!f.cadre->windowHandle()->isExposed() && !patience.hasExpired())
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 5);
    f.cadre->repaint();
}

} // namespace plateforme::qt
