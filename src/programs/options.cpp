#include "programs/options.h"

#include <algorithm>
#include <cstdio>

namespace options {

namespace {

constexpr const char* retrait = "  ";

std::string appel(const option& o) { return o.valeur.empty() ? o.nom : o.nom + " " + o.valeur; }

void aide(const programme& p, const std::vector<option>& toutes) {
    std::string s = "Usage : " + p.nom + " [OPTIONS]";
    if (!p.fichier.empty())
        s += " " + p.fichier;
    s += "\n" + p.role + "\n\n";
    std::size_t marge = p.fichier.size();
    for (const auto& o : toutes)
        marge = std::max(marge, appel(o).size());
    const auto ligne = [&](const std::string& quoi, const std::string& sens) {
        s += retrait + quoi + std::string(marge + 2 - quoi.size(), ' ') + sens + "\n";
    };
    if (!p.fichier.empty())
        ligne(p.fichier, p.sens_du_fichier);
    for (const auto& o : toutes)
        ligne(appel(o), o.aide);
    std::fputs(s.c_str(), stdout);
}

// The line's words, one after the other.
class lecteur {
  public:
    lecteur(const programme& p, int argc, const char* const* argv)
        : p_(p), toutes_(p.options), mots_(argv + std::min(argc, 1), argv + argc) {
        toutes_.push_back({"--help", "", "affiche cette aide", {}});
        toutes_.push_back({"--version", "", "affiche la version du programme", {}});
    }

    lecture lit() {
        while (!lue_.statut && suivant_ < mots_.size())
            mot(mots_[suivant_++]);
        if (!lue_.statut && !p_.fichier.empty() && lue_.fichier.empty())
            refuse("usage : " + p_.nom + " " + p_.fichier + " (" + p_.sens_du_fichier + ")");
        return lue_;
    }

  private:
    void refuse(const std::string& phrase) {
        std::fprintf(stderr, "%s\n", phrase.c_str());
        lue_.statut = 2;
    }

    void mot(const std::string& m) {
        if (m.size() < 2 || m[0] != '-') {
            nom_de_fichier(m);
            return;
        }
        const auto egal = std::min(m.find('='), m.size());
        const auto nom = m.substr(0, egal);
        const auto o = std::find_if(toutes_.begin(), toutes_.end(), [&](auto& x) { return x.nom == nom; });
        if (o == toutes_.end())
            refuse(p_.nom + " : option inconnue : " + nom + " (" + p_.nom + " --help les donne toutes)");
        else if (o->valeur.empty() && egal < m.size())
            refuse(p_.nom + " : l'option " + nom + " ne prend pas de valeur");
        else if (!o->valeur.empty() && egal == m.size() && suivant_ == mots_.size())
            refuse(p_.nom + " : il manque la valeur de l'option : " + appel(*o));
        else if (o->valeur.empty())
            prend(*o, {});
        else
            prend(*o, egal < m.size() ? m.substr(egal + 1) : mots_[suivant_++]);
    }

    void prend(const option& o, const std::string& valeur) {
        if (o.nom == "--help") {
            aide(p_, toutes_);
            lue_.statut = 0;
        } else if (o.nom == "--version") {
            std::printf("%s, version %s\n", p_.nom.c_str(), VELMORIA_VERSION);
            lue_.statut = 0;
        } else if (const auto faute = o.prend(valeur); !faute.empty())
            refuse(p_.nom + " : " + appel(o) + " : " + faute);
    }

    void nom_de_fichier(const std::string& m) {
        if (p_.fichier.empty() || !lue_.fichier.empty())
            refuse(p_.nom + " : mot de trop sur la ligne de commande : \"" + m + "\"");
        else
            lue_.fichier = m;
    }

    const programme& p_;
    std::vector<option> toutes_;
    std::vector<std::string> mots_;
    std::size_t suivant_ = 0;
    lecture lue_;
};

} // namespace

lecture lit(const programme& p, int argc, const char* const* argv) { return lecteur{p, argc, argv}.lit(); }

} // namespace options
