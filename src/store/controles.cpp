#include "store/controles.h"

#include "base/fatale.h"
#include "store/vue.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace shell {

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
    neuf.marche = dessin_.marche;
    neuf.intervalle = dessin_.intervalle;
    neuf.place = place_;
    v().e = std::move(neuf);
    v().tenu = false;
}

void controle::absent() const {
    std::fprintf(stderr, "velmoria : %s.%s n'est pas dans le programme\n", fiche_->nom().data(), nom_);
    std::abort();
}

void controle::dit(aspect a) { vue_courante->controle_change(*this, a); }

void controle::refuse(const std::string& valeur, std::string_view origine) const {
    base::fatale(base::cause::propriete,
                 (origine.empty() ? "" : std::string{origine} + " : ") + lieu().nom() + " = " + valeur);
}

std::string controle::nom() const {
    std::string n{nom_};
    if (indice_ >= 0)
        n.append("(").append(std::to_string(indice_)).append(")");
    return n;
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

void champ_texte::saisit(const std::string& texte) {
    if (joignable())
        ecrit(texte);
}

// ---- what is clicked

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

void champ_bouton::agit() {
    enfonce(true);
    cliquable::agit();
    // The handler may have unloaded the panel: then the state is the design's already, and must not be loaded
    // anew.
    if (fiche().est_charge())
        enfonce(false);
}

void champ_coche::regle(bool oui) {
    if (joignable() && e().coche != oui)
        agit();
}

void champ_coche::agit() {
    coche(!coche());
    cliquable::agit();
}

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

void entree::ouvre(const entree* defaut) {
    acces();
    auto* choisie = vue_courante->ouvre_menu(*this, defaut);
    if (choisie && fiche().est_charge()) // not closed meanwhile
        choisie->clic();
}

// ---- lists

std::string selectionnable::ligne(int k) { return base::element(acces().lignes, k, nom_court()); }

void selectionnable::position(base::entier32 k, std::string_view origine) {
    const auto n = static_cast<std::int64_t>(acces().lignes.size());
    const std::int64_t p = k.valeur();
    if (p >= n || p < premiere())
        refuse(base::texte(k), origine);
    if (change(&etat::position, static_cast<int>(p), aspect::position))
        repond(r().clic);
}

void selectionnable::ajoute(const std::string& ligne) {
    acces().lignes.push_back(ligne);
    dit(aspect::lignes);
}

void selectionnable::ajoute(std::vector<std::string> lignes) {
    auto& l = acces().lignes;
    l.insert(l.end(), std::make_move_iterator(lignes.begin()), std::make_move_iterator(lignes.end()));
    dit(aspect::lignes);
}

void selectionnable::vide() {
    acces().lignes.clear();
    e().position = -1;
    dit(aspect::lignes);
}

// A line a person could point at, or none.
bool selectionnable::selectionne(int k) {
    if (!joignable() || k < premiere() || k >= static_cast<int>(e().lignes.size()))
        return false;
    change(&etat::position, k, aspect::position);
    return true;
}

void selectionnable::choisit(int k) {
    if (selectionne(k) && k >= 0)
        repond(r().clic);
}

// On another line than the one that stands, it is a choice of that line first: else what hangs on the line
// would stay with the old one.
void selectionnable::sur_la_ligne(int k, const std::function<void()>& reponse) {
    if (joignable() && e().position != k)
        choisit(k);
    if (selectionne(k))
        repond(reponse);
}

void selectionnable::double_clic(int k) { sur_la_ligne(k, r().double_clic); }
void selectionnable::droit(int k) { sur_la_ligne(k, r().droit); }

// ---- bars

bool reglable::place(base::entier32 n, std::string_view origine) {
    if (n < comme_dessine().min || n > comme_dessine().max)
        refuse(base::texte(n), origine);
    return change(&etat::valeur, n.reel(), aspect::valeur);
}

void reglable::valeur(base::entier32 n, std::string_view origine) {
    if (place(n, origine))
        repond(r().change);
}

void reglable::regle(int n) {
    if (joignable())
        valeur(std::clamp(n, comme_dessine().min, comme_dessine().max));
}

void champ_progression::valeur(double x) {
    if (!(x >= comme_dessine().min && x <= comme_dessine().max))
        refuse(std::to_string(x));
    change(&etat::valeur, x, aspect::valeur);
}

} // namespace shell
