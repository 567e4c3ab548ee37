// The kinds of control a panel is made of. Each is a typed handle declared once, in its panel's `*_champs.h`.
#pragma once

#include "base/entier.h"
#include "base/nombre.h"
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

/// What every control has.
class controle {
  public:
    controle(const controle&) = delete;
    controle& operator=(const controle&) = delete;

    // Looking, without loading.
    genre espece() const { return genre_; }
    std::string_view nom_court() const { return nom_; }
    int indice() const { return indice_; }                             ///< place in its array, -1 outside one
    base::lieu lieu() const { return {fiche_->nom(), nom_, indice_}; } ///< for a failure's message
    std::string nom() const; ///< "tAZ(0)", as scenarios and widgets know it
    panneau& fiche() const { return *fiche_; }
    controle* cadre() const { return dessin_.cadre; }
    const dessin& comme_dessine() const { return dessin_; }
    bool a(style s) const { return (dessin_.traits & s) != 0; }
    int rang() const; ///< its number in the panel
    bool regarde_visible() const;
    bool regarde_actif() const;
    bool regarde_enfonce() const;
    bool regarde_coche() const;
    double regarde_valeur() const;
    int regarde_position() const;
    const std::string& regarde_texte() const; ///< caption or text
    const std::vector<std::string>& regarde_lignes() const;
    boite regarde_place() const;
    const plateforme::image& regarde_image() const;

    // Accesses.
    bool visible();
    void visible(bool oui);
    bool actif();
    void actif(bool oui);
    int largeur();
    int hauteur();
    void largeur(int twips);
    void hauteur(int twips);
    void deplace(int x, int y);

    /// Whether a person could act on it: nothing frozen, it and all around it visible and enabled. Loads the
    /// panel.
    bool joignable();

  protected:
    constexpr controle(genre g, panneau& p, const char* nom, boite place, dessin d, int indice)
        : genre_(g), fiche_(&p), nom_(nom), place_(place), dessin_(d), indice_(indice) {}

    struct etat;     // live values, back to design at each unload
    struct reponses; // what its events run, wired once
    struct vie;
    friend class panneau;
    vie& v() const;
    etat& acces(); ///< loads the panel
    etat& e() const;
    reponses& r() const;
    void dit(plateforme::aspect a) const;
    /// Sets a member and tells the view, if it differs.
    template <class T> bool change(T etat::*membre, T valeur, plateforme::aspect a);

  private:
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

/// A text field.
class champ_texte : public controle {
  public:
    constexpr champ_texte(panneau& p, const char* nom, boite place, dessin d = {}, int indice = -1)
        : controle(genre::texte, p, nom, place, d, indice) {}
    std::string lit();
    double nombre() { return base::nombre(lit(), lieu()); }
    /// Rounded with ties to the even number; what does not fit is fatal (`depassement`), with the field's
    /// name.
    base::entier16 nombre16() { return base::entier16{nombre(), lieu()}; }
    base::entier32 nombre32() { return base::entier32{nombre(), lieu()}; }
    void ecrit(const std::string& texte);
    void ecrit(double x) { ecrit(base::texte(x)); }
    void ecrit(base::entier16 n) { ecrit(base::texte(n)); }
    void ecrit(base::entier32 n) { ecrit(base::texte(n)); }
    void saisit(const std::string& texte); ///< a user typed it
};

/// Captions: of labels, buttons, frames, menu entries.
class legendable : public controle {
  public:
    std::string legende();
    void legende(const std::string& texte);

  protected:
    using controle::controle;
};

/// A caption that answers to a click, where something is wired to it.
class cliquable : public legendable {
  public:
    void au_clic(std::function<void()> f);
    void a_l_appui(std::function<void()> f);
    void au_relachement(std::function<void()> f);
    void clic();    ///< a user's whole click
    void appuie();  ///< mouse button down: stop buttons act here
    void relache(); ///< mouse button up: the others act here, if the panel has stayed loaded since
    bool a_une_commande() const;

