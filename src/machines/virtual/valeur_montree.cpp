#include "machines/virtual/valeur_montree.h"

#include "machines/virtual/vue_scenario.h"

#include <utility>

namespace plateforme {

using shell::controle;
using shell::genre;

namespace {

std::string oui_non(bool b) { return b ? "1" : "0"; }

std::pair<std::string_view, std::string_view> coupe(std::string_view s) {
    const auto point = s.find('.');
    return point == std::string_view::npos ? std::pair{s, std::string_view{}}
                                           : std::pair{s.substr(0, point), s.substr(point + 1)};
}

std::optional<std::string> de_panneau(const shell::panneau& p, std::string_view propriete) {
    if (propriete == "charge")
        return oui_non(p.est_charge());
    if (propriete == "visible")
        return oui_non(p.est_visible());
    if (propriete == "legende")
        return p.regarde_legende();
    if (propriete == "largeur")
        return std::to_string(p.regarde_largeur());
    if (propriete == "hauteur")
        return std::to_string(p.regarde_hauteur());
    return std::nullopt;
}

bool est_liste(const controle& c) { return c.espece() == genre::liste || c.espece() == genre::deroulante; }

std::string texte_de(const controle& c) {
    if (!est_liste(c))
        return sur_une_ligne(c.regarde().texte);
    const int k = c.regarde().position;
    return k < 0 ? "" : c.regarde().lignes[static_cast<std::size_t>(k)];
}

std::optional<std::string> de_nature(const controle& c) {
    switch (c.espece()) {
    case genre::texte:
    case genre::etiquette:
    case genre::bouton:
    case genre::cadre:
    case genre::entree:
    case genre::outil:
    case genre::barre_etat:
        return texte_de(c);
    case genre::liste:
    case genre::deroulante:
        return std::to_string(c.regarde().position);
    case genre::coche:
    case genre::option:
        return oui_non(c.regarde().coche);
    case genre::barre:
    case genre::curseur:
    case genre::progression:
        return base::texte(c.regarde().valeur);
    case genre::minuteur:
        return oui_non(c.regarde().marche);
    case genre::barre_outils:
        return oui_non(c.regarde().visible);
    case genre::hautbas:
    case genre::image:
    case genre::surface:
        return std::nullopt;
    }
    return std::nullopt;
}

std::optional<std::string> de_propriete(const controle& c, std::string_view propriete) {
    if (propriete.empty())
        return de_nature(c);
    if (propriete == "texte" || (propriete == "legende" && !est_liste(c)))
        return texte_de(c);
    if (propriete == "position" && est_liste(c))
        return std::to_string(c.regarde().position);
    if (propriete == "lignes" && est_liste(c))
        return std::to_string(c.regarde().lignes.size());
    if (propriete == "valeur")
        return base::texte(c.regarde().valeur);
    if (propriete == "coche")
        return oui_non(c.regarde().coche);
    if (propriete == "visible")
        return oui_non(c.regarde().visible);
    if (propriete == "actif")
        return oui_non(c.regarde().actif);
    if (propriete == "largeur")
        return std::to_string(c.regarde().place.l);
    if (propriete == "hauteur")
        return std::to_string(c.regarde().place.h);
    return std::nullopt;
}

} // namespace

controle* controle_nomme(const shell::registre& r, std::string_view nom) {
    const auto [panneau, reste] = coupe(nom);
    return r.trouve_controle(panneau, reste);
}

std::optional<std::string> valeur_de(const shell::registre& r, std::string_view nom) {
    const auto [tete, reste] = coupe(nom);
    const auto* p = r.trouve_panneau(tete);
    if (!p) {
        std::string v;
        return reste.empty() && r.lit_variable(nom, v) ? std::optional{v} : std::nullopt;
    }
    const auto [nom_controle, propriete] = coupe(reste);
    auto* c = r.trouve_controle(tete, nom_controle);
    if (!c)
        return propriete.empty() ? de_panneau(*p, nom_controle) : std::nullopt;
    c->fiche().charge();
    return de_propriete(*c, propriete);
}

} // namespace plateforme
