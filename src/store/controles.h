// The kinds of control a panel is made of. Each is a typed handle declared once, in its panel's `*_champs.h`.
#pragma once

#include "base/entier.h"
#include "base/nombre.h"
#include "seam/image.h"
#include "seam/rappel.h"
#include "seam/toile.h"
#include "store/panneau.h"

#include <array>
#include <cstddef>
#include <utility>

namespace shell {

/// Where a mouse press fell, in twips of the surface, and which button it was (2 is the right one).
struct souris {
    int bouton = 1;
    float x = 0;
    float y = 0;
};

/// A key by its code (arrows 37 to 40, Escape 27...), with the modifiers held.
struct touche {
    int code = 0;
    bool maj = false;
    bool ctrl = false;
};

/// Runs a handler if one is wired.
template <class... A> void repond(const std::function<void(A...)>& f, A... a) {
    if (f)
        f(a...);
}

/// What every control has.
class controle {
  public:
    controle(const controle&) = delete;
    controle& operator=(const controle&) = delete;

    /// Live values, back to design at each unload.
    struct etat {
        std::string texte; ///< caption or text
        std::vector<std::string> lignes;
        int position = -1;
        double valeur = 0;
        bool visible = true, actif = true, coche = false, enfonce = false;
        bool marche = false; ///< of a timer
        int intervalle = 0;  ///< milliseconds
        boite place;
        plateforme::image image;
        plateforme::toile toile;
    };

    // Looking, without loading.
    const etat& regarde() const { return v().e; }
    genre espece() const { return genre_; }
    std::string_view nom_court() const { return nom_; }
    int indice() const { return indice_; }                             ///< place in its array, -1 outside one
    base::lieu lieu() const { return {fiche_->nom(), nom_, indice_}; } ///< for a failure's message
    std::string nom() const; ///< "tAZ(0)", as scenarios and widgets know it
    panneau& fiche() const { return *fiche_; }
    controle* cadre() const { return dessin_.cadre; }
    const dessin& comme_dessine() const { return dessin_; }
    bool a(style s) const { return (dessin_.traits & s) != 0; }
    int rang() const { return v().rang; } ///< its number in the panel

    // Accesses.
    bool visible() { return acces().visible; }
    void visible(bool oui) { change(&etat::visible, oui, aspect::visible); }
    bool actif() { return acces().actif; }
    void actif(bool oui) { change(&etat::actif, oui, aspect::actif); }
    int largeur() { return acces().place.l; }
    int hauteur() { return acces().place.h; }
    void largeur(int twips) { occupe({acces().place.x, e().place.y, twips, e().place.h}); }
    void hauteur(int twips) { occupe({acces().place.x, e().place.y, e().place.l, twips}); }
    void deplace(int x, int y) { occupe({x, y, acces().place.l, e().place.h}); }

    /// Whether a person could act on it: nothing frozen, it and all around it visible and enabled. Loads the
    /// panel.
    bool joignable();

  protected:
    constexpr controle(genre g, panneau& p, const char* nom, boite place, dessin d, int indice)
        : genre_(g), fiche_(&p), nom_(nom), place_(place), dessin_(d), indice_(indice) {}

    /// What its events run, wired once.
    struct reponses {
        std::function<void()> clic, double_clic, droit, appui, relachement, change, plus, moins, tic;
        std::function<void(shell::souris)> souris;
        std::function<void(shell::touche)> touche;
    };
    struct vie {
        etat e;
        reponses r;
        int rang = 0;
        bool tenu = false;      // mouse button held down on it
        bool en_cours = false;  // a timer's handler is on the stack
        bool en_retard = false; // and a tick came due meanwhile
    };
    /// Ends the process for a control that its panel does not list.
    vie& v() const {
        if (!vie_) [[unlikely]]
            absent();
        return *vie_;
    }
    etat& e() const { return v().e; }
    reponses& r() const { return v().r; }
    etat& acces() { return fiche_->charge(), e(); } ///< loads the panel
    void dit(aspect a);                             ///< to the view
    /// Sets a member and tells the view, if it differs.
    template <class T> bool change(T etat::*membre, T valeur, aspect a) {
        auto& place = acces().*membre;
        if (place == valeur)
            return false;
        place = std::move(valeur);
        dit(a);
        return true;
    }
    void occupe(boite place) { change(&etat::place, place, aspect::place); }
    /// What an act of the user is wired to, if a person could do it.
    template <class... A> void agis(const std::function<void(A...)>& reponse, A... a) {
        if (joignable())
            repond(reponse, a...);
    }
    /// For a value that it cannot take: fatal (`propriete`), with its name.
    [[noreturn]] void refuse(const std::string& valeur, std::string_view origine = {}) const;

