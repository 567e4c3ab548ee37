// The live side of the store, for its own sources only.
#pragma once

#include "seam/plateforme.h"
#include "store/controles.h"

namespace shell {

struct controle::etat {
    std::string texte;
    std::vector<std::string> lignes;
    int position = -1;
    double valeur = 0;
    bool coche = false;
    bool visible = true;
    bool actif = true;
    bool enfonce = false;
    bool marche = false;
    int intervalle = 0;
    boite place;
    plateforme::image image;
    plateforme::toile toile;
};

struct controle::reponses {
    std::function<void()> clic;
    std::function<void()> double_clic;
    std::function<void()> droit;
    std::function<void()> appui;
    std::function<void()> relachement;
    std::function<void()> change;
    std::function<void()> plus;
    std::function<void()> moins;
    std::function<void(souris)> souris;
    std::function<void(touche)> touche;
};

struct controle::vie {
    etat e;
    reponses r;
    int rang = 0;
    bool tenu = false;      // mouse button held down on it
    bool en_cours = false;  // a timer's handler is on the stack
    bool en_retard = false; // and a tick came due meanwhile
};

inline controle::vie& controle::v() const { return *vie_; }
inline controle::etat& controle::e() const { return v().e; }
inline controle::reponses& controle::r() const { return v().r; }

inline controle::etat& controle::acces() {
    fiche_->charge();
    return e();
}

inline void controle::dit(plateforme::aspect a) const { plateforme::courante.vue->controle_change(*this, a); }

template <class T> bool controle::change(T etat::*membre, T valeur, plateforme::aspect a) {
    auto& place = acces().*membre;
    if (place == valeur)
        return false;
    place = std::move(valeur);
    dit(a);
    return true;
}

/// Runs a handler if one is wired.
template <class F, class... A> void repond(const F& f, A... a) {
    if (f)
        f(a...);
}

} // namespace shell
