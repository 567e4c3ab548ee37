#include "singe.h"

#include "base/octets.h"
#include "drive/position.h"
#include "fields/frmaltazsuivi_champs.h"
#include "frame/programme.h"
#include "machines/virtual/meneur.h"
#include "seam/plateforme.h"
#include "store/vue.h"

#include <cmath>
#include <csignal>
#include <cstring>
#include <map>
#include <sstream>
#include <streambuf>
#include <sys/mman.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace singe {

namespace fs = std::filesystem;

namespace {

constexpr int ecritures_maximum = 1'000'000; // a longer run proves no more
constexpr int secondes_maximum = 12;         // and neither does a slower one

// What the child leaves behind, also when it dies.
struct bilan {
    char lignes[1 << 22];
    std::size_t longueur;
    char faute[4096];
    char fin[4096];
    char comptes[16384];
    bool fini;
};

bilan* b = nullptr; // shared with the child
const shell::entree* popup = nullptr;
plateforme::boucle_virtuelle* virtuelle = nullptr;
bool vivant = true;                 // the program, until its end of whatever kind
std::map<std::string, int> comptes; // what ran in which motion's yields
int ecritures = 0;
int par_valeur[256];                 // on the data register
volatile std::int64_t temps_vu = -1; // virtual time at the last look of the watchdog
int coups = 0;

template <std::size_t N> void note(char (&ou)[N], const std::string& s) {
    std::strncpy(ou, s.c_str(), N - 1);
}

[[noreturn]] void termine() {
    for (int v = 0; v < 256; ++v)
        if (par_valeur[v] > 0)
            comptes["écritures 888:" + std::to_string(v)] = par_valeur[v];
    std::string texte;
    for (const auto& [quoi, n] : comptes)
        texte += quoi + '\t' + std::to_string(n) + '\n';
    note(b->comptes, texte);
    b->fini = true;
    std::_Exit(0);
}

void juge(const std::string& faute) {
    if (faute.empty())
        return;
    note(b->faute, faute);
    termine();
}

void verifie_position() {
    if (!std::isfinite(general::posaz) || !std::isfinite(general::posalt))
        juge("position qui n'est pas un nombre");
}

struct port_espion final : plateforme::port {
    plateforme::port& vrai = *plateforme::courante.port;
    void ecrit(int adresse, std::uint8_t valeur) override {
        juge(regles::ecriture(adresse, valeur));
        verifie_position();
        vrai.ecrit(adresse, valeur);
        if (adresse == plateforme::registre_donnees)
            ++par_valeur[valeur];
        if (++ecritures >= ecritures_maximum)
            throw plateforme::fin_du_scenario{};
    }
    std::uint8_t lit(int adresse) override { return vrai.lit(adresse); }
};

// Counts what runs in the yields of motions, and sees the end of the program.
struct boucle_espion final : plateforme::boucle {
    int joues = 0; // nested yields' own included
    void attend(std::int64_t ns) override { virtuelle->attend(ns); }
    void cede() override {
        const int attendaient = virtuelle->ordres();
        const int dessous = joues;
        virtuelle->cede();
        const int n = attendaient - virtuelle->ordres() - (joues - dessous);
        if (n <= 0)
            return;
        joues += n;
        comptes["ordres dans les cessions de " + regles::mouvement()] += n;
    }
    void arme(shell::minuteur& m, int ms) override { virtuelle->arme(m, ms); }
    void desarme(shell::minuteur& m) override { virtuelle->desarme(m); }
    [[noreturn]] void termine(int statut) override {
        vivant = false;
        virtuelle->termine(statut);
        std::abort();
    }
};

// Knows which popup is open; the rest is the scenario's own view.
struct vue_espion final : plateforme::vue {
    plateforme::vue& vraie = *plateforme::courante.vue;
    void panneau_change(const shell::panneau& p) override { vraie.panneau_change(p); }
    void eleve(const shell::panneau& p) override { vraie.eleve(p); }
    void repeint(const shell::panneau& p) override { vraie.repeint(p); }
    void controle_change(const shell::controle& c, plateforme::aspect a) override {
        vraie.controle_change(c, a);
    }
    shell::entree* ouvre_menu(shell::entree& racine, const shell::entree* defaut) override {
        popup = &racine;
        auto* choisie = vraie.ouvre_menu(racine, defaut);
        popup = nullptr;
        return choisie;
    }
    void message(const std::string& texte) override { vraie.message(texte); }
    plateforme::image charge_image(const fs::path& chemin) override { return vraie.charge_image(chemin); }
};

void verifie_au_repos() {
    verifie_position();
    for (const auto* p : programme::registre().panneaux)
        if (p->est_visible() && !p->est_charge())
            juge("panneau montré sans être chargé, " + std::string{p->nom()});
}

// Hands out the lines one by one, and looks at the program between them.
class souffleur final : public std::streambuf {
  public:
    explicit souffleur(const source& s) : source_(s) {}

