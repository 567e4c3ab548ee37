// The machine a scenario plays on, and the commands it understands.
#pragma once

#include "base/provisoire.h"
#include "bench/monture.h"
#include "bench/port_simule.h"
#include "machines/virtual/boucle_virtuelle.h"
#include "machines/virtual/scenario.h"
#include "machines/virtual/vue_scenario.h"
#include "remote/planetarium.h"

#include <string>
#include <string_view>

namespace plateforme {

/// Thrown by an `attend` that fails.
struct attente_decue {
    std::string raison;
};

/// Thrown by `quitte`.
struct fin_du_scenario {};

/// The simulated port in virtual time: each access takes its microsecond.
class port_virtuel final : public port {
  public:
    port_virtuel(banc::port_simule& p, boucle_virtuelle& b) : port_(p), boucle_(b) {}
    void ecrit(int adresse, std::uint8_t valeur) override {
        boucle_.acces_port();
        port_.ecrit(adresse, valeur);
    }
    std::uint8_t lit(int adresse) override {
        boucle_.acces_port();
        return port_.lit(adresse);
    }

  private:
    banc::port_simule& port_;
    boucle_virtuelle& boucle_;
};

class meneur {
  public:
    explicit meneur(const partie& p);
    ~meneur() = default;
    meneur(const meneur&) = delete;
    meneur& operator=(const meneur&) = delete;

    /// Carries out the next line; false at the end of the scenario.
    bool avance_d_une_ligne();
    /// After the end of the process: only what can still be asked is answered.
    void suit_en_cendres();
    int ligne() const { return numero_; }

  private:
    void execute(const std::string& commande);
    bool prepare(std::string_view mot, const std::string& reste);
    void montre(const std::string& quoi);
    std::string reponse(const std::string& quoi);
    void attend(const std::string& reste);
    void planifie(const std::string& reste);
    void ecrit_fichier(const std::string& reste);
    void copie_donnees(const std::filesystem::path& origine);
    std::string choix_de_menu();
    bool ligne_suivante(std::string& commande);
    std::string montre_monture();

    const partie& partie_;
    banc::monture monture_;
    banc::port_simule simule_{monture_};
    boucle_virtuelle boucle_;
    port_virtuel port_{simule_, boucle_};
    vue_scenario vue_;
    base::dossier_provisoire prive_; // the private copy's folder
    planetarium::liaison liaison_{1};
    bool demarre_ = false;
    int numero_ = 0;
    std::string en_attente_; // a line read ahead
    bool lue_d_avance_ = false;
};

} // namespace plateforme
