// A view paints what the store holds and keeps nothing that the store lacks. The store tells it of every
// change; it looks (`regarde`) without loading a panel, and hands the user's acts to the same controls.
#pragma once

#include "seam/image.h"
#include "store/panneau.h"

#include <filesystem>
#include <string>

namespace shell {

class entree;

/// The title of a message box.
enum class titre { programme, aucun };

class vue {
  public:
    virtual ~vue() = default;
    /// Loaded, unloaded, shown, hidden, sized, captioned, maximised: look at the panel.
    virtual void panneau_change(panneau& p) = 0;
    /// Shown while it was on screen already: bring it to the front.
    virtual void eleve(panneau& p) = 0;
    /// Paint it now, before anything else happens (the splash).
    virtual void repeint(panneau& p) = 0;
    virtual void controle_change(controle& c, aspect a) = 0;
    /// Opens a popup and returns when it has closed: the entry chosen, or none. Runs no command itself.
    virtual entree* ouvre_menu(entree& racine, const entree* defaut) = 0;
    /// A box with one OK button; returns when it was pressed. Its title is the program's name, or nothing.
    virtual void message(const std::string& texte, titre t = titre::programme) = 0;
    /// Loads a GIF or JPEG picture. A missing file or one that is neither is fatal, with its name.
    virtual plateforme::image charge_image(const std::filesystem::path& chemin) = 0;
};

/// The view in use, installed with the machine (`plateforme::courante`).
inline vue* vue_courante = nullptr;

} // namespace shell
