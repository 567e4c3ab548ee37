#include "catalogue/catalogue.h"

#include "base/nombre.h"
#include "base/valeurs.h"
#include "seam/plateforme.h"

#include <cmath>
#include <string_view>
#include <utility>

namespace catalogue {

using base::entier32;
using plateforme::fichier_donnees;

namespace {

using mot = std::pair<std::string_view, const char*>;

constexpr std::array<mot, 6> types = {{{"GL", "GALAXIE"},
                                       {"OC", "AMAS OUVERT"},
                                       {"GC", "AMAS GLOBULAIRE"},
                                       {"DN", "NEBULEUSE DIFFUSE"},
                                       {"PN", "NEBULEUSE PLANETAIRE"},
                                       {"ST", "GROUPE D'ETOILES"}}};

constexpr std::array<mot, 16> lettres = {{{"DELTA", "d"},
                                          {"UPSILON", "u"},
                                          {"MU", "m"},
                                          {"GAMMA", "g"},
                                          {"EPSILON", "e"},
                                          {"ETA", "h"},
                                          {"ZETA", "z"},
                                          {"PHI", "f"},
                                          {"RHO", "r"},
                                          {"KAPPA", "k"},
                                          {"TAU", "t"},
                                          {"THETA", "q"},
                                          {"IOTA", "i"},
                                          {"SIGMA", "s"},
                                          {"PI", "p"},
                                          {"CHI", "c"}}};

template <std::size_t N>
std::string cherche(const std::array<mot, N>& mots, std::string_view cle, const char* sinon) {
    for (const auto& [nom, valeur] : mots)
        if (nom == cle)
            return valeur;
    return sinon;
}

} // namespace

lecture::lecture(const std::string& fichier, std::size_t limite)
    : nom_(fichier), fichier_(fichier_donnees(fichier)), limite_(limite) {}

bool lecture::suivant(astre& a) {
    if (fichier_.fini())
        return false;
    if (lus_ == limite_)
        base::fatale(base::cause::indice, nom_ + ", objet " + std::to_string(limite_ + 1));
    ++lus_;
    a.nom = fichier_.texte_entre_guillemets();
    a.code = fichier_.texte_entre_guillemets();
    a.ad = fichier_.nombre();
    a.dec = fichier_.nombre();
    return true;
}

std::vector<astre> lit(const std::string& fichier, std::size_t limite) {
    std::vector<astre> astres;
    parcourt(fichier, limite, [&astres](std::size_t, astre& a) { astres.push_back(std::move(a)); });
    return astres;
}

std::vector<trait> lit_traits() {
    std::vector<trait> traits;
    valeurs::lecteur f{fichier_donnees("vconst.cat")};
    while (!f.fini()) {
        const entier32 de = f.nombre32();
        traits.push_back({de, f.nombre32()});
    }
    return traits;
}

std::string constellation(const std::string& code) {
    std::string trouve;
    valeurs::lecteur f{fichier_donnees("const.cat")};
    while (!f.fini()) {
        const auto lu = f.texte_entre_guillemets();
        auto nom = f.texte_entre_guillemets();
        if (lu == code)
            trouve = std::move(nom);
    }
    return trouve;
}

std::string nom_type(const std::string& code) { return cherche(types, code, ""); }

std::string lettregrecque(const std::string& nom) { return cherche(lettres, nom, " "); }

std::filesystem::path photographie(const std::string& nom) {
    return fichier_donnees("Objets/" + nom + ".jpg");
}

bool a_photographie(const std::string& nom) {
    std::error_code erreur;
    return std::filesystem::file_size(photographie(nom), erreur) != static_cast<std::uintmax_t>(-1);
}

partie partage(double coordonnee) {
    const double entiers = std::trunc(coordonnee / 600);
    return {entiers, (coordonnee - entiers * 600) / 10};
}

std::string texte_ad(const partie& p) {
    return base::texte_signe(p.entiers) + "h" + base::texte_signe(p.minutes) + "'";
}

std::string texte_dec(const partie& p) {
    return base::texte_signe(p.entiers) + "°" + base::texte_signe(p.minutes) + "'";
}

std::string texte_dec_objet(double dec) {
    auto p = partage(dec);
    if (p.entiers < 0)
        p.minutes = std::abs(p.minutes);
    return texte_dec(p);
}

std::string texte_dec_etoile(double dec) {
    auto p = partage(dec);
    if (p.entiers < 0) // in whole tenths, so that one decimal is shown
        p.minutes = (600 + (dec - p.entiers * 600)) / 10;
    return texte_dec(p);
}

} // namespace catalogue