  private:
    friend class panneau;
    [[noreturn]] void absent() const;
    void construit(int rang);
    void revient_au_dessin();
    virtual void s_eteint() {} // a timer stops

    genre genre_;
    panneau* fiche_;
    const char* nom_;
    boite place_;
    dessin dessin_;
    int indice_;
    vie* vie_ = nullptr;
};

/// Menu entries, bars of the main frame and their buttons, and timers have no place of their own.
constexpr bool a_une_place(genre g) {
    return g != genre::entree && g != genre::barre_outils && g != genre::outil && g != genre::barre_etat &&
           g != genre::minuteur;
}

/// A control of one kind, which can do what `traits` can.
template <genre G, class traits> class de_genre : public traits {
  public:
    constexpr de_genre(panneau& p, const char* nom, boite place, dessin d = {},
                       int indice = -1) requires(a_une_place(G))
        : traits(G, p, nom, place, d, indice) {}
    constexpr de_genre(panneau& p, const char* nom, dessin d = {}, int indice = -1) requires(!a_une_place(G))
        : traits(G, p, nom, {}, d, indice) {}
};

// ---- what several kinds can do

/// Captions: of labels, buttons, frames, menu entries.
class legendable : public controle {
  public:
    std::string legende() { return acces().texte; }
    void legende(const std::string& texte) { change(&etat::texte, texte, aspect::texte); }

  protected:
    using controle::controle;
};

/// A caption that answers to a click, where something is wired to it.
class cliquable : public legendable {
  public:
    void au_clic(std::function<void()> f) { r().clic = std::move(f); }
    void a_l_appui(std::function<void()> f) { r().appui = std::move(f); }
    void au_relachement(std::function<void()> f) { r().relachement = std::move(f); }
    void clic();    ///< a user's whole click
    void appuie();  ///< mouse button down: stop buttons act here
    void relache(); ///< mouse button up: the others act here, if the panel has stayed loaded since
    bool a_une_commande() const { return r().clic || r().appui || r().relachement; }

  protected:
    using legendable::legendable;
    virtual void agit() { repond(r().clic); }
};

/// What is ticked.
class cochable : public cliquable {
  public:
    bool coche() { return acces().coche; }
    void coche(bool oui) { change(&etat::coche, oui, aspect::coche); }

  protected:
    using cliquable::cliquable;
};

/// Lines of which one is selected. A position runs from -1, none, to the last line; any other is fatal
/// (`propriete`). A change of position fires its click.
class selectionnable : public controle {
  public:
    int position() { return acces().position; }
    /// `origine`: the file that it comes from, for the message.
    void position(base::entier32 k, std::string_view origine = {});
    std::string ligne(int k);
    void ajoute(const std::string& ligne);
    void ajoute(std::vector<std::string> lignes);
    void vide();
    void au_clic(std::function<void()> f) { r().clic = std::move(f); }
    void au_double_clic(std::function<void()> f) { r().double_clic = std::move(f); }
    void au_clic_droit(std::function<void()> f) { r().droit = std::move(f); }
    void choisit(int k); ///< a user's click on a line; -1: on none
    void double_clic(int k);
    void droit(int k);

  protected:
    using controle::controle;

