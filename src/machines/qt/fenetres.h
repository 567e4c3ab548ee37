// The windows of panels: the main frame with its bars, child windows, the splash.
#pragma once

#include "store/panneau.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <memory>
#include <vector>

namespace plateforme::qt {

/// A panel's window and what was made for its controls, by their rank; null where nothing is.
struct fenetre {
    fenetre() = default;
    ~fenetre() { delete cadre; }
    fenetre(const fenetre&) = delete;
    fenetre& operator=(const fenetre&) = delete;

    shell::panneau* fiche = nullptr;
    QPointer<QWidget> cadre; ///< the main frame takes its child windows with it
    std::vector<QObject*> pieces;
    QMdiArea* zone = nullptr; ///< of the main frame: where child windows live
    QSize demandee;           ///< the size last asked for by the program, where the observer may change it
};

/// Makes a panel's window, hidden. `zone` holds the child windows; the main frame, which makes it, and the
/// splash need none.
std::unique_ptr<fenetre> cree_fenetre(shell::panneau& p, QMdiArea* zone);

/// Caption, size, shown or hidden, as the store has them; all controls too when it comes on screen.
void accorde_fenetre(fenetre& f);

/// Brings a shown window to the front.
void avance(fenetre& f);

/// Paints it before it returns, on screen also where the window system maps windows in its own time.
void peint(fenetre& f);

} // namespace plateforme::qt
