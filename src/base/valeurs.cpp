#include "base/valeurs.h"

#include "base/fichier.h"
#include "base/nombre.h"
#include "base/octets.h"

namespace valeurs {

namespace {

bool blanc(char c) { return c == ' ' || c == '\t'; }

std::string_view sans_blancs_a_la_fin(std::string_view t) {
    while (!t.empty() && blanc(t.back()))
        t.remove_suffix(1);
    return t;
}

// The length of the line end at a place: 2 for CR LF, 1 for a lone LF, 0 for none.
std::size_t fin_de_ligne(std::string_view t, std::size_t i) {
    if (t[i] == '\n')
        return 1;
    return t[i] == '\r' && i + 1 < t.size() && t[i + 1] == '\n' ? 2 : 0;
}

} // namespace

lecteur::lecteur(const std::filesystem::path& chemin, separateurs s)
    : nom_(chemin.string()), octets_(base::lit_fichier(chemin)), separateurs_(s) {}

void lecteur::compte(const char* quoi) {
    if (fini())
        base::fatale(base::cause::fin_de_fichier, nom_ + ", " + quoi + " " + std::to_string(lues_ + 1));
    ++lues_;
}

std::string_view lecteur::suivante() {
    compte("valeur");
    const std::string_view tout{octets_};
    const bool colonnes = separateurs_ == separateurs::virgule_ou_blanc;
    while (place_ < tout.size() && blanc(tout[place_]))
        ++place_;
    const std::size_t debut = place_;
    while (place_ < tout.size() && tout[place_] != ',' && fin_de_ligne(tout, place_) == 0 &&
           !(colonnes && blanc(tout[place_])))
        ++place_;
    const auto valeur = tout.substr(debut, place_ - debut);
    if (colonnes)
        while (place_ < tout.size() && blanc(tout[place_]))
            ++place_;
    if (place_ < tout.size()) {
        if (tout[place_] == ',')
            ++place_;
        else
            place_ += fin_de_ligne(tout, place_); // 0 in front of the next column
    }
    return sans_blancs_a_la_fin(valeur);
}

std::string lecteur::texte() { return base::de_1252(suivante()); }

std::string lecteur::texte_entre_guillemets() {
    const std::string_view tout{octets_};
    auto i = place_;
    while (i < tout.size() && blanc(tout[i]))
        ++i;
    if (i >= tout.size() || tout[i] != '"')
        return texte();
    const auto fin = std::min(tout.find('"', i + 1), tout.size());
    const auto valeur = tout.substr(i + 1, fin - i - 1);
    place_ = std::min(fin + 1, tout.size());
    if (fini())
        ++lues_;
    else
        suivante(); // what stands between the closing quote and the separator is dropped
    return base::de_1252(valeur);
}

std::string lecteur::champ() {
    const auto t = texte();
    return base::est_nombre(t) ? base::texte(base::nombre(t, nom_)) : t;
}

double lecteur::nombre() { return base::nombre(suivante(), nom_); }

bool lecteur::vrai() { return suivante() == "Vrai"; }

std::string lecteur::ligne() {
    compte("ligne");
    const std::string_view tout{octets_};
    const std::size_t debut = place_;
    while (place_ < tout.size() && fin_de_ligne(tout, place_) == 0)
        ++place_;
    const auto contenu = tout.substr(debut, place_ - debut);
    if (place_ < tout.size())
        place_ += fin_de_ligne(tout, place_);
    return base::de_1252(contenu);
}

void ecrivain::texte(std::string_view utf8) { octets_ += base::vers_1252(utf8) + "\r\n"; }
void ecrivain::nombre(double x) { octets_ += base::texte_signe(x) + " \r\n"; }
void ecrivain::booleen(base::booleen16 b) { texte(b ? "Vrai" : "Faux"); }

void ecrivain::enregistre(const std::filesystem::path& chemin) const { base::ecrit_fichier(chemin, octets_); }

} // namespace valeurs
