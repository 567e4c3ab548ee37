// essais_singe GRAINE [ACTES]: a life of so many acts (1000) drawn at random from the live program, each line
// printed as it is played. Status 1, and a last line that says why, if a rule was broken; a crash speaks for
// itself.

#include "base/nombre.h"
#include "chart/astres_carte.h"
#include "drive/position.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmequapilot_champs.h"
#include "fields/frminterface_champs.h"
#include "frame/programme.h"
#include "machines/virtual/scenario.h"
#include "seam/plateforme.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <iostream>
#include <random>
#include <sstream>

namespace {

using shell::genre;
using std::to_string;

// ---- the watch

std::ostringstream sortie; // what the last line printed
int ecritures = 0;
bool quitter = false;            // an order to quit was given
bool suivi = false;              // tracking was on: its bursts and a jog may share a direction value
constexpr int assez = 1'000'000; // writes: a longer life proves no more

[[noreturn]] void finit(const std::string& faute) {
    std::cout << "# " << (faute.empty() ? "sans faute" : "faute : " + faute) << std::endl;
    std::_Exit(faute.empty() ? 0 : 1);
}

// A direction value of the delivered mount, alone or with one step line raised above it.
bool permise(unsigned v) {
    suivi = suivi || frmaltazsuivi::timcompteur.regarde().marche;
    return v <= 4 || v == 8 || v == 12 || (suivi && (v == 6 || v == 9));
}

void verifie_position() {
    if (!std::isfinite(general::posaz) || !std::isfinite(general::posalt))
        finit("position qui n'est pas un nombre");
}

struct port_espion final : plateforme::port {
    plateforme::port& vrai = *plateforme::courante.port;
    void ecrit(int adresse, std::uint8_t v) override {
        if (adresse == plateforme::registre_donnees ? !permise(v) : v != 1 && v != 11 && (v != 0 || !quitter))
            finit("octet interdit, " + to_string(adresse) + ":" + to_string(v));
        verifie_position();
        vrai.ecrit(adresse, v);
        if (++ecritures >= assez)
            finit("");
    }
    std::uint8_t lit(int adresse) override { return vrai.lit(adresse); }
};

// How a program with its delivered files may end: singular points of the formulas, numbers too large, nothing
// selected where a line is needed, a text beyond its bar's range, a year without almanac, settings saved from
// emptied fields.
constexpr const char* fins[] = {"division par zéro : ", "racine d'un nombre négatif : arc",
                                "dépassement de capacité : ", "sg0.txt (", "lbObjets(-1)", "mapfiltre(-1)",
                                "etoiles(-1)", "objets de la carte(-1)", "étoiles de la carte(-1)",
                                ".HScroll", "fin de fichier dépassée : data/",
                                // and an order's popup that did not open, or another one
                                "commande inconnue : \"menu\"", "le menu n'a pas"};

// ---- the person

bool a_portee(const shell::controle& c) {
    for (const auto* k = &c; k; k = k->cadre())
        if (!k->regarde().visible || !k->regarde().actif || k->a(shell::surgissant) ||
            k->a(shell::separateur))
            return false;
    return true;
}

// How often it is drawn: what starts and stops motions often, what is only looked at never.
std::size_t poids(genre g) {
    static constexpr genre muets[] = {genre::minuteur, genre::progression, genre::cadre, genre::barre_outils,
                                      genre::barre_etat};
    if (std::find(std::begin(muets), std::end(muets), g) != std::end(muets))
        return 0;
    return g == genre::surface ? 80 : g == genre::bouton || g == genre::outil || g == genre::liste ? 16 : 4;
}

class personne {
    std::mt19937_64 tirage_;
    int reste_;
    std::deque<std::string> file_; // lines decided and not yet given

    int entre(int bas, int haut) { // both included
        const auto etendue = static_cast<std::uint64_t>(std::int64_t{haut} - bas + 1);
        return static_cast<int>(bas + static_cast<std::int64_t>(tirage_() % etendue));
    }
    bool une_fois_sur(int n) { return entre(1, n) == 1; }
    template <class Table> const auto& parmi(const Table& t) {
        return *(std::begin(t) + entre(0, static_cast<int>(std::size(t)) - 1));
    }
    // One digit and its zeros: 10^bas to 9 x 10^haut ms.
    std::string duree(int bas, int haut) {
        return base::texte(entre(1, 9) * std::pow(10, entre(bas, haut))) + "ms";
    }
    std::string texte() {
        static const std::string bizarres[] = {"",       "12abc", "1e",    "1,5",   "\xff\xc3",
                                               "nan",    "\"",    "1e309", "|a||b", "-32769",
                                               "12.345", "-7",    "400",   "32767"};
        return une_fois_sur(8) ? parmi(bizarres) : to_string(entre(0, 60));
    }

