#include "generateur.h"

#include "base/nombre.h"
#include "platform/plateforme.h"
#include "shell/programme.h"

#include <algorithm>
#include <filesystem>
#include <vector>

namespace singe {

using shell::genre;

namespace {

// Whether a person could act on it, without loading anything.
bool a_portee(const shell::controle& c) {
    for (const auto* k = &c; k; k = k->cadre())
        if (!k->regarde_visible() || !k->regarde_actif())
            return false;
    return true;
}

// An entry of a popup is reached through its popup only.
bool dans_un_menu_surgissant(const shell::controle& c) {
    for (const auto* k = &c; k; k = k->cadre())
        if (k->a(shell::surgissant))
            return true;
    return false;
}

bool peut_agir(const shell::controle& c) {
    switch (c.espece()) {
    case genre::minuteur:
    case genre::progression:
    case genre::cadre:
    case genre::barre_outils:
    case genre::barre_etat:
        return false;
    case genre::entree:
        return !c.a(shell::separateur) && !dans_un_menu_surgissant(c);
    default:
        return true;
    }
}

std::string nom_complet(const shell::controle& c) { return std::string{c.fiche().nom()} + "." + c.nom(); }

std::vector<const shell::panneau*> panneaux_montres() {
    std::vector<const shell::panneau*> v;
    for (const auto* p : programme::registre().panneaux)
        if (p->est_visible())
            v.push_back(p);
    return v;
}

// How often it is drawn: what starts and stops motions often, what is only looked at seldom.
int poids(const shell::controle& c) {
    switch (c.espece()) {
    case genre::etiquette:
    case genre::image:
        return 1;
    case genre::bouton:
    case genre::outil:
    case genre::liste:
    case genre::surface:
        return 16;
    case genre::texte:
    case genre::deroulante:
        return 3;
    default:
        return 6;
    }
}

// A panel that can move the telescope draws more attention than a page of help.
int poids(const shell::panneau& p) {
    for (const auto* c : p.controles())
        if (c->a(shell::arret) || c->espece() == genre::liste || c->espece() == genre::minuteur)
            return 5;
    return 2;
}

template <class T> const T& pese(hasard& h, const std::vector<const T*>& choix) {
    int total = 0;
    for (const auto* x : choix)
        total += poids(*x);
    int n = h.entre(1, total);
    for (const auto* x : choix)
        if ((n -= poids(*x)) <= 0)
            return *x;
    return *choix.back();
}

} // namespace

std::string generateur::duree(double bas_ms, double haut_ms) {
    return base::texte(std::round(hasard_.ordre(bas_ms, haut_ms) * 1e6) / 1e6) + "ms";
}

std::string generateur::touche_raquette() {
    static constexpr int codes[] = {2, 3, 9, 10, 13, 15, 18, 19, 26, 137, 141, 143};
    return "raquette " +
           std::to_string(hasard_.une_fois_sur(8) ? hasard_.entre(0, 255) : hasard_.parmi(codes));
}

std::string generateur::texte(bool plusieurs_lignes) {
    static const std::string bizarres[] = {"",      "abc",    "12abc",      "-",          "+",     ".",
                                           "1e",    "1,5",    "é€ñ",        "\xff\xc3",   "nan",   "inf",
                                           "0x10",  "1d5",    "Vrai",       "\"",         "1 2 3", "-0",
                                           "1e308", "-1e308", "1e309",      "1e-320",     "32767", "32768",
                                           "65535", "-32769", "2147483647", "2147483648", "1e15",  "-1"};
    switch (hasard_.entre(0, 15)) {
    case 0:
        return hasard_.parmi(bizarres);
    case 1:
        if (plusieurs_lignes)
            return "|une ligne||une autre|";
        return hasard_.une_fois_sur(40) ? std::string(5000, '9') : "0";
    case 2:
        return std::to_string(hasard_.entre(-400, 400));
    case 3:
        return base::texte(hasard_.entre(-90000, 90000) / 1000.0);
    case 4:
        return std::to_string(hasard_.entre(0, 40000));
    default:
        return std::to_string(hasard_.entre(0, 60));
    }
}

std::string generateur::acte_sur(const shell::controle& c) {
    const auto nom = nom_complet(c);
    const auto avec = [&nom](const char* mot, int n) {
        return std::string{mot} + " " + nom + " " + std::to_string(n);
    };
    switch (c.espece()) {
    case genre::texte: {
        const auto t = texte(c.a(shell::multiligne));
        return "saisit " + nom + (t.empty() ? "" : " " + t);
    }
    case genre::liste:
    case genre::deroulante: {
        const auto derniere = static_cast<int>(c.regarde_lignes().size()) - 1;
        if (derniere < 0 && !hasard_.une_fois_sur(40))
            return {};
        const int k = derniere >= 0 && !hasard_.une_fois_sur(60) ? hasard_.entre(0, derniere) : -1;
        if (c.espece() == genre::deroulante)
            return k < 0 ? std::string{} : avec("choisit", k);
        static constexpr const char* mots[] = {"choisit", "double", "double", "droit"};
        return avec(hasard_.parmi(mots), k);
    }
    case genre::barre:
    case genre::curseur:
        return avec("regle", hasard_.une_fois_sur(10)
                                 ? hasard_.parmi(std::initializer_list<int>{-1, 1 << 30, -(1 << 30)})
                                 : hasard_.entre(c.comme_dessine().min, c.comme_dessine().max));
    case genre::hautbas:
        return (hasard_.une_fois_sur(2) ? "plus " : "moins ") + nom;
    case genre::coche:
        return avec("coche", hasard_.entre(0, 1));
    case genre::surface: {
        const auto fiche = std::string{c.fiche().nom()};
        if (hasard_.une_fois_sur(4))
            return "touche " + fiche + " " + std::to_string(hasard_.entre(27, 120)) +
                   (hasard_.une_fois_sur(4) ? " maj" : "") + (hasard_.une_fois_sur(4) ? " ctrl" : "");
        return "souris " + fiche + (hasard_.une_fois_sur(2) ? " gauche " : " droit ") +
               std::to_string(hasard_.entre(-100, 12000)) + " " + std::to_string(hasard_.entre(-100, 12000));
    }
    default: {
        const int n = hasard_.entre(1, 20);
        return (n == 1 ? "enfonce " : n == 2 ? "relache " : "clic ") + nom;
    }
    }
}

// An act on what is on screen; empty if the draw fell on nothing.
std::string generateur::acte_sur_panneau() {
    const auto montres = panneaux_montres();
    if (montres.empty())
        return {};
    const auto& p = pese(hasard_, montres);
    if (hasard_.une_fois_sur(p.options().boite_de_fermeture == shell::fermeture::termine ? 4000 : 40))
        return "ferme " + std::string{p.nom()};
    std::vector<const shell::controle*> choix;
    for (const auto* c : p.controles())
        if (peut_agir(*c) && a_portee(*c))
            choix.push_back(c);
    if (choix.empty())
        return {};
    const auto& c = pese(hasard_, choix);
    if (c.nom() == "Quitter" && !hasard_.une_fois_sur(60))
        return {};
    return acte_sur(c);
}

// What happens around the program.
std::string generateur::decor() {
    switch (hasard_.entre(0, 5)) {
    case 0:
        return touche_raquette();
    case 1:
        return "raquette 11";
    case 2:
        return hasard_.une_fois_sur(4)
                   ? "horloge 200" + std::to_string(hasard_.entre(0, 1)) + "-0" +
                         std::to_string(hasard_.entre(1, 9)) + "-28 2" + std::to_string(hasard_.entre(0, 3)) +
                         ":59:5" + std::to_string(hasard_.entre(0, 9))
                   : std::string{};
    default:
        return {};
    }
}

std::string generateur::acte() {
    for (int essai = 0; essai < 20; ++essai) {
        auto a = hasard_.une_fois_sur(12) ? decor() : acte_sur_panneau();
        if (!a.empty())
            return a;
    }
    return "raquette 11";
}

// Every motion must have what ends it: the stops on screen, that of the slew to come, and the paddle
// released.
void generateur::arrets() {
    const auto quand = duree(0.01, 2000);
    const auto apres = duree(500, 4000);
    for (const auto* p : programme::registre().panneaux)
        for (const auto* c : p->controles())
            if (c->a(shell::arret) &&
                (p->est_visible() || p->options().boite_de_fermeture == shell::fermeture::aucune)) {
                file_.push_back("a " + quand + " clic " + nom_complet(*c));
                file_.push_back("a " + apres + " clic " + nom_complet(*c));
            }
    file_.push_back("a " + quand + " raquette 11");
    file_.push_back("a " + apres + " raquette 11");
}

void generateur::acte_et_ordres() {
    --reste_;
    const bool attend = hasard_.une_fois_sur(8);
    const auto a = attend ? "avance " + duree(1, 5000) : acte();
    if (a.starts_with("clic ") || a.starts_with("double ") || a.starts_with("droit ") || attend) {
        if (hasard_.une_fois_sur(2))
            for (int n = hasard_.entre(1, 4); n > 0; --n) {
                const auto quand = "a " + duree(0.01, 300) + " ";
                file_.push_back(quand + acte());
                --reste_;
            }
        arrets();
    }
    file_.push_back(a);
}

// A settings file with other values than those delivered, perhaps too few.
std::string generateur::fichier_gate() {
    std::vector<std::string> noms;
    for (const auto& f : std::filesystem::directory_iterator{plateforme::courante.donnees})
        if (f.path().extension() == ".ini")
            noms.push_back(f.path().filename().string());
    std::sort(noms.begin(), noms.end());
    auto ligne = "fichier " + hasard_.parmi(noms) + " " + texte(false);
    for (int n = hasard_.entre(0, 12); n > 0; --n)
        ligne += "|" + texte(false);
    return ligne;
}

// The usual ways into the work, so that most runs get to motions.
void generateur::prelude() {
    commence_ = true;
    file_.push_back("horloge 2001-0" + std::to_string(hasard_.entre(1, 9)) + "-15 22:00:0" +
                    std::to_string(hasard_.entre(0, 9)));
    if (hasard_.une_fois_sur(12))
        file_.push_back(fichier_gate());
    file_.emplace_back("demarre");
    const int chemin = hasard_.entre(0, 9);
    if (chemin == 0)
        return;
    if (chemin <= 4) {
        file_.emplace_back("clic frminterface.barchoix(1)");
        file_.push_back("clic frminterface.barequa(" + std::to_string(hasard_.entre(2, 5)) + ")");
        return;
    }
    file_.emplace_back("clic frminterface.barchoix(2)");
    if (chemin <= 8) {
        file_.emplace_back("clic frminterface.baraltaz(6)");
        file_.emplace_back("clic frmconfig.cmdinitcoord");
        file_.push_back("choisit frmconfig.lbObjets " + std::to_string(hasard_.entre(0, 40)));
        file_.emplace_back("clic frmconfig.cmdchoix");
        if (chemin >= 7) {
            file_.emplace_back("clic frminterface.baraltaz(5)");
            file_.emplace_back("clic frmaltazsuivi.cmdcalcul");
        }
    }
    file_.push_back("clic frminterface.baraltaz(" + std::to_string(hasard_.entre(2, 5)) + ")");
}

// The answer to an open popup: one of the entries that can be chosen, or none.
std::string generateur::choix(const shell::entree& racine) {
    std::vector<std::string> noms;
    for (const auto* c : racine.fiche().controles())
        if (const auto* e = dynamic_cast<const shell::entree*>(c))
            for (const auto* k = c->cadre(); k; k = k->cadre())
                if (k == &racine && e->a_une_commande() && a_portee(*e))
                    noms.push_back(e->nom());
    return "menu " + (noms.empty() || hasard_.une_fois_sur(5) ? "-" : hasard_.parmi(noms));
}

std::string generateur::suivante(const shell::entree* popup) {
    if (popup)
        return choix(*popup);
    if (!commence_)
        prelude();
    while (file_.empty() && reste_ > 0)
        acte_et_ordres();
    if (file_.empty())
        return {};
    const auto l = file_.front();
    file_.pop_front();
    return l;
}

} // namespace singe
