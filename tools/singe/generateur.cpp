#include "singe.h"

#include "base/nombre.h"
#include "chart/astres_carte.h"
#include "fields/frmCercle_champs.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmequapilot_champs.h"
#include "fields/frminterface_champs.h"
#include "frame/programme.h"
#include "seam/plateforme.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <random>
#include <sstream>

namespace singe {

using shell::genre;
using std::to_string;

namespace {

// Whether a person could act on it, without loading anything.
bool a_portee(const shell::controle& c) {
    for (const auto* k = &c; k; k = k->cadre())
        if (!k->regarde_visible() || !k->regarde_actif())
            return false;
    return true;
}

bool a_une_commande(const shell::controle& c) {
    const auto* k = dynamic_cast<const shell::cliquable*>(&c);
    return k && k->a_une_commande();
}

// What an act can be drawn for; an entry of a popup is reached through its popup only.
bool peut_agir(const shell::controle& c) {
    for (const auto* k = &c; k; k = k->cadre())
        if (k->a(shell::surgissant))
            return false;
    switch (c.espece()) {
    case genre::minuteur:
    case genre::progression:
    case genre::cadre:
    case genre::barre_outils:
    case genre::barre_etat:
        return false;
    default:
        return !c.a(shell::separateur);
    }
}

std::string nom_complet(const shell::controle& c) { return std::string{c.fiche().nom()} + "." + c.nom(); }

// How often it is drawn: what starts and stops motions often, what is only looked at seldom.
int poids(const shell::controle& c) {
    switch (c.espece()) {
    case genre::etiquette:
    case genre::image:
        return a_une_commande(c) ? 6 : 1;
    case genre::bouton:
    case genre::outil:
    case genre::liste:
        return 16;
    case genre::surface:
        return 80;
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
        if (!p.options().principal && (c->a(shell::arret) || c->espece() == genre::liste ||
                                       c->espece() == genre::minuteur || c->espece() == genre::surface))
            return 5;
    return 2;
}

bool suit() {
    return frmaltazsuivi::timcompteur.regarde_marche() || frmequapilot::timersuivi.regarde_marche();
}

class personne {
  public:
    personne(std::uint64_t graine, int actes) : tirage_(graine), reste_(actes) { prelude(); }

    std::string suivante(const shell::entree* popup) {
        if (popup)
            return choix(*popup);
        while (file_.empty() && reste_ > 0)
            acte_et_ordres();
        if (file_.empty())
            return {};
        const auto l = file_.front();
        file_.pop_front();
        return l;
    }

  private:
    std::mt19937_64 tirage_;
    int reste_;
    std::deque<std::string> file_; // lines decided and not yet given

    // ---- draws

    // From `bas` to `haut`, both included.
    int entre(int bas, int haut) {
        const auto etendue = static_cast<std::uint64_t>(std::int64_t{haut} - bas + 1);
        return static_cast<int>(bas + static_cast<std::int64_t>(tirage_() % etendue));
    }
    bool une_fois_sur(int n) { return entre(1, n) == 1; }
    template <class Table> const auto& parmi(const Table& t) {
        return *(std::begin(t) + entre(0, static_cast<int>(std::size(t)) - 1));
    }
    template <class T> const T& pese(const std::vector<const T*>& choix) {
        int total = 0;
        for (const auto* x : choix)
            total += poids(*x);
        int n = entre(1, total);
        for (const auto* x : choix)
            if ((n -= poids(*x)) <= 0)
                return *x;
        return *choix.back();
    }
    // Each order of magnitude as likely.
    std::string duree(double bas_ms, double haut_ms) {
        return base::texte(std::round(bas_ms * std::pow(haut_ms / bas_ms, entre(0, 1000) / 1000.0) * 1e6) /
                           1e6) +
               "ms";
    }
    std::string touche_raquette() {
        static constexpr int codes[] = {2, 3, 9, 10, 13, 15, 18, 19, 26, 137, 141, 143};
        return "raquette " + to_string(une_fois_sur(8) ? entre(0, 255) : parmi(codes));
    }
    std::string texte(bool plusieurs_lignes = false) {
        static const std::string bizarres[] = {
            "",      "abc",      "12abc",      "-",          "+",     ".",      "1e",    "1,5",
            "é€ñ",   "\xff\xc3", "nan",        "inf",        "0x10",  "1d5",    "Vrai",  "\"",
            "1 2 3", "-0",       "1e308",      "-1e308",     "1e309", "1e-320", "32767", "32768",
            "65535", "-32769",   "2147483647", "2147483648", "1e15",  "-1"};
        switch (entre(0, 15)) {
        case 0:
            return parmi(bizarres);
        case 1:
            if (plusieurs_lignes)
                return "|une ligne||une autre|";
            return une_fois_sur(40) ? std::string(5000, '9') : "0";
        case 2:
            return to_string(entre(-400, 400));
        case 3:
            return base::texte(entre(-90000, 90000) / 1000.0);
        case 4:
            return to_string(entre(0, 40000));
        default:
            return to_string(entre(0, 60));
        }
    }

    // ---- acts

    // Keys that the chart knows or not; presses near a star, near an object or anywhere.
    std::string sur_surface(const std::string& fiche) {
        if (une_fois_sur(4))
            return "touche " + fiche + " " + to_string(une_fois_sur(4) ? entre(27, 120) : entre(33, 46)) +
                   (une_fois_sur(4) ? " maj" : "") + (une_fois_sur(4) ? " ctrl" : "");
        const auto& astre = une_fois_sur(2) ? parmi(chart::astres.etoiles) : parmi(chart::astres.objets);
        const auto pres = [this](double centre) {
            return centre > 0 && centre < 9000 ? static_cast<int>(centre) + entre(-120, 120) : entre(0, 9150);
        };
        const int x = pres(astre.x);
        return "souris " + fiche + (une_fois_sur(3) ? " gauche " : " droit ") + to_string(x) + " " +
               to_string(pres(astre.y));
    }

    // The line to act on; -1 seldom.
    int ligne(const shell::controle& liste) {
        const auto derniere = static_cast<int>(liste.regarde_lignes().size()) - 1;
        if (derniere < 0 || une_fois_sur(60))
            return -1;
        return une_fois_sur(6) ? 0 : entre(0, derniere);
    }

    std::string acte_sur(const shell::controle& c) {
        const auto nom = " " + nom_complet(c);
        const auto avec = [&nom](const char* mot, int n) { return mot + nom + " " + to_string(n); };
        switch (c.espece()) {
        case genre::texte:
            return "saisit" + nom + " " + texte(c.a(shell::multiligne));
        case genre::liste:
        case genre::deroulante: {
            static constexpr const char* mots[] = {"choisit", "double", "double", "droit"};
            const bool deroulante = c.espece() == genre::deroulante;
            const int k = ligne(c);
            return k < 0 && (deroulante || !une_fois_sur(10)) ? std::string{}
                                                              : avec(deroulante ? mots[0] : parmi(mots), k);
        }
        case genre::barre:
        case genre::curseur: {
            static constexpr int loin[] = {-1, 1 << 30, -(1 << 30)};
            return avec("regle",
                        une_fois_sur(10) ? parmi(loin) : entre(c.comme_dessine().min, c.comme_dessine().max));
        }
        case genre::hautbas:
            return (une_fois_sur(2) ? "plus" : "moins") + nom;
        case genre::coche:
            return avec("coche", entre(0, 1));
        case genre::surface:
            return sur_surface(std::string{c.fiche().nom()});
        default: {
            const int n = entre(1, 20);
            return (n == 1 ? "enfonce" : n == 2 ? "relache" : "clic") + nom;
        }
        }
    }

    // An act on what is on screen; empty if the draw fell on nothing, or on what ends the program too often:
    // leaving, taking an object where none is selected, a year without almanac.
    std::string acte_sur_panneau() {
        std::vector<const shell::panneau*> montres;
        for (const auto* p : programme::registre().panneaux)
            if (p->est_visible())
                montres.push_back(p);
        if (montres.empty())
            return {};
        const auto& p = pese(montres);
        if (une_fois_sur(p.options().boite_de_fermeture == shell::fermeture::termine ? 4000 : 40))
            return "ferme " + std::string{p.nom()};
        std::vector<const shell::controle*> choix;
        for (const auto* c : p.controles())
            if (peut_agir(*c) && a_portee(*c))
                choix.push_back(c);
        if (choix.empty())
            return {};
        const auto& c = pese(choix);
        const bool mortel = c.nom() == "Quitter" || c.nom() == "cbannee" ||
                            (c.nom() == "cmdchoix" && frmconfig::lbObjets.regarde_position() < 0);
        return mortel && !une_fois_sur(30) ? std::string{} : acte_sur(c);
    }

    // What happens around the program.
    std::string decor() {
        const int n = entre(0, 5);
        if (n == 0)
            return touche_raquette();
        if (n == 1)
            return "raquette 11";
        return n > 2 ? std::string{}
                     : "horloge 200" + to_string(entre(0, 1)) + "-0" + to_string(entre(1, 9)) + "-28 2" +
                           to_string(entre(0, 3)) + ":59:5" + to_string(entre(0, 9));
    }

    std::string acte() {
        for (int essai = 0; essai < 20; ++essai)
            if (auto a = une_fois_sur(12) ? decor() : acte_sur_panneau(); !a.empty())
                return a;
        return "raquette 11";
    }

    // For a yield. A popup that is sure to open there finds its answer due at the same instant.
    void ordre() {
        --reste_;
        const auto quand = "a " + duree(0.01, 300) + " ";
        const auto a = acte();
        file_.push_back(quand + a);
        if (a.starts_with("souris ") && a.find(" droit ") != std::string::npos && une_fois_sur(3))
            file_.push_back(quand + choix(frmCercle::mnuName));
    }

    // Every motion must have what ends it: the stops on screen, that of the slew to come, the paddle
    // released.
    // A slew may be let go to its end.
    void arrets(bool pointage) {
        const double fois = pointage && une_fois_sur(2) ? 100 : 1;
        for (const auto& quand :
             {duree(fois > 1 ? 5000 : 0.01, 2000 * fois), duree(500 * fois, 4000 * fois)}) {
            for (const auto* p : programme::registre().panneaux)
                for (const auto* c : p->controles())
                    if (c->a(shell::arret) &&
                        (p->est_visible() || p->options().boite_de_fermeture == shell::fermeture::aucune))
                        file_.push_back("a " + quand + " clic " + nom_complet(*c));
            file_.push_back("a " + quand + " raquette 11");
        }
    }

    void acte_et_ordres() {
        --reste_;
        const bool raquette = frminterface::Timer.regarde_marche();
        const bool attend = une_fois_sur(raquette || suit() ? 2 : 8);
        if (attend && raquette)
            file_.push_back(touche_raquette());
        const auto a = attend ? "avance " + duree(1, 5000) : acte();
        if (attend || a.starts_with("clic ") || a.starts_with("d") || a.starts_with("souris ")) {
            if (une_fois_sur(2))
                for (int n = entre(1, suit() ? 12 : 4); n > 0; --n)
                    ordre();
            arrets(a.starts_with("double ") || a.starts_with("souris ") || a.ends_with(".bOK"));
        }
        file_.push_back(a);
    }

    // The answer to this popup: an entry that can be chosen, or none. The last is a slew or a picture.
    std::string choix(const shell::entree& racine) {
        std::vector<std::string> noms;
        for (const auto* c : racine.fiche().controles())
            for (const auto* k = c->cadre(); k; k = k->cadre())
                if (k == &racine && a_une_commande(*c) && a_portee(*c))
                    noms.push_back(c->nom());
        if (noms.empty() || une_fois_sur(8))
            return "menu -";
        return "menu " + (une_fois_sur(3) ? noms.back() : parmi(noms));
    }

    // A settings file with other values than those delivered, perhaps too few.
    std::string fichier_gate() {
        static constexpr const char* noms[] = {
            "backlash",    "config_altaz", "config_equa", "inversion",    "inversion_point", "pointagealtaz",
            "pointagequa", "suivialtaz",   "vitesseequa", "vitessealtaz", "vitessemanu"};
        auto l = std::string{"fichier "} + parmi(noms) + ".ini " + texte();
        for (int n = entre(0, 12); n > 0; --n)
            l += "|" + texte();
        return l;
    }

    // The usual ways into the work, so that most runs get to motions: clicks, or lines as they stand.
    void prelude() {
        static constexpr const char* debuts[] = {"", "barchoix(1);barequa(",
                                                 "barchoix(2);frmconfig.cmdinitcoord;baraltaz("};
        static constexpr const char* suites[][8] = {
            {""},
            {"2)", "3)", "3);frmequapilot.cmdgo", "4);frmequapointage.picpointage",
             "5);frmequaconfig.cmdbacklash",
             "4);double frmequapointage.lbEtoiles 7;choisit frmequapointage.lbCatalogue 0",
             "4);double frmequapointage.lbEtoiles 30;choisit frmequapointage.lbCatalogue 1",
             "4);double frmequapointage.lbEtoiles 9;frmequapointage.picpointage"},
            {"2)", "3)", "4)", "6);frmconfig.cmdbacklash", "6);frmconfig.cmdazencoding",
             "4);frmaltazpointage.cmdpointage_graph", "4);double frmaltazpointage.lbObjets 12",
             "6);choisit frmconfig.lbObjets 12;frmconfig.cmdchoix;baraltaz(5);frmaltazsuivi.cmdcalcul"}};
        file_.push_back("horloge 2001-0" + to_string(entre(1, 9)) + "-15 22:00:0" + to_string(entre(0, 9)));
        if (une_fois_sur(12))
            file_.push_back(fichier_gate());
        file_.emplace_back("demarre");
        const int mode = une_fois_sur(12) ? 0 : entre(1, 2);
        std::istringstream pas{debuts[mode] + std::string{mode == 0 ? "" : parmi(suites[mode])}};
        for (std::string p; std::getline(pas, p, ';');)
            file_.push_back(p.find(' ') != std::string::npos
                                ? p
                                : (p.starts_with("bar") ? "clic frminterface." : "clic ") + p);
    }
};

} // namespace

source generateur(std::uint64_t graine, int actes) {
    return [p = personne{graine, actes}](const shell::entree* popup) mutable { return p.suivante(popup); };
}

std::vector<std::string> a_toucher() {
    std::vector<std::string> noms;
    for (const auto* p : programme::registre().panneaux)
        for (const auto* c : p->controles()) {
            const bool dessin = c->espece() == genre::etiquette || c->espece() == genre::image;
            if (c->espece() == genre::surface)
                for (const char* mot : {" souris", " touche"})
                    noms.push_back(std::string{p->nom()} + mot);
            else if (a_une_commande(*c) || (peut_agir(*c) && !dessin))
                noms.push_back(nom_complet(*c));
        }
    return noms;
}

} // namespace singe
