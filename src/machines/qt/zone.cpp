#include "machines/qt/zone.h"

#include "machines/qt/nuit.h"
#include "machines/qt/preferences.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QMoveEvent>
#include <QToolBar>
#include <algorithm>
#include <limits>
#include <utility>

namespace plateforme::qt {

namespace {

Qt::WindowFlags traits_de(const shell::options_panneau& o) {
    Qt::WindowFlags t = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    if (o.boite_de_fermeture != shell::fermeture::aucune)
        t |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    return t;
}

qint64 surface_commune(const QRect& a, const QRect& b) {
    const auto c = a & b;
    return qint64{c.width()} * c.height();
}

} // namespace

// ---- a child window

sous_fenetre::sous_fenetre(shell::panneau& p) : QMdiSubWindow(nullptr, traits_de(p.options())), fiche_(p) {
    setSystemMenu(nullptr); // its entries would not be in French
    setContextMenuPolicy(Qt::PreventContextMenu);
}

// The store decides what a close box does: the widget itself never closes.
void sous_fenetre::closeEvent(QCloseEvent* e) {
    e->ignore();
    fiche_.ferme();
}

void sous_fenetre::resizeEvent(QResizeEvent* e) {
    QMdiSubWindow::resizeEvent(e);
    a_la_taille();
}

void sous_fenetre::mousePressEvent(QMouseEvent* e) {
    prise_ = pos();
    QMdiSubWindow::mousePressEvent(e);
}

void sous_fenetre::mouseReleaseEvent(QMouseEvent* e) {
    QMdiSubWindow::mouseReleaseEvent(e);
    if (pos() == prise_)
        return;
    deplacee = true;
    retient_place(objectName(), geometry());
}

QWidget* premier_arret_de_tab(QWidget& dans, bool suivant) {
    const auto apres = [suivant](const QWidget* w) {
        return suivant ? w->nextInFocusChain() : w->previousInFocusChain();
    };
    for (auto* w = apres(&dans); w != &dans; w = apres(w))
        if (dans.isAncestorOf(w) && w->isVisible() && w->isEnabled() && w->focusPolicy() & Qt::TabFocus)
            return w;
    return nullptr;
}

// The chain of the focus is a ring through all windows: gone round past this one itself, the key has passed
// the last control, and goes on to the toolbar.
bool sous_fenetre::focusNextPrevChild(bool suivant) {
    auto* const avant = QApplication::focusWidget();
    if (!avant || !QMdiSubWindow::focusNextPrevChild(suivant))
        return false;
    const auto* apres = QApplication::focusWidget();
    bool tour = avant == apres;
    for (const QWidget* w = avant; w != apres && !tour;
         w = suivant ? w->nextInFocusChain() : w->previousInFocusChain())
        tour = w == this;
    for (auto* barre : tour ? window()->findChildren<QToolBar*>() : QList<QToolBar*>{})
        if (auto* outil = barre->isVisible() ? premier_arret_de_tab(*barre, suivant) : nullptr)
            outil->setFocus(suivant ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

// ---- the area

zone::zone(QWidget* parent) : QMdiArea(parent) {
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setBackground(fond_de_la_zone());
}

std::vector<sous_fenetre*> zone::visibles(QMdiArea::WindowOrder ordre) const {
    std::vector<sous_fenetre*> v;
    for (auto* w : subWindowList(ordre))
        if (!w->isHidden())
            v.push_back(static_cast<sous_fenetre*>(w));
    return v;
}

// Scroll bars that go away once all lies inside take no room.
QSize zone::partie_visible() const {
    const auto toutes = visibles();
    const auto large = maximumViewportSize();
    const bool tient = std::all_of(toutes.begin(), toutes.end(), [large](const sous_fenetre* w) {
        return w->width() <= large.width() && w->height() <= large.height();
    });
    return tient ? large : viewport()->size();
}

void zone::ramene(sous_fenetre& w) {
    const auto reste = partie_visible() - w.size();
    w.move(std::clamp(w.x(), 0, std::max(0, reste.width())),
           std::clamp(w.y(), 0, std::max(0, reste.height())));
}

void zone::place(sous_fenetre& w) {
    if (const auto retenue = place_retenue(w.objectName()); retenue && !std::exchange(w.deplacee, true))
        w.move(retenue->topLeft());
    if (w.deplacee)
        return ramene(w);
    std::vector<QRect> autres;
    std::vector<QRect> arrets;
    std::vector<int> colonnes{0};
    std::vector<int> rangs{0};
    for (const auto* v : visibles()) {
        if (v == &w)
            continue;
        const auto g = v->geometry();
        autres.push_back(g);
        if (v->arret)
            arrets.emplace_back(v->arret->mapTo(viewport(), QPoint{}), v->arret->size());
        colonnes.insert(colonnes.end(), {g.right() + 1, g.left(), g.left() - w.width()});
        rangs.insert(rangs.end(), {g.bottom() + 1, g.top(), g.top() - w.height()});
    }
    constexpr qint64 poids_d_un_arret = 1000;
    auto moindre = std::numeric_limits<qint64>::max();
    QPoint choix;
    for (const int y : rangs)
        for (const int x : colonnes) {
            w.move(x, y);
            ramene(w);
            qint64 cout = 0;
            for (const auto& g : autres)
                cout += surface_commune(g, w.geometry());
            for (const auto& g : arrets)
                cout += surface_commune(g, w.geometry()) * poids_d_un_arret;
            if (cout < moindre) {
                moindre = cout;
                choix = w.pos();
            }
        }
    w.move(choix);
}

void zone::cache(sous_fenetre& w) {
    const bool active = activeSubWindow() == &w || !activeSubWindow();
    w.hide();
    QMoveEvent bouge{w.pos(), w.pos()};
    QCoreApplication::sendEvent(&w, &bouge); // a hidden window alone leaves the scroll bars as they are
    if (!active)
        return;
    sous_fenetre* suivante = nullptr;
    for (auto* v : visibles(ActivationHistoryOrder)) // the last one active comes last
        if (!suivante || v->arret || !suivante->arret)
            suivante = v;
    if (suivante)
        setActiveSubWindow(suivante);
}

void zone::resizeEvent(QResizeEvent* e) {
    QMdiArea::resizeEvent(e);
    if (std::exchange(taille_, size()) != size()) // not for a scroll bar that comes or goes
        for (auto* w : visibles())
            ramene(*w);
}

} // namespace plateforme::qt