  private:
    int premiere() const { return a(style::sans_vide) ? 0 : -1; }
    bool selectionne(int k);
    void sur_la_ligne(int k, const std::function<void()>& reponse);
};

/// A whole value in a range; one outside it is fatal (`propriete`). A value that differs fires the change;
/// one it already has fires nothing.
class reglable : public controle {
  public:
    base::entier32 valeur() { return {acces().valeur, lieu()}; }
    /// `origine`: the file that the value comes from, for a failure's message.
    void valeur(base::entier32 n, std::string_view origine = {});
    bool place(base::entier32 n, std::string_view origine = {}); ///< sets it without its event; whether it differs
    void au_changement(std::function<void()> f) { r().change = std::move(f); }
    void regle(int n); ///< a user moves it; beyond an end it stays there

  protected:
    using controle::controle;
};

// ---- the kinds

using champ_etiquette = de_genre<genre::etiquette, cliquable>;
using champ_cadre = de_genre<genre::cadre, legendable>;
using champ_liste = de_genre<genre::liste, selectionnable>;
using champ_deroulante = de_genre<genre::deroulante, selectionnable>;
using champ_barre = de_genre<genre::barre, reglable>;
using champ_curseur = de_genre<genre::curseur, reglable>;
using champ_barre_outils = de_genre<genre::barre_outils, controle>;
using champ_barre_etat = de_genre<genre::barre_etat, legendable>;
using champ_outil = de_genre<genre::outil, cliquable>; ///< its index in its toolbar counts from 1

class champ_texte : public de_genre<genre::texte, controle> {
  public:
    using de_genre::de_genre;
    std::string lit() { return acces().texte; }
    double nombre() { return base::nombre(lit(), lieu()); }
    /// Rounded with ties to the even number; what does not fit is fatal (`depassement`), with the field's
    /// name.
    base::entier16 nombre16() { return base::entier16{nombre(), lieu()}; }
    base::entier32 nombre32() { return base::entier32{nombre(), lieu()}; }
    void ecrit(const std::string& texte) { change(&etat::texte, texte, aspect::texte); }
    void ecrit(double x) { ecrit(base::texte(base::fini(x, lieu()))); }
    void ecrit(base::entier16 n) { ecrit(base::texte(n)); }
    void ecrit(base::entier32 n) { ecrit(base::texte(n)); }
    void saisit(const std::string& texte); ///< a user typed it
};

class champ_bouton : public de_genre<genre::bouton, cliquable> {
  public:
    using de_genre::de_genre;
    /// The pressed state, which reads True during a click's handler.
    bool enfonce() { return acces().enfonce; }
    void enfonce(bool oui) { change(&etat::enfonce, oui, aspect::enfonce); }

  protected:
    void agit() override;
};

class champ_coche : public de_genre<genre::coche, cochable> {
  public:
    using de_genre::de_genre;
    void regle(bool oui); ///< a user ticks or clears it

  protected:
    void agit() override;
};

/// One of the options of its frame: setting it clears the others.
class champ_option : public de_genre<genre::option, cochable> {
  public:
    using cochable::coche;
    using de_genre::de_genre;
    void coche(bool oui); ///< becoming set fires its click

  protected:
    void agit() override;

