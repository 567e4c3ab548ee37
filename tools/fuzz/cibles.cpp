#include "cibles.h"

#include "base/fatale.h"
#include "base/octets.h"
#include "base/valeurs.h"
#include "bench/horloge_banc.h"
#include "bench/port_simule.h"
#include "catalogue/catalogue.h"
#include "fields/Frmnotes_champs.h"
#include "fields/frmcoord_champs.h"
#include "fields/frminterface_champs.h"
#include "frame/programme.h"
#include "machines/virtual/boucle_virtuelle.h"
#include "machines/virtual/entete_image.h"
#include "machines/virtual/scenario.h"
#include "machines/virtual/vue_scenario.h"
#include "sky/almanach.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <sstream>
#include <string>

namespace fuzz {

namespace fs = std::filesystem;

namespace {

struct refus {};

// A folder of this process, taken away at its end.
class dossier {
  public:
    dossier() {
        if (!mkdtemp(chemin_.data()))
            std::abort();
    }
    ~dossier() {
        std::error_code ignoree;
        fs::remove_all(chemin_, ignoree);
    }
    dossier(const dossier&) = delete;
    dossier& operator=(const dossier&) = delete;
    fs::path chemin() const { return chemin_; }

  private:
    std::string chemin_ = (fs::temp_directory_path() / "velmoria-fuzz-XXXXXX").string();
};

// The program on a machine without a screen, its data folder a copy of the delivered one.
struct machine {
    dossier prive;
    banc::monture monture;
    banc::port_simule port{monture};
    plateforme::boucle_virtuelle boucle;
    std::ostringstream sortie;
    plateforme::vue_scenario vue{sortie, [] { return std::string{"-"}; }};