  protected:
    int_type underflow() override {
        if (!virtuelle) {
            static port_espion port;
            static boucle_espion boucle;
            static vue_espion vue;
            virtuelle = dynamic_cast<plateforme::boucle_virtuelle*>(plateforme::courante.boucle);
            plateforme::courante.port = &port;
            plateforme::courante.boucle = &boucle;
            plateforme::courante.vue = &vue;
        }
        vivant = vivant && !shell::est_gele();
        if (!vivant)
            return traits_type::eof();
        verifie_au_repos();
        const auto* ouvert = std::exchange(popup, nullptr); // one answer a popup
        ligne_ = source_(ouvert);
        if (ligne_.empty() || b->longueur + ligne_.size() + 1 > sizeof b->lignes)
            return traits_type::eof();
        ligne_ += '\n';
        std::memcpy(b->lignes + b->longueur, ligne_.data(), ligne_.size());
        b->longueur += ligne_.size();
        regles::ligne(ligne_.substr(0, ligne_.size() - 1), virtuelle->temps());
        if (!ligne_.starts_with("a ") && frmaltazsuivi::cmdstop.regarde_texte() == "reprise")
            ++comptes["actes pendant la pause du suivi"];
        setg(ligne_.data(), ligne_.data(), ligne_.data() + ligne_.size());
        return traits_type::to_int_type(ligne_.front());
    }

  private:
    const source& source_;
    std::string ligne_;
};

// Once a second of work: a run may be slow, but time or the port must move.
void chien_de_garde(int) {
    const std::int64_t temps = virtuelle ? virtuelle->temps() : 0;
    const bool bouge = temps != temps_vu;
    temps_vu = temps;
    if (++coups < secondes_maximum)
        return;
    std::strcpy(b->fin, "coupé : lent");
    if (!bouge)
        std::strcpy(b->faute, "le temps n'avance plus");
    b->fini = true;
    std::_Exit(0);
}

[[noreturn]] void joue_dans_l_enfant(const source& lignes, const fs::path& donnees) {
    std::signal(SIGPROF, chien_de_garde);
    const itimerval seconde{{1, 0}, {1, 0}};
    setitimer(ITIMER_PROF, &seconde, nullptr);
    souffleur tampon{lignes};
    std::istream entree{&tampon};
    std::ostringstream sortie;
    std::ostringstream explications;
    const int statut = plateforme::joue({entree, "singe", donnees, donnees, sortie, explications});
    auto dit = explications.str();
    dit = dit.substr(0, dit.find('\n'));
    if (dit.starts_with("singe:"))
        dit = dit.substr(std::min(dit.find(": "), dit.size() - 2) + 2);
    // The private folder's name differs from run to run.
    if (const auto tmp = dit.find("/velmoria-"); tmp != std::string::npos)
        dit.erase(dit.rfind(' ', tmp) + 1, tmp + 16 - dit.rfind(' ', tmp));
    note(b->fin, std::to_string(statut) + (dit.empty() ? "" : " : " + dit));
    if (statut == 3)
        juge(regles::echec(dit));
    // An order's popup may not have opened, or another one.
    else if (statut != 0 && !dit.starts_with("commande inconnue : \"menu\"") &&
             !dit.starts_with("le menu n'a pas") &&
             !(dit.starts_with("un mouvement continue") && regles::rafale_d_un_jour()))
        juge("statut " + std::to_string(statut) + " : " + dit);
    termine();
}

// How it died, and the sanitizer's last word if it has one: two crashes are not one.
std::string sans_bilan(int etat, const std::string& trace) {
    const auto mot = trace.find("SUMMARY: ");
    return (WIFSIGNALED(etat) ? "arrêt brutal, signal " + std::to_string(WTERMSIG(etat))
                              : "arrêt brutal, statut " + std::to_string(WEXITSTATUS(etat))) +
           (mot == std::string::npos ? "" : ", " + trace.substr(mot, trace.find('\n', mot) - mot));
}

} // namespace

verdict joue_sous_surveillance(const source& lignes, const fs::path& donnees) {
    static auto* partage = static_cast<bilan*>(
        mmap(nullptr, sizeof(bilan), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    b = partage;
    b->longueur = 0;
    b->faute[0] = b->fin[0] = b->comptes[0] = 0;
    b->fini = false;
    std::string dossier = (fs::temp_directory_path() / "singe-XXXXXX").string();
    if (b == MAP_FAILED || !mkdtemp(dossier.data()))
        std::abort();
    const auto erreurs = dossier + "/erreurs";
    const pid_t enfant = fork();
    if (enfant == 0) {
        if (setenv("TMPDIR", dossier.c_str(), 1) != 0 || !std::freopen(erreurs.c_str(), "w", stderr))
            std::abort();
        joue_dans_l_enfant(lignes, donnees);
    }
    int etat = 0;
    if (enfant < 0 || waitpid(enfant, &etat, 0) != enfant)
        std::abort();
    verdict v{b->faute, b->fin, base::lit_fichier(erreurs), b->comptes, {}};
    fs::remove_all(dossier);
    if (!b->fini)
        v.faute = sans_bilan(etat, v.trace);
    std::istringstream texte{std::string{b->lignes, b->longueur}};
    for (std::string l; std::getline(texte, l);)
        v.lignes.push_back(l);
    return v;
}

} // namespace singe