  public:
    personne(std::uint64_t graine, int actes) : tirage_(graine), reste_(actes) {
        const auto mode = entre(1, 2);
        const auto barre = mode == 1 ? "equa(" : "altaz(";
        file_ = {"horloge 2001-0" + to_string(entre(1, 9)) + "-15 23:59:30", "demarre",
                 "clic frminterface.barchoix(" + to_string(mode) + ")",
                 "clic frminterface.bar" + (barre + to_string(entre(2, 5))) + ")"};
    }

    std::string suivante() {
        while (file_.empty() && reste_ > 0)
            acte_et_ordres();
        if (file_.empty())
            return {};
        auto l = file_.front();
        file_.pop_front();
        return l;
    }

    /// The answer to a popup that printed its entries: one that can be chosen, or none. The last is a slew or
    /// a picture.
    std::string choix(const std::string& menu) {
        std::vector<std::string> noms{"-"};
        std::istringstream lignes{menu};
        for (std::string l; std::getline(lignes, l);)
            if (l.starts_with("  ") && l.find(" actif=1") != std::string::npos)
                noms.push_back(l.substr(2, l.find(' ', 2) - 2));
        return "menu " + (une_fois_sur(3) ? noms.back() : parmi(noms));
    }

  private:
    // Keys that the chart knows or not; presses near a star, near an object or anywhere.
    std::string sur_surface() {
        static constexpr const char* avec[] = {"", " maj", " ctrl", " maj ctrl"};
        static constexpr const char* boutons[] = {" gauche ", " droit ", " droit "};
        if (une_fois_sur(4))
            return "touche frmCercle " + to_string(entre(27, une_fois_sur(4) ? 120 : 46)) + parmi(avec);
        const auto& astre = une_fois_sur(2) ? parmi(chart::astres.etoiles) : parmi(chart::astres.objets);
        const auto pres = [this](double x) {
            return to_string(x > 0 && x < 9000 ? static_cast<int>(x) + entre(-120, 120) : entre(0, 9150));
        };
        const auto x = pres(astre.x);
        return "souris frmCercle" + (parmi(boutons) + x) + " " + pres(astre.y);
    }

    std::string acte_sur(const shell::controle& c) {
        const auto nom = " " + std::string{c.fiche().nom()} + "." + c.nom();
        const auto lignes = static_cast<int>(c.regarde().lignes.size());
        static constexpr const char* sur_liste[] = {"choisit", "double", "double", "droit"};
        static constexpr const char* sur_bouton[] = {"enfonce", "relache", "clic", "clic", "clic", "clic"};
        switch (c.espece()) {
        case genre::texte: // but a direction value, or the port's rule would have to learn it
            return nom.ends_with("plus") || nom.ends_with("moins") ? "avance 1ms"
                                                                   : "saisit" + nom + " " + texte();
        case genre::liste:
        case genre::deroulante:
            return (c.espece() == genre::liste ? parmi(sur_liste) : "choisit") + nom + " " +
                   to_string(lignes == 0 ? -1 : entre(une_fois_sur(60) ? -1 : 0, lignes - 1));
        case genre::barre:
        case genre::curseur:
            return "regle" + nom + " " +
                   to_string(une_fois_sur(20) ? 1 << 30
                                              : entre(c.comme_dessine().min, c.comme_dessine().max));
        case genre::hautbas:
            return (une_fois_sur(2) ? "plus" : "moins") + nom;
        case genre::coche:
            return "coche" + nom + " " + to_string(entre(0, 1));
        case genre::surface:
            return sur_surface();
        default:
            return parmi(sur_bouton) + nom;
        }
    }

