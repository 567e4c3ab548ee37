// The windows of panels: the main frame with its bars, child windows, the splash.
#pragma once

#include "machines/qt/inventaire.h"
#include "machines/qt/zone.h"

#include <QPointer>
#include <memory>

namespace plateforme::qt {

/// A panel's window and what was made for its controls.
struct fenetre {
    explicit fenetre(shell::panneau& p) : fiche(p), pieces(p) {}
    ~fenetre() { delete cadre; }
    fenetre(const fenetre&) = delete;
    fenetre& operator=(const fenetre&) = delete;

    shell::panneau& fiche;
    inventaire pieces;
    QPointer<QWidget> cadre;        ///< the main frame takes its child windows with it
    zone* enfants = nullptr;        ///< of the main frame: where child windows live
    sous_fenetre* enfant = nullptr; ///< `cadre`, where it is a child window
    QSize demandee;                 ///< the size last asked for by the program
};

/// Makes a panel's window, hidden. `z` holds the child windows; the main frame, which makes it, and the
/// splash need none.
std::unique_ptr<fenetre> cree_fenetre(shell::panneau& p, zone* z);

/// Caption, size, shown or hidden, as the store has them; all controls too when it comes on screen.
void accorde_fenetre(fenetre& f);

/// Brings a shown window to the front, and back into the visible part of the main frame.
void avance(fenetre& f);

/// Paints it before it returns, on screen also where the window system maps windows in its own time.
void peint(fenetre& f);

} // namespace plateforme::qt
