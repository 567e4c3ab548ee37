// Menus: the bar of the main frame, and popups. An entry with children may have a command of its own: a
// click or the Return key on it runs it, pointing at it only opens what hangs on it.
#pragma once

#include "machines/qt/inventaire.h"

#include <QMenu>

class QMenuBar;

namespace plateforme::qt {

/// Fills the bar with the panel's entries, popups excepted. The actions made go to `pieces`.
void remplit_barre(QMenuBar& barre, const shell::panneau& p, inventaire& pieces);

/// Opens an entry's children at the pointer and returns the one chosen when it has closed, or none.
shell::entree* ouvre_surgissant(shell::entree& racine, const shell::entree* defaut);

/// Closes every open popup, of menus and of drop-down lists.
void ferme_surgissants();

} // namespace plateforme::qt
