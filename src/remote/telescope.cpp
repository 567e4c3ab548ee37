#include "remote/telescope.h"

#include "base/nombre.h"
#include "base/valeurs.h"
#include "drive/position.h"
#include "fields/frmDepl_champs.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "fields/frminterface_champs.h"
#include "sky/calendrier.h"
#include "sky/conversion.h"
#include "sky/heure.h"
#include "sky/horloge_equivalente.h"
#include "sky/temps_sideral.h"
#include "slewing/etat_pointage.h"

#include <array>
#include <cmath>
#include <fstream>

namespace planetarium {

namespace fs = std::filesystem;

namespace {

constexpr int secondes_par_jour = 86400;
constexpr double unites_par_degre = 600; // of the catalogues, and by hour

// The number in a field, if it lies within these bounds: an observer may type anything. No figure a panel
// needs is longer, and no shorter one without an exponent is beyond a double.
std::optional<double> chiffre(std::string_view texte, double min, double max) {
    constexpr std::size_t longueur = 40;
    if (texte.size() > longueur || texte.find_first_of("eE") != std::string_view::npos)
        return std::nullopt;
    const double x = base::nombre(texte, "planétarium");
    return x >= min && x <= max ? std::optional{x} : std::nullopt;
}

// Longitude and latitude as the settings hold them: degrees and minutes, the degrees' sign not reaching the
// minutes.
std::optional<site> lieu_de(const std::array<std::string, 4>& textes) {
    const auto deg = chiffre(textes[0], -360, 360);
    const auto min = chiffre(textes[1], -60, 60);
    const auto latdeg = chiffre(textes[2], -90, 90);
    const auto latmin = chiffre(textes[3], -60, 60);
    if (!deg || !min || !latdeg || !latmin || std::abs(*latdeg + *latmin / 60) > 90)
        return std::nullopt;
    return site{*deg + *min / 60, *latdeg + *latmin / 60};
}

// Read again only when the file has changed: a client may ask as often as it likes.
std::optional<site> lieu_du_fichier() {
    static fs::path lu;
    static fs::file_time_type quand;
    static std::optional<site> trouve;
    const auto chemin = plateforme::fichier_donnees("config_altaz.ini");
    std::error_code erreur;
    const auto date = fs::last_write_time(chemin, erreur);
    if (erreur)
        return std::nullopt;
    if (chemin != lu || date != quand) {
        lu = chemin;
        quand = date;
        trouve = std::nullopt;
        if (!fs::is_regular_file(chemin, erreur) || !std::ifstream{chemin})
            return trouve;
        valeurs::lecteur f{chemin};
        std::array<std::string, 4> textes;
        std::size_t n = 0;
        for (; n < textes.size() && !f.fini(); ++n)
            textes[n] = f.texte();
        trouve = n == textes.size() ? lieu_de(textes) : std::nullopt;
    }
    return trouve;
}

bool panneau_d_horloge() { return mode() == monture::altazimutale && frmcoord::fiche.est_charge(); }

// Local sidereal time by the almanac's value on the clock panel; none as long as nothing has read it.
std::optional<double> sideral_du_panneau() {
    if (!panneau_d_horloge() || frmcoord::txtessai.regarde().texte.empty())
        return std::nullopt;
    const auto t0 = chiffre(frmcoord::txtessai.regarde().texte, 0, secondes_par_jour);
    const auto h = chiffre(frmcoord::txth.regarde().texte, -48, 48);
    const auto m = chiffre(frmcoord::txtmin.regarde().texte, 0, 60);
    const auto s = chiffre(frmcoord::txts.regarde().texte, 0, 60);
    const auto ms = chiffre(frmcoord::txtms.regarde().texte, -32768, 32767);
    const auto ici = lieu();
    if (!t0 || !h || !m || !s || !ms || !ici)
        return std::nullopt;
    return general::tempsecoule(*h, *m, *s, base::entier16{*ms, "txtms"}) + ici->longitude * 240 + *t0;
}

std::optional<general::place> reticule() {
    const double ad = pointing::reticulead + pointing::cheminad.parcouru();
    const double dec = pointing::reticuledec + pointing::chemindec.parcouru();
    return general::place{ad / unites_par_degre, dec / unites_par_degre};
}

std::optional<general::place> place_du_ciel() {
    const auto tsl = sideral_du_panneau();
    const auto ici = lieu();
    if (!tsl || !ici)
        return std::nullopt;
    return general::depuis_horizon(general::posaz, general::posalt, ici->latitude, *tsl);
}

} // namespace

monture mode() {
    if (frminterface::barequa.regarde().visible)
        return monture::equatoriale;
    return frminterface::baraltaz.regarde().visible ? monture::altazimutale : monture::aucune;
}

bool raquette() { return frminterface::Timer.regarde().marche; }
bool pointage_en_cours() { return frmDepl::fiche.est_charge(); }

std::optional<general::place> position(std::int64_t date) {
    const auto p = mode() == monture::equatoriale ? reticule() : place_du_ciel();
    return p ? std::optional{general::vers_la_date(*p, date)} : std::nullopt;
}

std::optional<horizontale> horizon() {
    if (!sideral_du_panneau() || std::abs(general::posalt) > 90 * 3600)
        return std::nullopt;
    return horizontale{general::posaz / 3600, general::posalt / 3600};
}

std::optional<site> lieu() {
    using namespace frmconfig;
    if (!fiche.est_charge())
        return lieu_du_fichier();
    return lieu_de({txtdegre.regarde().texte, txtmin.regarde().texte, txtlatdeg.regarde().texte,
                    txtlatmin.regarde().texte});
}

std::optional<heure> maintenant() {
    const int choisi = general::decalageheure.valeur();
    if (!panneau_d_horloge()) {
        const auto civil = plateforme::maintenant();
        const int decalage = choisi != 0 ? choisi : plateforme::decalage_du_mois(civil.mois);
        return heure{plateforme::depuis_date(civil) - decalage * 3'600'000LL, decalage};
    }
    const auto h = chiffre(frmcoord::txth.regarde().texte, 0, 24);
    const auto m = chiffre(frmcoord::txtmin.regarde().texte, 0, 60);
    const auto s = chiffre(frmcoord::txts.regarde().texte, 0, 60);
    const int jour = frmcoord::cbjour.regarde().position;
    const int mois = frmcoord::cbmois.regarde().position;
    if (!h || !m || !s || jour < 0 || mois < 0)
        return std::nullopt;
    const auto minuit = plateforme::depuis_date(
        {.annee = 2000 + frmcoord::cbannee.regarde().position, .mois = mois + 1, .jour = jour + 1});
    return heure{minuit + std::llround((*h * 3600 + *m * 60 + *s) * 1000), choisi};
}

std::optional<double> temps_sideral() {
    if (mode() == monture::altazimutale) {
        const auto l = sideral_du_panneau();
        return l ? std::optional{std::fmod(std::fmod(*l, secondes_par_jour) + secondes_par_jour,
                                           secondes_par_jour)}
                 : std::nullopt;
    }
    const auto t = maintenant();
    const auto ici = lieu();
    if (!t || !ici)
        return std::nullopt;
    return std::fmod(general::sideral_greenwich(t->tu) + ici->longitude * 240 + secondes_par_jour,
                     secondes_par_jour);
}

} // namespace planetarium
