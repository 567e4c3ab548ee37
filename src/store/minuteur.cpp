#include "seam/plateforme.h"
#include "store/controles.h"

#include <algorithm>

namespace shell {

void minuteur::marche(bool oui) {
    auto& x = acces();
    if (x.marche == oui)
        return;
    x.marche = oui;
    v().en_retard = false;
    if (oui)
        plateforme::courante.boucle->arme(*this, x.intervalle);
    else
        plateforme::courante.boucle->desarme(*this);
}

void minuteur::intervalle(base::entier32 ms) {
    auto& x = acces();
    const int n = std::max(1, static_cast<int>(ms.valeur()));
    if (x.intervalle == n)
        return;
    x.intervalle = n;
    v().en_retard = false;
    if (x.marche)
        plateforme::courante.boucle->arme(*this, n);
}

void minuteur::s_eteint() {
    if (e().marche)
        plateforme::courante.boucle->desarme(*this);
    v().en_retard = false;
}

void minuteur::tic() {
    if (est_gele() || !e().marche)
        return;
    if (v().en_cours) {
        v().en_retard = true;
        return;
    }
    plateforme::courante.boucle->arme(*this, e().intervalle);
    v().en_cours = true;
    repond(r().tic);
    v().en_cours = false;
    if (std::exchange(v().en_retard, false) && e().marche)
        plateforme::courante.boucle->arme(*this, 0);
}

} // namespace shell