    machine() {
        fs::copy(VELMORIA_DONNEES, prive.chemin() / "data", fs::copy_options::recursive);
        boucle.regle_horloge(
            {.annee = 2001, .mois = 1, .jour = 15, .heure = 12}); // a year that is in the lists
    }
    fs::path donnees() const { return prive.chemin() / "data"; }
};

machine& la_machine() {
    static machine m;
    return m;
}

// Runs it with the file replaced. A failure of the program's own is a good answer.
template <class F> void avec_fichier(const char* nom, std::string_view octets, F&& f) {
    auto& m = la_machine();
    plateforme::courante = {&m.port, &m.boucle, &m.boucle, &m.vue, m.donnees()};
    base::installe_gestionnaire([](base::cause, const std::string&) { throw refus{}; });
    m.sortie.str({});
    base::ecrit_fichier(m.donnees() / nom, octets);
    try {
        f();
    } catch (const refus&) {
    }
}

// The same, with all panels in their design state.
template <class F> void avec_panneaux(const char* nom, std::string_view octets, F&& f) {
    avec_fichier(nom, octets, [&f] {
        programme::construit();
        f();
    });
}

// The first byte chooses the separators, the next ones the readings, over and over.
void reglages(std::string_view octets) {
    if (octets.size() < 9)
        return;
    avec_fichier("essai.ini", octets.substr(9), [octets] {
        using valeurs::separateurs;
        valeurs::lecteur f{plateforme::fichier_donnees("essai.ini"),
                           (octets[0] & 1) ? separateurs::virgule_ou_blanc : separateurs::virgule};
        for (std::size_t i = 0; !f.fini(); ++i) {
            const int avant = f.lues();
            switch (octets[1 + i % 8] & 7) {
            case 0:
                f.texte_entre_guillemets();
                break;
            case 1:
                f.champ();
                break;
            case 2:
                f.nombre();
                break;
            case 3:
                f.nombre16();
                break;
            case 4:
                f.nombre32();
                break;
            case 5:
                f.vrai();
                break;
            case 6:
                f.ligne();
                break;
            default:
                f.texte();
            }
            if (f.lues() != avant + 1)
                std::abort(); // every reading takes one value
        }
    });
}

// What was loaded and saved is loaded again as the same text.
void notes(std::string_view octets) {
    avec_panneaux("notes.txt", octets, [] {
        const auto lu = Frmnotes::txtnotes.lit();
        Frmnotes::Picturesave.appuie();
        Frmnotes::fiche.decharge();
        if (Frmnotes::txtnotes.lit() != lu)
            std::abort();
    });
}

void almanach(std::string_view octets) {
    static const bool pret = [] {
        avec_panneaux("date/2001/janvier/sg0.txt", "", [] { frmcoord::fiche.charge(); });
        return frmcoord::fiche.est_charge(); // and stays so: nothing of it is left over but the month
    }();
    avec_fichier("date/2001/janvier/sg0.txt", octets, [] {
        if (!pret)
            std::abort();
        frmcoord::cbannee.position(1);
        frmcoord::cbmois.position(0);
        for (const int jour : {0, 15, 30}) {
            frmcoord::cbjour.position(jour);
            general::lit_almanach();
        }
    });
}

void catalogues(std::string_view octets) {
    avec_fichier("messier.cat", octets, [] {
        catalogue::table<catalogue::objets_panneau, base::entier32> t;
        const auto noms = catalogue::charge("messier.cat", t);
        if (noms.size() != static_cast<std::size_t>(t.nombre) || noms.size() > catalogue::objets_panneau)
            std::abort();
        for (std::size_t i = 0; i < noms.size(); ++i) {
            catalogue::texte_ad(catalogue::partage(t.ad[i]));
            catalogue::texte_dec_objet(t.dec[i]);
            catalogue::texte_dec_etoile(t.dec[i]);
            catalogue::lettregrecque(noms[i]);
        }
    });
    avec_fichier("vconst.cat", octets, [] { catalogue::lit_traits(); });
    avec_fichier("const.cat", octets, [] { catalogue::constellation("UMA"); });
}

void liste(std::string_view octets) {
    // A name may not lead out of the data folder here: whatever the machine holds would be read.
    if (octets.find("..") == std::string_view::npos && !octets.empty())
        avec_panneaux("img/liste.txt", octets, [] { frminterface::fiche.charge(); });
}

void image(std::string_view octets) {
    const auto i = plateforme::lit_entete(octets);
    if (i && (i->largeur < 1 || i->hauteur < 1 || i->largeur > 65535 || i->hauteur > 65535 || !(i->ppp > 0)))
        std::abort();
}

void date(std::string_view octets) {
    const auto i = banc::lit_date(octets);
    if (i && (i->mois < 1 || i->mois > 12 || i->jour < 1 || i->jour > 31 || i->heure > 23 || i->minute > 59 ||
              i->seconde > 59 || i->milliseconde > 999))
        std::abort();
}

// Lines that start motions, take long or copy folders are left out; so is all that could reach beyond the
// private folder, whatever the reader makes of it.
void scenario(std::string_view octets) {
    static constexpr std::array<std::string_view, 7> exclus = {"clic",   "double",  "droit",  "relache",
                                                               "avance", "demarre", "donnees"};
    std::istringstream entree{std::string{octets}};
    std::string gardees;
    for (std::string l; std::getline(entree, l);) {
        const auto mot = l.substr(std::min(l.find_first_not_of(" \t"), l.size()));
        const bool exclue = std::any_of(exclus.begin(), exclus.end(),
                                        [&mot](std::string_view e) { return mot.starts_with(e); });
        const bool chemin = l.find("fichier") != std::string::npos &&
                            (l.find("..") != std::string::npos || l.find('/') != std::string::npos);
        if (!exclue && !chemin)
            gardees += l + '\n';
    }
    const auto petites_donnees = la_machine().prive.chemin() / "petites";
    if (!fs::exists(petites_donnees)) {
        fs::create_directory(petites_donnees);
        for (const auto& f : fs::directory_iterator{VELMORIA_DONNEES})
            if (f.is_regular_file() && f.path().extension() == ".ini")
                fs::copy(f.path(), petites_donnees);
    }
    std::istringstream lignes{gardees};
    std::ostringstream sortie;
    std::ostringstream explications;
    const int statut = plateforme::joue({.lignes = lignes,
                                         .nom = "fuzz",
                                         .dossier = petites_donnees,
                                         .donnees = petites_donnees,
                                         .sortie = sortie,
                                         .explications = explications});
    if ((statut == 0) != explications.str().empty())
        std::abort(); // every refusal is explained, and nothing else
}

} // namespace

const std::vector<cible>& cibles() {
    static const std::vector<cible> toutes = {
        {"reglages", reglages}, {"notes", notes}, {"almanach", almanach}, {"catalogues", catalogues},
        {"liste", liste},       {"image", image}, {"date", date},         {"scenario", scenario}};
    return toutes;
}

const cible& cible_nommee(std::string_view nom) {
    for (const auto& c : cibles())
        if (c.nom == nom)
            return c;
    std::abort();
}

} // namespace fuzz