    // Seldom what happens around the program, else an act on what is on screen. What ends the program too
    // often is put off: leaving, an object where none may be selected, a year without almanac.
    std::string acte() {
        static constexpr int codes[] = {2, 3, 9, 10, 11, 13, 15, 18, 19, 26, 137, 141, 143};
        if (une_fois_sur(24))
            return "raquette " + to_string(une_fois_sur(8) ? entre(0, 255) : parmi(codes));
        std::vector<const shell::controle*> choix;
        for (const auto* p : programme::registre().panneaux) {
            if (!p->est_visible())
                continue;
            const bool principal = p->options().principal;
            if (une_fois_sur(principal ? 4000 : 120))
                return "ferme " + std::string{p->nom()};
            for (const auto* c : p->controles())
                if (a_portee(*c))
                    choix.insert(choix.end(), poids(c->espece()) / (principal ? 4 : 1), c);
        }
        if (choix.empty())
            return "avance 1ms";
        const auto& c = *parmi(choix);
        const bool mortel = c.nom() == "Quitter" || c.nom() == "cbannee" || c.nom() == "cmdchoix";
        return mortel && !une_fois_sur(10) ? "avance 1ms" : acte_sur(c);
    }

    // Every motion must have what ends it: the stops on screen, that of the slew to come, the paddle
    // released. A slew may be let go to its end.
    void arrets(int zeros) {
        for (const auto& quand : {duree(zeros, zeros + 2), duree(zeros + 2, zeros + 3)}) {
            for (const auto* p : programme::registre().panneaux)
                for (const auto* c : p->controles())
                    if (c->a(shell::arret) &&
                        (p->est_visible() || p->options().boite_de_fermeture == shell::fermeture::aucune))
                        file_.push_back("a " + quand + " clic " + std::string{p->nom()} + "." + c->nom());
            file_.push_back("a " + quand + " raquette 11");
        }
    }

    void acte_et_ordres() {
        const bool suit =
            frmaltazsuivi::timcompteur.regarde().marche || frmequapilot::timersuivi.regarde().marche;
        const bool attend = une_fois_sur(suit || frminterface::Timer.regarde().marche ? 2 : 8);
        const auto a = attend ? "avance " + duree(0, 3) : acte();
        int ordres = une_fois_sur(2) ? entre(1, suit ? 12 : 4) : 0; // for its yields
        reste_ -= ordres + 1;
        for (; ordres > 0; --ordres)
            file_.push_back("a " + duree(-2, 2) + " " + acte());
        if (attend || a.starts_with("clic") || a.starts_with("d") || a.starts_with("souris"))
            arrets(!attend && !a.starts_with("clic frm") && une_fois_sur(2) ? 2 : 0);
        file_.push_back(a);
    }
};

// Hands out the lines one by one, and looks at the program between them.
class souffleur final : public std::streambuf {
  public:
    souffleur(std::uint64_t graine, int actes) : qui_(graine, actes) {}

  protected:
    int_type underflow() override {
        if (ligne_.empty()) {
            static port_espion port;
            plateforme::courante.port = &port;
        }
        verifie_position();
        for (const auto* p : programme::registre().panneaux)
            if (p->est_visible() && !p->est_charge())
                finit("montré sans être chargé, " + std::string{p->nom()});
        const auto dit = sortie.str();
        sortie.str({});
        if (dit.ends_with("fin\n") || dit.find("fatale ") != std::string::npos)
            return traits_type::eof();
        const bool droit =
            ligne_.starts_with("droit") || (ligne_.starts_with("souris") && ligne_.find(" droit") < 40);
        const auto menu = droit ? dit.find("menu ") : std::string::npos;
        ligne_ = menu != std::string::npos ? qui_.choix(dit.substr(menu)) : qui_.suivante();
        quitter = quitter || ligne_.find("Quitter") != std::string::npos;
        std::cout << ligne_ << std::endl; // the last one named is the one that broke it
        if (ligne_.empty())
            return traits_type::eof();
        ligne_ += '\n';
        setg(ligne_.data(), ligne_.data(), ligne_.data() + ligne_.size());
        return traits_type::to_int_type(ligne_.front());
    }

  private:
    personne qui_;
    std::string ligne_;
};

} // namespace

int main(int argc, char** argv) {
    souffleur tampon{std::strtoull(argc > 1 ? argv[1] : "1", nullptr, 10),
                     argc > 2 ? std::atoi(argv[2]) : 1000};
    std::istream lignes{&tampon};
    std::ostringstream explications;
    const int statut =
        plateforme::joue({lignes, "singe", VELMORIA_DONNEES, VELMORIA_DONNEES, sortie, explications});
    const auto dit = explications.str();
    std::cout << "# statut " << statut << " " << dit;
    const bool permise =
        std::any_of(std::begin(fins), std::end(fins), [&dit](auto f) { return dit.find(f) < dit.size(); });
    finit(statut == 0 || permise ? "" : "fin que rien ne permet");
}
