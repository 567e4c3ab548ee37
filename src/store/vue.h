// A view paints what the store holds and keeps nothing that the store lacks. The store tells it of every
// change; it looks without loading a panel.
#pragma once

#include "seam/image.h"

#include <filesystem>
#include <string>

namespace shell {
class panneau;
class controle;
class entree;
} // namespace shell

namespace plateforme {

/// What changed of a control.
enum class aspect { texte, lignes, position, valeur, coche, visible, actif, place, image, enfonce, dessin };

class vue {
  public:
    virtual ~vue() = default;
    /// Loaded, unloaded, shown, hidden, sized, captioned, maximised: look at the panel.
    virtual void panneau_change(const shell::panneau& p) = 0;
    /// Shown while it was on screen already: bring it to the front.
    virtual void eleve(const shell::panneau& p) = 0;
    /// Paint it now, before anything else happens (the splash).
    virtual void repeint(const shell::panneau& p) = 0;
    virtual void controle_change(const shell::controle& c, aspect a) = 0;
    /// Opens a popup and returns when it has closed: the entry chosen, or none. Runs no command itself.
    virtual shell::entree* ouvre_menu(shell::entree& racine, const shell::entree* defaut) = 0;
    /// A box with one OK button; returns when it was pressed.
    virtual void message(const std::string& texte) = 0;
    /// Loads a GIF or JPEG picture. A missing file or one that is neither is fatal, with its name.
    virtual image charge_image(const std::filesystem::path& chemin) = 0;
};

} // namespace plateforme
