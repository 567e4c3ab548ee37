// A machine for tests: nothing sleeps, nothing is drawn, and all that the program asks of it is kept. Making
// one puts the program together in its design state, on a private copy of the delivered data.
#pragma once

#include "base/octets.h"
#include "platform/plateforme.h"
#include "platform/vue.h"
#include "shell/controles.h"
#include "shell/programme.h"

#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace essais {

/// Keeps what is written; a read gives what was written last, or what `presente` holds for the register.
class port_essai : public plateforme::port {
  public:
    std::vector<std::pair<int, int>> ecritures; ///< register and byte, in order
    std::map<int, int> presente;

    void ecrit(int adresse, std::uint8_t valeur) override {
        ecritures.emplace_back(adresse, valeur);
        derniere_[adresse] = valeur;
    }
    std::uint8_t lit(int adresse) override {
        const auto fixe = presente.find(adresse);
        return static_cast<std::uint8_t>(fixe != presente.end() ? fixe->second : derniere_[adresse]);
    }

  private:
    std::map<int, int> derniere_;
};

/// Stands still at `t`.
class horloge_essai : public plateforme::horloge {
  public:
    plateforme::instant t{.annee = 2001, .mois = 8, .jour = 15, .heure = 22};
    plateforme::instant maintenant() override { return t; }
};

/// What ends the process is thrown.
struct fin {
    int statut;
};

class boucle_essai : public plateforme::boucle {
  public:
    std::int64_t attendu = 0; ///< nanoseconds waited for
    int attentes = 0;
    int cessions = 0;
    std::map<shell::minuteur*, int> armes; ///< timers that wait, and for how many milliseconds

    void attend(std::int64_t ns) override {
        attendu += ns;
        ++attentes;
    }
    void cede() override { ++cessions; }
    void arme(shell::minuteur& m, int ms) override { armes[&m] = ms; }
    void desarme(shell::minuteur& m) override { armes.erase(&m); }
    [[noreturn]] void termine(int statut) override { throw fin{statut}; }

    /// Lets a timer come due now; false if it doesn't wait.
    bool tic(shell::minuteur& m) {
        if (armes.erase(&m) == 0)
            return false;
        m.tic();
        return true;
    }
};

/// Paints nothing; picks `choix` in every popup.
class vue_essai : public plateforme::vue {
  public:
    std::vector<std::string> messages;
    shell::entree* choix = nullptr;

    void panneau_change(const shell::panneau&) override {}
    void eleve(const shell::panneau&) override {}
    void repeint(const shell::panneau&) override {}
    void controle_change(const shell::controle&, plateforme::aspect) override {}
    shell::entree* ouvre_menu(shell::entree&, const shell::entree*) override { return choix; }
    void message(const std::string& texte) override { messages.push_back(texte); }
    plateforme::image charge_image(const std::filesystem::path& chemin) override {
        base::lit_fichier(chemin);
        return {.numero = ++images_, .largeur = 16, .hauteur = 16};
    }

  private:
    int images_ = 0;
};

class machine_essai {
  public:
    port_essai port;
    horloge_essai horloge;
    boucle_essai boucle;
    vue_essai vue;

    machine_essai() {
        std::string modele = (std::filesystem::temp_directory_path() / "velmoria-XXXXXX").string();
        if (!mkdtemp(modele.data()))
            std::abort();
        donnees = modele;
        std::filesystem::copy(VELMORIA_DONNEES, donnees, std::filesystem::copy_options::recursive);
        plateforme::courante = {&port, &horloge, &boucle, &vue, donnees};
        programme::construit();
    }
    ~machine_essai() { std::filesystem::remove_all(donnees); }
    machine_essai(const machine_essai&) = delete;
    machine_essai& operator=(const machine_essai&) = delete;

    /// Replaces a data file; `contenu` is UTF-8, with its line ends.
    void fichier(const std::string& nom, const std::string& contenu) const {
        base::ecrit_fichier(donnees / nom, base::vers_1252(contenu));
    }
    std::string fichier(const std::string& nom) const {
        return base::de_1252(base::lit_fichier(donnees / nom));
    }

    std::filesystem::path donnees; ///< the private copy
};

} // namespace essais