  protected:
    using legendable::legendable;
    virtual void agit();
};

class champ_etiquette : public cliquable {
  public:
    constexpr champ_etiquette(panneau& p, const char* nom, boite place, dessin d = {}, int indice = -1)
        : cliquable(genre::etiquette, p, nom, place, d, indice) {}
};

class champ_bouton : public cliquable {
  public:
    constexpr champ_bouton(panneau& p, const char* nom, boite place, dessin d = {}, int indice = -1)
        : cliquable(genre::bouton, p, nom, place, d, indice) {}
    /// The pressed state, which reads True during a click's handler.
    bool enfonce();
    void enfonce(bool oui);

  protected:
    void agit() override;
};

class champ_coche : public cliquable {
  public:
    constexpr champ_coche(panneau& p, const char* nom, boite place, dessin d = {}, int indice = -1)
        : cliquable(genre::coche, p, nom, place, d, indice) {}
    bool coche();
    void coche(bool oui);
    void regle(bool oui); ///< a user ticks or clears it

  protected:
    void agit() override;
};

/// One of the options of its frame: setting it clears the others.
class champ_option : public cliquable {
  public:
    constexpr champ_option(panneau& p, const char* nom, boite place, dessin d = {}, int indice = -1)
        : cliquable(genre::option, p, nom, place, d, indice) {}
    bool coche();
    void coche(bool oui); ///< becoming set fires its click

  protected:
    void agit() override;

  private:
    bool pose(bool oui);
};

/// Picture field; serves as a drawn button too.
class champ_image : public cliquable {
  public:
    constexpr champ_image(panneau& p, const char* nom, boite place, dessin d = {}, int indice = -1)
        : cliquable(genre::image, p, nom, place, d, indice) {}
    void image(const plateforme::image& i);
};

class champ_cadre : public legendable {
  public:
    constexpr champ_cadre(panneau& p, const char* nom, boite place, dessin d = {}, int indice = -1)
        : legendable(genre::cadre, p, nom, place, d, indice) {}
};

/// A list, or a drop-down list. A position runs from -1, nothing selected, to the last line; any other is
/// fatal
/// (`propriete`). A change of position fires its click.
class champ_liste : public controle {
  public:
    constexpr champ_liste(panneau& p, const char* nom, boite place, dessin d = {}, int indice = -1)
        : champ_liste(genre::liste, p, nom, place, d, indice) {}
    int position();
    void position(base::entier32 k);
    std::string ligne(int k);
    void ajoute(const std::string& ligne);
    void ajoute(std::vector<std::string> lignes);
    void vide();
    void au_clic(std::function<void()> f);
    void au_double_clic(std::function<void()> f);
    void au_clic_droit(std::function<void()> f);
    void choisit(int k); ///< a user's click on a line; -1: on none
    void double_clic(int k);
    void droit(int k);

  protected:
    constexpr champ_liste(genre g, panneau& p, const char* nom, boite place, dessin d, int indice)
        : controle(g, p, nom, place, d, indice) {}

  private:
    bool selectionne(int k);
};

class champ_deroulante : public champ_liste {
  public:
    constexpr champ_deroulante(panneau& p, const char* nom, boite place, dessin d = {}, int indice = -1)
        : champ_liste(genre::deroulante, p, nom, place, d, indice) {}
};

/// A scroll bar or slider with whole values in its range; a value outside it is fatal (`propriete`). A value
/// that differs fires the change; one it already has fires nothing.
class champ_barre : public controle {
  public:
    constexpr champ_barre(panneau& p, const char* nom, boite place, dessin d = {}, int indice = -1)
        : champ_barre(genre::barre, p, nom, place, d, indice) {}
    base::entier32 valeur();
    void valeur(base::entier32 n);
    void place(base::entier32 n); ///< sets it without its event
    void au_changement(std::function<void()> f);
    void regle(int n); ///< a user moves it; beyond an end it stays there

