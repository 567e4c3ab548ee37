#include "store/panneau.h"

#include "seam/plateforme.h"
#include "store/controles.h"
#include "store/vue.h"

#include <cstdio>
#include <cstdlib>

namespace shell {

namespace {
bool gel = false;
} // namespace

void gele() { gel = true; }
bool est_gele() { return gel; }

struct panneau::vie {
    std::vector<controle*> controles;
    std::function<void()> chargement;
    std::function<void()> dechargement;
    std::function<void()> remise;
    std::string legende;
    int largeur = 0;
    int hauteur = 0;
    bool charge = false;
    bool en_decharge = false;
    bool visible = false;
    bool maximise = false;
};

panneau::vie& panneau::v() const {
    if (!vie_) {
        std::fprintf(stderr, "velmoria : %s n'est pas dans le programme\n", nom_);
        std::abort();
    }
    return *vie_;
}

panneau::vie& panneau::acces() {
    charge();
    return v();
}

void panneau::construit(std::vector<controle*> controles) {
    gel = false;
    if (vie_)
        repond(vie_->remise);
    delete vie_;
    vie_ = new vie;
    vie_->controles = std::move(controles);
    int rang = 0;
    for (auto* c : vie_->controles)
        c->construit(rang++);
    revient_au_dessin();
}

void panneau::revient_au_dessin() {
    auto& x = v();
    for (auto* c : x.controles)
        c->revient_au_dessin();
    x.legende = legende_dessin_;
    x.largeur = largeur_dessin_;
    x.hauteur = hauteur_dessin_;
    x.charge = x.visible = x.maximise = false;
}

void panneau::au_chargement(std::function<void()> f) { v().chargement = std::move(f); }
void panneau::au_dechargement(std::function<void()> f) { v().dechargement = std::move(f); }
void panneau::remise_a_zero(std::function<void()> f) { v().remise = std::move(f); }

bool panneau::est_charge() const { return v().charge; }
bool panneau::est_visible() const { return v().visible; }
bool panneau::est_maximise() const { return v().maximise; }
const std::string& panneau::regarde_legende() const { return v().legende; }
int panneau::regarde_largeur() const { return v().largeur; }
int panneau::regarde_hauteur() const { return v().hauteur; }
const std::vector<controle*>& panneau::controles() const { return v().controles; }

void panneau::charge() {
    auto& x = v();
    if (x.charge)
        return;
    x.charge = true;
    vue_courante->panneau_change(*this);
    repond(x.chargement);
}

void panneau::montre() {
    auto& x = acces();
    if (x.visible) {
        vue_courante->eleve(*this);
        return;
    }
    x.visible = true;
    vue_courante->panneau_change(*this);
}

void panneau::cache() {
    auto& x = acces();
    x.visible = false;
    vue_courante->panneau_change(*this);
}

std::string panneau::legende() { return acces().legende; }

void panneau::legende(const std::string& texte) {
    acces().legende = texte;
    vue_courante->panneau_change(*this);
}

int panneau::largeur() { return acces().largeur; }
int panneau::hauteur() { return acces().hauteur; }

void panneau::largeur(int twips) {
    acces().largeur = twips;
    vue_courante->panneau_change(*this);
}

void panneau::hauteur(int twips) {
    acces().hauteur = twips;
    vue_courante->panneau_change(*this);
}

void panneau::maximise(bool oui) {
    acces().maximise = oui;
    vue_courante->panneau_change(*this);
}

void panneau::decharge() {
    auto& x = v();
    if (!x.charge || x.en_decharge)
        return;
    x.en_decharge = true;
    repond(x.dechargement);
    for (auto* c : x.controles)
        c->s_eteint();
    revient_au_dessin();
    repond(x.remise);
    x.en_decharge = false;
    vue_courante->panneau_change(*this);
}

void panneau::ferme() {
    if (gel || !v().charge)
        return;
    switch (options_.boite_de_fermeture) {
    case fermeture::decharge:
        decharge();
        return;
    case fermeture::cache:
        cache();
        return;
    case fermeture::aucune:
        return;
    case fermeture::termine:
        plateforme::termine(0);
    }
}

void panneau::touche_echap() {
    if (gel || !v().charge)
        return;
    for (auto* c : v().controles)
        if (c->a(style::echap))
            static_cast<cliquable*>(c)->clic();
}

} // namespace shell
