#include "machines/virtual/vue_scenario.h"

#include "base/fatale.h"
#include "base/fichier.h"
#include "seam/entete_image.h"
#include "store/controles.h"

#include <ostream>

namespace plateforme {

namespace {

// Runs through an entry's children in order, submenus in place.
template <class F> void parcourt(const shell::entree& racine, F&& f) {
    for (auto* c : racine.fiche().controles()) {
        if (c->espece() != shell::genre::entree || c->cadre() != &racine || !c->regarde().visible)
            continue;
        auto& e = *static_cast<shell::entree*>(c);
        f(e);
        parcourt(e, f);
    }
}

} // namespace

std::string sur_une_ligne(const std::string& texte) {
    std::string s;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        if (texte[i] == '\r' && i + 1 < texte.size() && texte[i + 1] == '\n')
            ++i;
        s += texte[i] == '\n' ? '|' : texte[i];
    }
    return s;
}

std::string texte_de(const primitive& p) {
    using forme = primitive::forme;
    const auto nombres = [](std::initializer_list<double> liste) {
        std::string s;
        for (const double x : liste)
            s += " " + base::texte(x);
        return s;
    };
    const auto teinte = [](couleur c) {
        return " " + std::to_string(c.r) + "," + std::to_string(c.v) + "," + std::to_string(c.b);
    };
    switch (p.quoi) {
    case forme::efface:
        return "efface";
    case forme::cercle:
        return "cercle" + nombres({p.x, p.y, p.rayon}) + teinte(p.contour) +
               (p.plein ? teinte(p.fond) : " -");
    case forme::ligne:
        return "ligne" + nombres({p.x, p.y, p.x2, p.y2}) + teinte(p.contour);
    case forme::texte:
        return "texte" + nombres({p.x, p.y}) + " " + p.texte;
    }
    return {};
}

void vue_scenario::controle_change(shell::controle& c, shell::aspect a) {
    if (a == shell::aspect::dessin)
        dessin_ = static_cast<const shell::champ_surface&>(c).regarde().toile.primitives();
}

vue_scenario::vue_scenario(std::ostream& sortie, std::function<std::string()> choix)
    : sortie_(sortie), choix_(std::move(choix)) {}

shell::entree* vue_scenario::ouvre_menu(shell::entree& racine, const shell::entree* defaut) {
    sortie_ << "menu " << racine.nom() << '\n';
    parcourt(racine, [&](shell::entree& e) {
        sortie_ << "  " << e.nom() << " \"" << e.regarde().texte << "\" coche=" << e.regarde().coche
                << " actif=" << e.regarde().actif << " defaut=" << (&e == defaut) << '\n';
    });
    const auto nom = choix_();
    if (nom == "-")
        return nullptr;
    shell::entree* choisie = nullptr;
    parcourt(racine, [&](shell::entree& e) {
        if (e.nom() == nom)
            choisie = &e;
    });
    if (!choisie)
        throw entree_inconnue{nom};
    return choisie;
}

void vue_scenario::message(const std::string& texte, shell::titre) {
    sortie_ << "message " << sur_une_ligne(texte) << '\n';
}

image vue_scenario::charge_image(const std::filesystem::path& chemin) {
    auto i = lit_entete(base::lit_fichier(chemin));
    if (!i)
        base::fatale(base::cause::image_illisible, chemin.string());
    i->numero = ++images_;
    return *i;
}

} // namespace plateforme