  private:
    bool pose(bool oui);
};

/// Picture field; serves as a drawn button too.
class champ_image : public de_genre<genre::image, cliquable> {
  public:
    using de_genre::de_genre;
    void image(const plateforme::image& i) { change(&etat::image, i, aspect::image); }
};

class champ_hautbas : public de_genre<genre::hautbas, controle> {
  public:
    using de_genre::de_genre;
    void au_plus(std::function<void()> f) { r().plus = std::move(f); }
    void au_moins(std::function<void()> f) { r().moins = std::move(f); }
    void plus() { agis(r().plus); }
    void moins() { agis(r().moins); }
};

/// A progress bar; a value outside its range is fatal (`propriete`).
class champ_progression : public de_genre<genre::progression, controle> {
  public:
    using de_genre::de_genre;
    double valeur() { return acces().valeur; }
    void valeur(double x);
};

/// A drawing surface with mouse and keys. It keeps what is drawn on it; the view paints it when it is told.
class champ_surface : public de_genre<genre::surface, controle> {
  public:
    using de_genre::de_genre;
    void a_la_souris(std::function<void(souris)> f) { r().souris = std::move(f); }
    void a_la_touche(std::function<void(touche)> f) { r().touche = std::move(f); }
    void presse(souris s) { agis(r().souris, s); }
    void frappe(touche t) { agis(r().touche, t); }
    /// What stands on it, to draw on. The reference holds until the panel is unloaded.
    plateforme::toile& toile() { return acces().toile; }
    /// Has the view paint what was drawn.
    void peint() { dit(aspect::dessin); }
};

/// A menu entry, of the menu bar or of a popup. One with children may have a command of its own.
class entree : public de_genre<genre::entree, cochable> {
  public:
    using de_genre::de_genre;
    /// Opens it as a popup and returns when that has closed; the command chosen has run by then.
    void ouvre(const entree* defaut = nullptr);
};

/// A system timer. Its tick is never re-entered: one that comes due while its handler is on the stack waits
/// until that has returned, an unload or not. The next tick is due one interval after the start of the last
/// one; those missed are dropped.
class minuteur : public de_genre<genre::minuteur, controle>, public plateforme::rappel {
  public:
    using de_genre::de_genre;
    bool marche() { return acces().marche; }
    /// On what is on already, nothing changes.
    void marche(bool oui);
    /// Milliseconds; below 1 counts as 1; a new interval counts from its setting.
    void intervalle(base::entier32 ms);
    void au_tic(std::function<void()> f) { r().tic = std::move(f); }
    void tic() override; ///< called by the event loop when it is due

  private:
    void s_eteint() override;
};

/// N controls of one name, with indices from `premier`.
template <class T, std::size_t N> class tableau {
  public:
    constexpr tableau(panneau& p, const char* nom, const boite (&places)[N], dessin d = {}, int premier = 0)
        : tableau(p, nom, places, d, premier, std::make_index_sequence<N>{}) {}
    /// Toolbar buttons and others that have no place of their own.
    constexpr tableau(panneau& p, const char* nom, const dessin (&d)[N], int premier)
        : tableau(p, nom, d, premier, std::make_index_sequence<N>{}) {}

    T& operator()(int i) {
        return base::element(elements_, std::int64_t{i} - premier_, elements_[0].nom_court());
    }
    auto begin() { return elements_.begin(); }
    auto end() { return elements_.end(); }

  private:
    template <std::size_t... I>
    constexpr tableau(panneau& p, const char* nom, const boite (&places)[N], dessin d, int premier,
                      std::index_sequence<I...>)
        : premier_(premier), elements_{{T{p, nom, places[I], d, premier + static_cast<int>(I)}...}} {}
    template <std::size_t... I>
    constexpr tableau(panneau& p, const char* nom, const dessin (&d)[N], int premier,
                      std::index_sequence<I...>)
        : premier_(premier), elements_{{T{p, nom, d[I], premier + static_cast<int>(I)}...}} {}

    int premier_ = 0;
    std::array<T, N> elements_;
};

/// The controls of a panel in order, arrays and groups taken apart; a group lists its own. Their order is the
/// tab key's and, from back to front, the painter's.
template <class... C> std::vector<controle*> liste(C&... c) {
    std::vector<controle*> tous;
    const auto ajoute = [&tous](auto& un) {
        if constexpr (requires { un.begin(); })
            for (auto& element : un)
                tous.push_back(&element);
        else if constexpr (requires { un.controles(); })
            for (auto* element : un.controles())
                tous.push_back(element);
        else
            tous.push_back(&un);
    };
    (ajoute(c), ...);
    return tous;
}

} // namespace shell
