// Stand-ins until the real port, the bench and the precise waits are in the tree.
#pragma once

#include "platform/port.h"

#include <chrono>
#include <cstdint>

namespace provisoire {

/// Writes go nowhere, reads give 255.
class port_absent final : public plateforme::port {
  public:
    void ecrit(int, std::uint8_t) override {}
    std::uint8_t lit(int) override { return 255; }
};

/// Reads give what was written; no paddle, no mount.
class port_muet final : public plateforme::port {
  public:
    void ecrit(int adresse, std::uint8_t valeur) override {
        (adresse == plateforme::registre_donnees ? donnees_ : controle_) = valeur;
    }
    std::uint8_t lit(int adresse) override {
        return adresse == plateforme::registre_donnees ? donnees_ : controle_;
    }

  private:
    std::uint8_t donnees_ = 0;
    std::uint8_t controle_ = 0;
};

/// Watches the clock until the time is over.
inline void attend(std::int64_t ns) {
    const auto fin = std::chrono::steady_clock::now() + std::chrono::nanoseconds{ns};
    while (std::chrono::steady_clock::now() < fin) {
    }
}

} // namespace provisoire
