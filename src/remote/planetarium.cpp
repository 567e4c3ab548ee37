#include "remote/planetarium.h"

#include "remote/notation.h"
#include "remote/telescope.h"
#include "sky/calendrier.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace planetarium {

namespace {

constexpr std::size_t longueur_maximum = 64;

std::string fini(const std::string& texte) { return texte + "#"; }

// ---- reads

std::string ascension(liaison& l, std::string_view) {
    const auto p = position(date_du_ciel());
    return p ? fini(ecrit_ad(p->ad, l.longue)) : "";
}
std::string declinaison(liaison& l, std::string_view) {
    const auto p = position(date_du_ciel());
    return p ? fini(ecrit_angle(p->dec, l.longue)) : "";
}
std::string hauteur(liaison& l, std::string_view) {
    const auto h = horizon();
    return h ? fini(ecrit_angle(h->alt, l.longue)) : "";
}
std::string azimut(liaison& l, std::string_view) {
    const auto h = horizon();
    return h ? fini(ecrit_azimut(h->az, l.longue)) : "";
}
std::string latitude(liaison&, std::string_view) {
    const auto s = lieu();
    return s ? fini(ecrit_angle(s->latitude, false)) : "";
}
std::string longitude(liaison&, std::string_view) {
    const auto s = lieu();
    return s ? fini(ecrit_longitude(s->longitude)) : "";
}

std::optional<plateforme::instant> heure_civile() {
    const auto t = maintenant();
    return t ? std::optional{plateforme::date_civile(t->tu, t->decalage)} : std::nullopt;
}
std::string date(liaison&, std::string_view) {
    const auto t = heure_civile();
    if (!t)
        return "";
    std::array<char, 48> s{};
    std::snprintf(s.data(), s.size(), "%02d/%02d/%02d#", t->mois, t->jour, t->annee % 100);
    return s.data();
}
std::string heure_locale(liaison&, std::string_view) {
    const auto t = heure_civile();
    return t ? fini(ecrit_heure(t->heure * 3600 + t->minute * 60 + t->seconde)) : "";
}
std::string heure_siderale(liaison&, std::string_view) {
    const auto t = temps_sideral();
    return t ? fini(ecrit_heure(*t)) : "";
}
// Hours to be added to local time to get the universal one.
std::string decalage(liaison&, std::string_view) {
    const auto t = maintenant();
    return t ? (t->decalage > 0 ? "-0" : "+0") + std::to_string(std::abs(t->decalage)) + "#" : "";
}
std::string chemin(liaison&, std::string_view) { return pointe() ? "|#" : "#"; }
std::string genre(liaison&, std::string_view) {
    switch (mode()) {
    case monture::equatoriale:
        return "P";
    case monture::altazimutale:
        return "A";
    case monture::aucune:
        break;
    }
    return "L"; // on land, as long as no mount has been chosen
}

// ---- targets and what is theirs

std::string oui_non(bool oui) { return oui ? "1" : "0"; }

std::string vise_ad(liaison& l, std::string_view texte) {
    const auto lu = lit_ad(texte);
    if (lu)
        l.ad = lu;
    return oui_non(lu.has_value());
}
std::string vise_dec(liaison& l, std::string_view texte) {
    const auto lu = lit_dec(texte);
    if (lu)
        l.dec = lu;
    return oui_non(lu.has_value());
}

std::string avec_la_cible(const liaison& l, std::string (*acte)(general::place)) {
    dernier_refus = l.ad && l.dec ? acte(general::vers_j2000({*l.ad, *l.dec}, date_du_ciel()))
                                  : "Aucune cible n'a été donnée.";
    return dernier_refus;
}
std::string va(liaison& l, std::string_view) {
    const auto refus = avec_la_cible(l, demande_pointage);
    return refus.empty() ? "0" : "1" + refus + "#";
}
std::string accorde(liaison& l, std::string_view) {
    const auto refus = avec_la_cible(l, aligne);
    return fini(refus.empty() ? "Coordinates     matched.        " : refus);
}

// ---- acts that the command set leaves without an answer

std::string muet(std::string refus) {
    dernier_refus = std::move(refus);
    return "";
}
template <cote c> std::string pousse(liaison& l, std::string_view) { return muet(demande_jog(l.qui(), c)); }
template <int classe> std::string vitesse(liaison&, std::string_view) { return muet(regle_vitesse(classe)); }
template <bool tout> std::string stoppe(liaison&, std::string_view) {
    arrete(tout);
    return "";
}
std::string change_precision(liaison& l, std::string_view) {
    l.longue = !l.longue;
    return "";
}

// ---- what is taken and forgotten

std::string prend(liaison&, std::string_view) { return "1"; }
std::string prend_date(liaison&, std::string_view) {
    return "1Updating Planetary Data#                                #";
}

template <char const* texte> std::string dit(liaison&, std::string_view) { return fini(texte); }
constexpr char nom[] = "Velmoria";
constexpr char version[] = "02.0";
constexpr char jour_de_version[] = "Nov 23 2026";
constexpr char heure_de_version[] = "00:00:00";

struct commande {
    std::string_view mot; // behind the colon
    std::string (*f)(liaison&, std::string_view);
    bool argument = false; // text follows the word
};
constexpr commande commandes[] = {
    {"GR", ascension},
    {"GD", declinaison},
    {"GA", hauteur},
    {"GZ", azimut},
    {"Gt", latitude},
    {"Gg", longitude},
    {"GC", date},
    {"GL", heure_locale},
    {"GS", heure_siderale},
    {"GG", decalage},
    {"GVP", dit<nom>},
    {"GVN", dit<version>},
    {"GVD", dit<jour_de_version>},
    {"GVT", dit<heure_de_version>},
    {"D", chemin},
    {"U", change_precision},
    {"Sr", vise_ad, true},
    {"Sd", vise_dec, true},
    {"MS", va},
    {"CM", accorde},
    {"Q", stoppe<true>},
    {"Qn", stoppe<false>},
    {"Qs", stoppe<false>},
    {"Qe", stoppe<false>},
    {"Qw", stoppe<false>},
    {"Mn", pousse<cote::nord>},
    {"Ms", pousse<cote::sud>},
    {"Me", pousse<cote::est>},
    {"Mw", pousse<cote::ouest>},
    {"RG", vitesse<0>},
    {"RC", vitesse<1>},
    {"RM", vitesse<3>},
    {"RS", vitesse<4>},
    {"St", prend, true},
    {"Sg", prend, true},
    {"SL", prend, true},
    {"SG", prend, true},
    {"SC", prend_date, true},
};

std::string repond(liaison& l, std::string_view texte) {
    const auto* c = std::find_if(std::begin(commandes), std::end(commandes), [texte](const commande& x) {
        return x.argument ? texte.starts_with(x.mot) : texte == x.mot;
    });
    return c == std::end(commandes) ? "" : c->f(l, texte.substr(c->mot.size()));
}

bool lettre(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
// Printable, or a byte of the degree sign.
bool admis(char c) { return (c >= ' ' && c <= '~') || c == '\xDF' || c == '\xC2' || c == '\xB0'; }

} // namespace

std::string liaison::recoit(std::string_view octets) {
    std::string reponses;
    for (const char c : octets) {
        if (c == ack) {
            entree_.clear();
            reponses += genre(*this, {});
        } else if (c == '#') {
            if (entree_.size() > 1)
                reponses += repond(*this, std::string_view{entree_}.substr(1));
            entree_.clear();
        } else if (!admis(c) || entree_.size() >= longueur_maximum) {
            entree_.clear(); // the rest is no command until the next colon
        } else if (entree_.ends_with(':') && lettre(c)) {
            entree_ = {':', c}; // no command has a letter behind a colon but its first
        } else if (c == ':' || !entree_.empty()) {
            entree_ += c;
        }
    }
    return reponses;
}

} // namespace planetarium
