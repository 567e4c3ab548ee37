// Stands for the windows of `velmoria`: main file, port, rights, waits and panels are the program's own, and
// this is the observer, who pushes buttons and reads on paper what the program says.
#include "drive/etat_moteur.h"
#include "fields/frmaltazpilot_champs.h"
#include "fields/frminterface_champs.h"
#include "frame/programme.h"
#include "machines/qt/lance.h"
#include "store/vue.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <initializer_list>

namespace {

using plateforme::Inp32;
using plateforme::Out32;

struct fin {
    int statut;
};

/// Waits for real, knows no timers; does `geste` at the end of the yield that brings `reste` to 0.
class boucle_reelle final : public plateforme::boucle {
  public:
    explicit boucle_reelle(std::function<void(std::int64_t)> attente) : attente_(std::move(attente)) {}
    void attend(std::int64_t ns) override { attente_(ns); }
    void cede() override {
        if (reste > 0 && --reste == 0)
            geste();
    }
    void arme(plateforme::rappel&, int) override {}
    void desarme(plateforme::rappel&) override {}
    [[noreturn]] void termine(int statut) override { throw fin{statut}; }

    int reste = 0;
    std::function<void()> geste;

  private:
    std::function<void(std::int64_t)> attente_;
};

class vue_absente final : public shell::vue {
    void panneau_change(shell::panneau&) override {}
    void eleve(shell::panneau&) override {}
    void repeint(shell::panneau&) override {}
    void controle_change(shell::controle&, shell::aspect) override {}
    shell::entree* ouvre_menu(shell::entree&, const shell::entree*) override { return nullptr; }
    void message(const std::string& texte, shell::titre) override {
        std::printf("boîte : %s\n", texte.c_str());
    }
    plateforme::image charge_image(const std::filesystem::path&) override { return {1, 10, 10, 96}; }
};

/// What the process may still do, if anything: the sets of capabilities of its threads, as the kernel tells
/// them.
void montre_droits() {
    std::string restent;
    for (const auto& fil : std::filesystem::directory_iterator{"/proc/self/task"}) {
        std::ifstream etat{fil.path() / "status"};
        for (std::string ligne; std::getline(etat, ligne);)
            if (ligne.starts_with("Cap") && !ligne.starts_with("CapBnd") &&
                ligne.find_first_not_of("0", 8) < ligne.size())
                restent += " " + ligne;
    }
    if (!restent.empty())
        std::printf("droits :%s\n", restent.c_str());
}

void observe(boucle_reelle& boucle) {
    const auto apres = [&boucle](int pas, std::function<void()> geste) {
        boucle.reste = 2 * pas; // two yields a step
        boucle.geste = std::move(geste);
    };
    const auto jog = [&](shell::champ_bouton& bouton, int pas) {
        apres(pas, [] { frmaltazpilot::deplacement.cmddstop.clic(); });
        bouton.clic();
    };
    const auto relit = [](int registre, std::initializer_list<int> valeurs) {
        std::printf(" ; %d", registre);
        for (const int v : valeurs) {
            Out32(registre, base::entier16{v, "essai"});
            std::printf(" %d", Inp32(registre).valeur());
        }
    };
    const auto scrute = [] {
        frminterface::Timer.tic();
        std::printf(" %d", cmd_moteur::codepaddle.valeur());
    };
    frminterface::barchoix_boutons(2).clic();
    frminterface::baraltaz_boutons(3).clic();
    jog(frmaltazpilot::deplacement.cmdad, 3);
    jog(frmaltazpilot::deplacement.cmdag, 2);
    jog(frmaltazpilot::deplacement.cmdhh, 2);
    jog(frmaltazpilot::deplacement.cmdhb, 1);
    const int relu = Inp32(plateforme::registre_donnees).valeur();

    // No key; then the medium azimuth key, 9, for two steps, played by writing to the lines it would pull, or
    // by who waits for this process to stop, where what is written is not what shows.
    frminterface::baraltaz_boutons(2).clic();
    std::printf("jogs %d %d %d ; raquette", cmd_moteur::compteaz.valeur(), cmd_moteur::comptealt.valeur(),
                relu);
    scrute();
    if (!plateforme::courante.port->raquette_invisible().empty())
        raise(SIGSTOP);
    else
        Out32(plateforme::registre_controle, 9);
    apres(2, [] { Out32(plateforme::registre_controle, 11); });
    scrute();
    scrute();
    std::printf(", %d pas", cmd_moteur::compteaz.valeur());

    relit(plateforme::registre_donnees, {255, 170, 85, 0});
    relit(plateforme::registre_controle, {0, 1, 11});
    std::printf("\n");
    frminterface::Quitter.clic();
}

} // namespace

namespace plateforme::qt {

int refuse(int, char**, const std::string& raison) {
    std::printf("refus : %s\n", raison.c_str());
    return 1;
}

// With VELMORIA_ATTEND, stops before anything is built until it is let go on: so that a second one can be
// tried.
int lance(int, char**, composition c) {
    montre_droits();
    if (std::getenv("VELMORIA_ATTEND"))
        raise(SIGSTOP);
    boucle_reelle boucle{c.attente};
    vue_absente vue;
    courante = {&c.port, &c.horloge, &boucle, VELMORIA_DONNEES};
    shell::vue_courante = &vue;
    programme::construit();
    if (!c.avis.empty())
        std::printf("boîte : %s\n", c.avis.c_str());
    try {
        programme::demarre();
        observe(boucle);
    } catch (const fin& f) {
        return f.statut;
    }
    std::printf("le programme n'a pas quitté\n");
    return 2;
}

} // namespace plateforme::qt
