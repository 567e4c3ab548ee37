#include "store/controles.h"

#include "base/fatale.h"
#include "store/etat.h"

#include <algorithm>

namespace shell {

using base::cause;
using base::fatale;
using plateforme::aspect;

// ---- every control

void controle::construit(int rang) {
    delete vie_;
    vie_ = new vie;
    vie_->rang = rang;
}

void controle::revient_au_dessin() {
    etat neuf;
    neuf.texte = dessin_.legende;
    neuf.valeur = dessin_.valeur;
    neuf.coche = dessin_.coche;
    neuf.visible = dessin_.visible;
    neuf.actif = dessin_.actif;
    neuf.marche = genre_ == genre::minuteur && dessin_.coche;
    neuf.intervalle = dessin_.intervalle;
    neuf.place = place_;
    v().e = std::move(neuf);
    v().tenu = false;
}

std::string controle::nom() const {
    std::string n{nom_};
    if (indice_ >= 0)
        n.append("(").append(std::to_string(indice_)).append(")");
    return n;
}

int controle::rang() const { return v().rang; }
bool controle::regarde_visible() const { return e().visible; }
bool controle::regarde_actif() const { return e().actif; }
bool controle::regarde_enfonce() const { return e().enfonce; }
bool controle::regarde_coche() const { return e().coche; }
double controle::regarde_valeur() const { return e().valeur; }
int controle::regarde_position() const { return e().position; }
const std::string& controle::regarde_texte() const { return e().texte; }
const std::vector<std::string>& controle::regarde_lignes() const { return e().lignes; }
boite controle::regarde_place() const { return e().place; }
const plateforme::image& controle::regarde_image() const { return e().image; }

bool controle::visible() { return acces().visible; }
void controle::visible(bool oui) { change(&etat::visible, oui, aspect::visible); }
bool controle::actif() { return acces().actif; }
void controle::actif(bool oui) { change(&etat::actif, oui, aspect::actif); }
int controle::largeur() { return acces().place.l; }
int controle::hauteur() { return acces().place.h; }

void controle::largeur(int twips) {
    auto p = acces().place;
    p.l = twips;
    change(&etat::place, p, aspect::place);
}

void controle::hauteur(int twips) {
    auto p = acces().place;
    p.h = twips;
    change(&etat::place, p, aspect::place);
}

void controle::deplace(int x, int y) {
    auto p = acces().place;
    p.x = x;
    p.y = y;
    change(&etat::place, p, aspect::place);
}

bool controle::joignable() {
    if (est_gele())
        return false;
    acces();
    for (const controle* c = this; c; c = c->cadre())
        if (!c->e().visible || !c->e().actif)
            return false;
    return true;
}

// ---- texts and captions

std::string champ_texte::lit() { return acces().texte; }
void champ_texte::ecrit(const std::string& texte) { change(&etat::texte, texte, aspect::texte); }

void champ_texte::saisit(const std::string& texte) {
    if (joignable())
        ecrit(texte);
}

std::string legendable::legende() { return acces().texte; }
void legendable::legende(const std::string& texte) { change(&etat::texte, texte, aspect::texte); }

// ---- what is clicked

void cliquable::au_clic(std::function<void()> f) { r().clic = std::move(f); }
void cliquable::a_l_appui(std::function<void()> f) { r().appui = std::move(f); }
void cliquable::au_relachement(std::function<void()> f) { r().relachement = std::move(f); }

void cliquable::agit() { repond(r().clic); }

void cliquable::clic() {
    appuie();
    relache();
}

void cliquable::appuie() {
    if (!joignable())
        return;
    v().tenu = true;
    repond(r().appui);
    if (a(style::arret))
        agit();
}

// A release belongs to its press: an unload between them lets go of the button, and nothing is loaded anew.
void cliquable::relache() {
    if (!v().tenu)
        return;
    if (joignable())
        repond(r().relachement);
    if (std::exchange(v().tenu, false) && joignable() && !a(style::arret))
        agit();
}

bool champ_bouton::enfonce() { return acces().enfonce; }
void champ_bouton::enfonce(bool oui) { change(&etat::enfonce, oui, aspect::enfonce); }

void champ_bouton::agit() {
    enfonce(true);
    cliquable::agit();
    // The handler may have unloaded the panel: then the state is the design's already, and must not be loaded
    // anew.
    if (fiche().est_charge())
        enfonce(false);
}

bool champ_coche::coche() { return acces().coche; }
void champ_coche::coche(bool oui) { change(&etat::coche, oui, aspect::coche); }

void champ_coche::regle(bool oui) {
    if (joignable() && e().coche != oui)
        agit();
}

void champ_coche::agit() {
    coche(!coche());
    cliquable::agit();
}

bool champ_option::coche() { return acces().coche; }

bool champ_option::pose(bool oui) {
    if (!change(&etat::coche, oui, aspect::coche))
        return false;
    if (oui)
        for (auto* autre : fiche().controles())
            if (autre != this && autre->espece() == genre::option && autre->cadre() == cadre())
                static_cast<champ_option*>(autre)->pose(false);
    return true;
}

void champ_option::coche(bool oui) {
    if (pose(oui) && oui)
        cliquable::agit();
}

void champ_option::agit() {
    pose(true);
    cliquable::agit();
}

void champ_image::image(const plateforme::image& i) { change(&etat::image, i, aspect::image); }

bool entree::coche() { return acces().coche; }
void entree::coche(bool oui) { change(&etat::coche, oui, aspect::coche); }
bool cliquable::a_une_commande() const { return r().clic || r().appui || r().relachement; }

void entree::ouvre(const entree* defaut) {
    acces();
    auto* choisie = plateforme::courante.vue->ouvre_menu(*this, defaut);
    if (choisie && fiche().est_charge()) // not closed meanwhile
        choisie->clic();
}

// ---- lists

int champ_liste::position() { return acces().position; }
std::string champ_liste::ligne(int k) { return base::element(acces().lignes, k, nom_court()); }

void champ_liste::position(base::entier32 k) {
    const auto n = static_cast<std::int64_t>(acces().lignes.size());
    const std::int64_t p = k.valeur();
    if (p >= n || p < (a(style::sans_vide) ? 0 : -1))
        fatale(cause::propriete, std::string{fiche().nom()} + "." + nom() + " = " + base::texte(k));
    if (change(&etat::position, static_cast<int>(p), aspect::position))
        repond(r().clic);
}

void champ_liste::ajoute(const std::string& ligne) {
    acces().lignes.push_back(ligne);
    dit(aspect::lignes);
}

void champ_liste::ajoute(std::vector<std::string> lignes) {
    auto& l = acces().lignes;
    l.insert(l.end(), std::make_move_iterator(lignes.begin()), std::make_move_iterator(lignes.end()));
    dit(aspect::lignes);
}

void champ_liste::vide() {
    acces().lignes.clear();
    e().position = -1;
    dit(aspect::lignes);
}

void champ_liste::au_clic(std::function<void()> f) { r().clic = std::move(f); }
void champ_liste::au_double_clic(std::function<void()> f) { r().double_clic = std::move(f); }
void champ_liste::au_clic_droit(std::function<void()> f) { r().droit = std::move(f); }

// A line a person could point at, or none.
bool champ_liste::selectionne(int k) {
    const int premiere = a(style::sans_vide) ? 0 : -1;
    if (!joignable() || k < premiere || k >= static_cast<int>(e().lignes.size()))
        return false;
    change(&etat::position, k, aspect::position);
    return true;
}

void champ_liste::choisit(int k) {
    if (selectionne(k) && k >= 0)
        repond(r().clic);
}

void champ_liste::double_clic(int k) {
    if (!joignable())
        return;
    if (e().position != k)
        choisit(k);
    if (selectionne(k))
        repond(r().double_clic);
}

void champ_liste::droit(int k) {
    if (!joignable())
        return;
    if (e().position != k)
        choisit(k); // else what hangs on the line would stay with the old one
    if (selectionne(k))
        repond(r().droit);
}

// ---- bars

base::entier32 champ_barre::valeur() { return base::entier32{acces().valeur}; }

bool champ_barre::pose(base::entier32 n) {
    const auto& d = comme_dessine();
    if (n < d.min || n > d.max)
        fatale(cause::propriete, std::string{fiche().nom()} + "." + nom() + " = " + base::texte(n));
    return change(&etat::valeur, n.reel(), aspect::valeur);
}

void champ_barre::valeur(base::entier32 n) {
    if (pose(n))
        repond(r().change);
}

void champ_barre::place(base::entier32 n) { pose(n); }
void champ_barre::au_changement(std::function<void()> f) { r().change = std::move(f); }

void champ_barre::regle(int n) {
    if (joignable())
        valeur(std::clamp(n, comme_dessine().min, comme_dessine().max));
}

void champ_hautbas::au_plus(std::function<void()> f) { r().plus = std::move(f); }
void champ_hautbas::au_moins(std::function<void()> f) { r().moins = std::move(f); }

void champ_hautbas::plus() {
    if (joignable())
        repond(r().plus);
}

void champ_hautbas::moins() {
    if (joignable())
        repond(r().moins);
}

double champ_progression::valeur() { return acces().valeur; }

void champ_progression::valeur(double x) {
    if (!(x >= comme_dessine().min && x <= comme_dessine().max))
        fatale(cause::propriete, std::string{fiche().nom()} + "." + nom());
    change(&etat::valeur, x, aspect::valeur);
}

// ---- drawing surfaces

void champ_surface::a_la_souris(std::function<void(souris)> f) { r().souris = std::move(f); }
void champ_surface::a_la_touche(std::function<void(touche)> f) { r().touche = std::move(f); }

void champ_surface::presse(souris s) {
    if (joignable())
        repond(r().souris, s);
}

void champ_surface::frappe(touche t) {
    if (joignable())
        repond(r().touche, t);
}

plateforme::toile& champ_surface::toile() { return acces().toile; }
void champ_surface::peint() { dit(aspect::dessin); }
const plateforme::toile& champ_surface::regarde_toile() const { return e().toile; }

} // namespace shell
