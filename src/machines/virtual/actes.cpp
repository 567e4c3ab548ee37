#include "machines/virtual/actes.h"

#include "base/nombre.h"
#include "frame/programme.h"
#include "machines/virtual/mots.h"
#include "machines/virtual/valeur_montree.h"

namespace plateforme {

namespace {

shell::controle& controle_de(const std::string& nom) {
    auto* c = controle_nomme(programme::registre(), nom);
    if (!c)
        throw ligne_incomprise{"aucun contrôle ne porte ce nom : \"" + nom + "\""};
    return *c;
}

// The control as the kind a command needs.
template <class T> T& comme(const std::string& nom) {
    auto* c = dynamic_cast<T*>(&controle_de(nom));
    if (!c)
        throw ligne_incomprise{"la commande ne va pas à ce contrôle : \"" + nom + "\""};
    return *c;
}

shell::champ_surface& surface_de(const std::string& panneau) {
    if (const auto* p = programme::registre().trouve_panneau(panneau))
        for (auto* c : p->controles())
            if (c->espece() == shell::genre::surface)
                return static_cast<shell::champ_surface&>(*c);
    throw ligne_incomprise{"aucun panneau de ce nom n'a de dessin : \"" + panneau + "\""};
}

float coordonnee(const std::string& s) {
    constexpr double limite = 1e9; // twips: far beyond any window
    const double x = base::est_nombre(s) ? base::nombre(s, "souris") : 2 * limite;
    if (!(x >= -limite && x <= limite))
        throw ligne_incomprise{"une place en twips était attendue : \"" + s + "\""};
    return static_cast<float>(x);
}

bool agit_sur_controle(std::string_view mot, const std::string& reste) {
    const auto [nom, valeur] = premier_mot(reste);
    if (mot == "clic")
        comme<shell::cliquable>(nom).clic();
    else if (mot == "enfonce")
        comme<shell::cliquable>(nom).appuie();
    else if (mot == "relache")
        comme<shell::cliquable>(nom).relache();
    else if (mot == "saisit") {
        std::string texte;
        for (char c : valeur)
            texte += c == '|' ? std::string{"\r\n"} : std::string{c};
        comme<shell::champ_texte>(nom).saisit(texte);
    } else if (mot == "coche") {
        const bool oui = entier(valeur) != 0;
        if (controle_de(nom).espece() == shell::genre::option) {
            if (oui)
                comme<shell::champ_option>(nom).clic();
        } else
            comme<shell::champ_coche>(nom).regle(oui);
    } else if (mot == "regle")
        comme<shell::reglable>(nom).regle(entier(valeur));
    else if (mot == "plus")
        comme<shell::champ_hautbas>(nom).plus();
    else if (mot == "moins")
        comme<shell::champ_hautbas>(nom).moins();
    else if (mot == "ferme") {
        auto* p = programme::registre().trouve_panneau(nom);
        if (!p)
            throw ligne_incomprise{"aucun panneau ne porte ce nom : \"" + nom + "\""};
        p->ferme();
    } else
        return false;
    return true;
}

bool agit_sur_liste(std::string_view mot, const std::string& reste) {
    const auto [nom, valeur] = premier_mot(reste);
    if (mot == "choisit")
        comme<shell::selectionnable>(nom).choisit(entier(valeur));
    else if (mot == "double")
        comme<shell::selectionnable>(nom).double_clic(entier(valeur));
    else if (mot == "droit")
        comme<shell::selectionnable>(nom).droit(entier(valeur));
    else
        return false;
    return true;
}

// `souris PANNEAU gauche|droit X Y` and `touche PANNEAU CODE [maj] [ctrl]`.
bool agit_sur_surface(std::string_view mot, const std::string& reste) {
    if (mot != "souris" && mot != "touche")
        return false;
    const auto [nom, suite] = premier_mot(reste);
    auto [premier, options] = premier_mot(suite);
    auto& surface = surface_de(nom);
    if (mot == "souris") {
        if (premier != "gauche" && premier != "droit")
            throw ligne_incomprise{"gauche ou droit était attendu : \"" + premier + "\""};
        const auto [x, y] = premier_mot(options);
        surface.presse({premier == "droit" ? 2 : 1, coordonnee(x), coordonnee(y)});
        return true;
    }
    shell::touche t{entier(premier)};
    while (!options.empty()) {
        const auto [option, apres] = premier_mot(options);
        if (option != "maj" && option != "ctrl")
            throw ligne_incomprise{"maj ou ctrl était attendu : \"" + option + "\""};
        (option == "maj" ? t.maj : t.ctrl) = true;
        options = std::string{apres};
    }
    surface.frappe(t);
    return true;
}

} // namespace

bool agit(std::string_view mot, const std::string& reste) {
    return agit_sur_controle(mot, reste) || agit_sur_liste(mot, reste) || agit_sur_surface(mot, reste);
}

} // namespace plateforme
