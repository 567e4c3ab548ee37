// The readers of files and texts, each fed with arbitrary bytes by libFuzzer. CIBLE in the environment names
// the one: a reader may refuse, never break.

#include "base/fatale.h"
#include "base/valeurs.h"
#include "bench/port_simule.h"
#include "catalogue/catalogue.h"
#include "fields/Frmnotes_champs.h"
#include "fields/frminterface_champs.h"
#include "frame/programme.h"
#include "machines/virtual/boucle_virtuelle.h"
#include "machines/virtual/scenario.h"
#include "machines/virtual/vue_scenario.h"
#include "remote/planetarium.h"
#include "seam/entete_image.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

namespace {

namespace fs = std::filesystem;

void exige(bool vrai) {
    if (!vrai)
        std::abort();
}

const fs::path donnees{VELMORIA_DONNEES}; // a copy of the delivered ones

// Runs it with a data file replaced, all panels in their design state. A failure of the program's own is a
// good answer.
template <class F> void avec_fichier(const char* nom, std::string_view octets, F&& f) {
    banc::monture monture;
    banc::port_simule port{monture};
    plateforme::boucle_virtuelle boucle;
    std::ostringstream sortie;
    plateforme::vue_scenario vue{sortie, [] { return std::string{"-"}; }};
    plateforme::courante = {&port, &boucle, &boucle, donnees};
    shell::vue_courante = &vue;
    base::installe_gestionnaire([](base::cause, const std::string&) { throw 0; });
    std::ofstream{donnees / nom, std::ios::binary} << octets; // no sync: thousands a second
    programme::construit();
    try {
        f();
    } catch (int) {
    }
}

// The first byte chooses the separators, the next ones the readings, over and over.
void reglages(std::string_view octets) {
    static constexpr std::array lectures{&valeurs::lecteur::champ, &valeurs::lecteur::ligne,
                                         &valeurs::lecteur::texte_entre_guillemets, &valeurs::lecteur::texte};
    if (octets.size() < 9)
        return;
    avec_fichier("essai.ini", octets.substr(9), [octets] {
        using valeurs::separateurs;
        valeurs::lecteur f{plateforme::fichier_donnees("essai.ini"),
                           (octets[0] & 1) ? separateurs::virgule_ou_blanc : separateurs::virgule};
        for (std::size_t i = 0; !f.fini(); ++i) {
            const int avant = f.lues();
            const auto choix = static_cast<unsigned>(octets[1 + i % 8]) & 7U;
            if (choix < lectures.size())
                (f.*lectures[choix])();
            else
                choix < 6 ? static_cast<void>(f.nombre16()) : static_cast<void>(f.nombre32());
            exige(f.lues() == avant + 1); // every reading takes one value
        }
    });
}

// What was loaded and saved is loaded again as the same text.
void notes(std::string_view octets) {
    avec_fichier("notes.txt", octets, [] {
        const auto lu = Frmnotes::txtnotes.lit();
        Frmnotes::Picturesave.appuie();
        Frmnotes::fiche.decharge();
        exige(Frmnotes::txtnotes.lit() == lu);
    });
}

void catalogues(std::string_view octets) {
    avec_fichier("messier.cat", octets, [] {
        catalogue::table<catalogue::objets_panneau> t;
        const auto noms = catalogue::charge("messier.cat", t);
        exige(noms.size() == static_cast<std::size_t>(t.nombre) && noms.size() <= catalogue::objets_panneau);
        for (std::size_t i = 0; i < noms.size(); ++i) {
            catalogue::texte_ad(catalogue::partage(t.ad[i]));
            catalogue::texte_dec_objet(t.dec[i].reel());
            catalogue::texte_dec_etoile(t.dec[i].reel());
            catalogue::lettregrecque(noms[i]);
        }
    });
}

// Lines that start motions, take long or copy folders are left out; so is all that could reach beyond the
// private folder, whatever the reader makes of it.
void scenario(std::string_view octets) {
    std::istringstream entree{std::string{octets}};
    std::string gardees;
    for (std::string l; std::getline(entree, l);) {
        bool exclue = l.find("fichier") != l.npos && l.find_first_of("./") != l.npos;
        for (const char* mot : {"clic", "double", "droit", "relache", "avance", "demarre", "donnees"})
            exclue = exclue || l.find(mot) != l.npos;
        if (!exclue)
            gardees += l + '\n';
    }
    std::istringstream lignes{gardees};
    std::ostringstream sortie;
    std::ostringstream explications;
    const int statut =
        plateforme::joue({lignes, "fuzz", donnees / "img", donnees / "img", sortie, explications});
    exige((statut == 0) == explications.str().empty()); // every refusal is explained, and nothing else
}

// Whatever a client sends, in pieces of whatever length, the next good command is answered.
void client(std::string_view octets) {
    avec_fichier("notes.txt", {}, [octets] {
        frminterface::barequa.visible(true);
        planetarium::liaison l{1};
        for (std::size_t i = 0; i < octets.size();) {
            const auto n = static_cast<unsigned char>(octets[i]) % 16U;
            l.recoit(octets.substr(i + 1, n));
            i += n + 1;
        }
        exige(l.recoit("#:GVP#").ends_with("Velmoria#"));
        planetarium::arrete(true);
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    static const std::map<std::string, void (*)(std::string_view)> cibles = {{"reglages", reglages},
                                                                             {"notes", notes},
                                                                             {"catalogues", catalogues},
                                                                             {"scenario", scenario},
                                                                             {"planetarium", client}};
    static const auto essaie = cibles.at(std::getenv("CIBLE"));
    essaie({reinterpret_cast<const char*>(octets), taille});
    return 0;
}
