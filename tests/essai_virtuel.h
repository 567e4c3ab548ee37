// A program on a machine of numbers: virtual time, the simulated port, a view that only remembers, and a
// private copy of the delivered data.
#pragma once

#include "bench/monture.h"
#include "bench/port_simule.h"
#include "platform/virtuelle/boucle_virtuelle.h"
#include "shell/programme.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace essais {

class vue_muette final : public plateforme::vue {
  public:
    void panneau_change(const shell::panneau&) override { ++changements; }
    void eleve(const shell::panneau&) override { ++elevations; }
    void repeint(const shell::panneau&) override {}
    void controle_change(const shell::controle&, plateforme::aspect) override { ++changements; }
    shell::entree* ouvre_menu(shell::entree&, const shell::entree*) override { return choix; }
    void message(const std::string& texte) override { messages.push_back(texte); }
    plateforme::image charge_image(const std::filesystem::path&) override { return photo; }

    int changements = 0;
    int elevations = 0;
    plateforme::image photo{1, 10, 10, 96}; ///< what every picture is
    shell::entree* choix = nullptr;         ///< what the next popups answer
    std::vector<std::string> messages;
};

class Virtuel : public testing::Test {
  protected:
    Virtuel() {
        std::string modele = (std::filesystem::temp_directory_path() / "velmoria-XXXXXX").string();
        if (mkdtemp(modele.data()) == nullptr)
            std::abort();
        dossier = modele;
        std::filesystem::copy(VELMORIA_DONNEES, dossier / "data", std::filesystem::copy_options::recursive);
        plateforme::courante = {&port, &boucle, &boucle, &vue, dossier / "data"};
        programme::construit();
    }
    ~Virtuel() override { std::filesystem::remove_all(dossier); }

    std::filesystem::path dossier;
    banc::monture monture;
    banc::port_simule port{monture};
    plateforme::boucle_virtuelle boucle;
    vue_muette vue;
};

} // namespace essais
