// The panel field store: panels are the program's data, and their fields hold it as an observer sees it.
//
// A panel is declared in its `*_champs.h`: one line a control, place in twips inside its frame, design
// values. Its behaviour is wired to it by `frame/programme.cpp`. Any access to a control, read or write,
// loads a panel that is not loaded, in the middle of whoever asked; unloading brings the design back.
//
// Two kinds of call stand on a control: those of code (`ecrit`, `position`, `valeur`...), which always act,
// and the acts of a user (`clic`, `saisit`, `choisit`...), which do nothing on what a person could not reach.
// Real windows, scenarios and tests share the acts.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace shell {

class controle;

/// Twips per pixel of a 96-pixel inch.
inline constexpr int twips_par_pixel = 15;

/// A place in twips, inside the frame or the panel.
struct boite {
    int x = 0;
    int y = 0;
    int l = 0;
    int h = 0;
    friend bool operator==(const boite&, const boite&) = default;
};

enum class genre {
    texte,
    etiquette,
    liste,
    deroulante,
    bouton,
    coche,
    option,
    barre,
    curseur,
    hautbas,
    progression,
    minuteur,
    image,
    entree,
    barre_outils,
    outil,
    barre_etat,
    cadre,
    surface,
};

/// Traits of a control that its kind does not tell.
enum style : unsigned {
    ordinaire = 0,
    arret = 1,        ///< a stop button: acts at the press
    echap = 2,        ///< and by Escape while its panel has the focus
    symbole = 4,      ///< its text is in the symbol font: 7 and 8 are arrows
    multiligne = 8,   ///< a text of several lines with a scroll bar
    centre = 16,      ///< its text stands in the middle
    gras = 32,        ///< bold
    surgissant = 64,  ///< a menu that opens as a popup, not in the menu bar
    separateur = 128, ///< a line in a menu
    sans_vide = 256,  ///< a list whose position cannot be -1
    fond = 512,       ///< lies behind the other controls
    aplat = 1024,     ///< a ground of its own
    traverse = 2048,  ///< the mouse goes through it to what lies behind
    copiable = 4096,  ///< a click copies its text
};

/// What a control is before anything has touched it.
struct dessin {
    const char* legende = "";    ///< caption, or text of a text field
    controle* cadre = nullptr;   ///< frame, toolbar or parent entry around it
    const char* image = "";      ///< name of its design picture
    int icone = 0;               ///< a toolbar button's place in the image list
    unsigned traits = ordinaire; ///< bits of `style`
    bool visible = true;
    bool actif = true;
    bool coche = false;
    int min = 0; ///< range of bars and sliders
    int max = 0;
    int valeur = 0;
    int petit = 1; ///< small and large step
    int grand = 1;
    int intervalle = 0;  ///< of a timer, milliseconds
    bool marche = false; ///< a timer that is on at design
};

/// What changed of a control.
enum class aspect { texte, lignes, position, valeur, coche, visible, actif, place, image, enfonce, dessin };

/// What a close box does.
enum class fermeture { decharge, cache, aucune, termine };

/// Stops every act and timer for good: after a failure nothing moves any more.
void gele();
bool est_gele();

/// What a panel's window is like; no part of its state.
struct options_panneau {
    fermeture boite_de_fermeture = fermeture::decharge;
    bool taille_fixe = true;
    bool principal = false; ///< the main frame; every other panel is a child of it
    bool sans_bord = false; ///< a splash: no title bar
};

class panneau {
  public:
    /// Outer size in twips.
    constexpr panneau(const char* nom, const char* legende, int largeur, int hauteur, options_panneau o = {})
        : nom_(nom), legende_dessin_(legende), largeur_dessin_(largeur), hauteur_dessin_(hauteur),
          options_(o) {}
    panneau(const panneau&) = delete;
    panneau& operator=(const panneau&) = delete;

    /// Takes the panel's controls into the store and brings it to its design state, unloaded. Called once by
    /// the program's composition (again by each test that builds the program anew).
    void construit(std::vector<controle*> controles);
    void au_chargement(std::function<void()> f);
    void au_dechargement(std::function<void()> f);
    /// Puts the panel's private variables back to design; runs at each unload, after its handler.
    void remise_a_zero(std::function<void()> f);

    // Looking, without loading.
    std::string_view nom() const { return nom_; }
    const options_panneau& options() const { return options_; }
    bool est_charge() const;
    bool est_visible() const;
    bool est_maximise() const;
    const std::string& regarde_legende() const;
    int regarde_largeur() const;
    int regarde_hauteur() const;
    const std::vector<controle*>& controles() const;

    // Accesses: each loads the panel first.
    void charge();
    void montre();
    void cache();
    std::string legende();
    void legende(const std::string& texte);
    int largeur();
    int hauteur();
    void largeur(int twips);
    void hauteur(int twips);
    void maximise(bool oui);

    /// Runs the unload handler, then brings the controls, their timers and the private variables back to
    /// design. Nothing if it is not loaded; a handler that is still running goes on.
    void decharge();

    // Acts of a user.
    void ferme();        ///< the close box
    void touche_echap(); ///< Escape: the stop button that answers to it

  private:
    struct vie; // the live state, made by `construit`, so that a declaration needs no code before main
    vie& v() const;
    vie& acces();
    void revient_au_dessin();

    const char* nom_;
    const char* legende_dessin_;
    int largeur_dessin_;
    int hauteur_dessin_;
    options_panneau options_;
    vie* vie_ = nullptr;
};

} // namespace shell