  protected:
    constexpr champ_barre(genre g, panneau& p, const char* nom, boite place, dessin d, int indice)
        : controle(g, p, nom, place, d, indice) {}

  private:
    bool pose(base::entier32 n);
};

class champ_curseur : public champ_barre {
  public:
    constexpr champ_curseur(panneau& p, const char* nom, boite place, dessin d = {}, int indice = -1)
        : champ_barre(genre::curseur, p, nom, place, d, indice) {}
};

class champ_hautbas : public controle {
  public:
    constexpr champ_hautbas(panneau& p, const char* nom, boite place, dessin d = {}, int indice = -1)
        : controle(genre::hautbas, p, nom, place, d, indice) {}
    void au_plus(std::function<void()> f);
    void au_moins(std::function<void()> f);
    void plus();
    void moins();
};

/// A progress bar; a value outside its range is fatal (`propriete`).
class champ_progression : public controle {
  public:
    constexpr champ_progression(panneau& p, const char* nom, boite place, dessin d = {}, int indice = -1)
        : controle(genre::progression, p, nom, place, d, indice) {}
    double valeur();
    void valeur(double x);
};

/// A drawing surface with mouse and keys. It keeps what is drawn on it; the view paints it when it is told.
class champ_surface : public controle {
  public:
    constexpr champ_surface(panneau& p, const char* nom, boite place, dessin d = {}, int indice = -1)
        : controle(genre::surface, p, nom, place, d, indice) {}
    void a_la_souris(std::function<void(souris)> f);
    void a_la_touche(std::function<void(touche)> f);
    void presse(souris s);
    void frappe(touche t);
    /// What stands on it, to draw on. The reference holds until the panel is unloaded.
    plateforme::toile& toile();
    /// Has the view paint what was drawn.
    void peint();
    const plateforme::toile& regarde_toile() const;
};

/// A menu entry, of the menu bar or of a popup. One with children may have a command of its own.
class entree : public cliquable {
  public:
    constexpr entree(panneau& p, const char* nom, dessin d = {}, int indice = -1)
        : cliquable(genre::entree, p, nom, {}, d, indice) {}
    bool coche();
    void coche(bool oui);
    /// Opens it as a popup and returns when that has closed; the command chosen has run by then.
    void ouvre(const entree* defaut = nullptr);
};

class champ_barre_outils : public controle {
  public:
    constexpr champ_barre_outils(panneau& p, const char* nom, dessin d = {})
        : controle(genre::barre_outils, p, nom, {}, d, -1) {}
};

class champ_barre_etat : public legendable {
  public:
    constexpr champ_barre_etat(panneau& p, const char* nom, dessin d = {})
        : legendable(genre::barre_etat, p, nom, {}, d, -1) {}
};

/// A button of a toolbar; its index there counts from 1.
class champ_outil : public cliquable {
  public:
    constexpr champ_outil(panneau& p, const char* nom, dessin d, int indice)
        : cliquable(genre::outil, p, nom, {}, d, indice) {}
};

/// A system timer. Its tick is never re-entered: one that comes due while its handler is on the stack waits
/// until that has returned, an unload or not. The next tick is due one interval after the start of the last
/// one; those missed are dropped.
class minuteur : public controle {
  public:
    /// `d.intervalle` in milliseconds; `d.coche`: on at design.
    constexpr minuteur(panneau& p, const char* nom, dessin d)
        : controle(genre::minuteur, p, nom, {}, d, -1) {}
    bool marche();
    /// On what is on already, nothing changes.
    void marche(bool oui);
    /// Below 1 counts as 1; a new interval counts from its setting.
    void intervalle(base::entier32 ms);
    void au_tic(std::function<void()> f);
    bool regarde_marche() const;
    void tic(); ///< called by the event loop when it is due

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
