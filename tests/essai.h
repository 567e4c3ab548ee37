// For tests of failures: a fatal failure is thrown. And a program on a machine of numbers: virtual time, the
// simulated port, a view that only remembers, and a private copy of the delivered data.
#pragma once

#include "base/fatale.h"
#include "base/fichier.h"
#include "base/octets.h"
#include "base/provisoire.h"
#include "bench/monture.h"
#include "bench/port_simule.h"
#include "frame/programme.h"
#include "machines/virtual/boucle_virtuelle.h"
#include "store/vue.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace essais {

struct echec {
    base::cause cause;
    std::string detail;
};

/// Runs `f` and expects it to fail for the cause given; gives the detail of the message.
template <class F> std::string attend_echec(base::cause attendue, F&& f) {
    const auto avant = base::installe_gestionnaire([](base::cause c, const std::string& d) {
        throw echec{c, d};
    });
    std::string detail;
    try {
        f();
        ADD_FAILURE() << "no failure, where this one was due: " << base::libelle(attendue);
    } catch (const echec& e) {
        EXPECT_EQ(base::libelle(e.cause), base::libelle(attendue));
        detail = e.detail;
    }
    base::installe_gestionnaire(avant);
    return detail;
}

/// A folder of the test's own.
using dossier_prive = base::dossier_provisoire;

class vue_muette final : public shell::vue {
  public:
    void panneau_change(shell::panneau&) override {}
    void eleve(shell::panneau&) override {}
    void repeint(shell::panneau&) override {}
    void controle_change(shell::controle&, shell::aspect) override {}
    shell::entree* ouvre_menu(shell::entree&, const shell::entree*) override { return nullptr; }
    void message(const std::string&, shell::titre) override {}
    plateforme::image charge_image(const std::filesystem::path&) override { return {1, 10, 10, 96}; }
};

/// The program put together in its design state, not started, on 2001 August 15 at 22 h.
class machine : private base::dossier_provisoire {
  public:
    machine() {
        std::filesystem::copy(VELMORIA_DONNEES, chemin, std::filesystem::copy_options::recursive);
        boucle.regle_horloge({.annee = 2001, .mois = 8, .jour = 15, .heure = 22});
        plateforme::courante = {&port, &boucle, &boucle, chemin};
        shell::vue_courante = &vue;
        programme::construit();
    }

    /// Replaces a data file; `contenu` is UTF-8, with its line ends.
    void fichier(const std::string& nom, const std::string& contenu) const {
        std::ofstream{chemin / nom, std::ios::binary}
            << base::vers_1252(contenu); // need not outlast a power cut
    }

    banc::monture monture;
    banc::port_simule port{monture};
    plateforme::boucle_virtuelle boucle;
    vue_muette vue;
    const std::filesystem::path& donnees = chemin;
};

class Essai : public testing::Test, protected machine {};

} // namespace essais
