// The parallel port on the bench: the register pair as a PC has it, with a hand paddle hanging on it.
#pragma once

#include "bench/monture.h"
#include "seam/port.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace banc {

struct ecriture {
    int adresse;
    std::uint8_t valeur;
    bool operator==(const ecriture&) const = default;
};

/// Is shown the lines after each write and after each key of the paddle, also when none of them changed.
class temoin {
  public:
    virtual ~temoin() = default;
    /// Both registers as they read now.
    virtual void lignes(std::uint8_t donnees, std::uint8_t controle) = 0;
};

/// Hands each data byte to the mount, remembers the last writes, and reads back as the hardware would: the
/// byte written on 888; the four lines that exist on 890. In paddle mode (11 on those lines) the keys decide
/// what the four lines read, and pull lines of 888 up.
class port_simule final : public plateforme::port {
  public:
    static constexpr int sans_touche = plateforme::controle_raquette;
    static constexpr std::size_t memoire = 65536; // writes remembered, a power of two

    /// `m` must outlive the port.
    explicit port_simule(monture& m);

    /// An address other than the two registers is passed over.
    void ecrit(int adresse, std::uint8_t valeur) override;
    /// 255 at any other address, as an empty slot of a PC reads.
    std::uint8_t lit(int adresse) override;

    std::uint8_t donnees() const {
        return static_cast<std::uint8_t>(mode_raquette() ? donnees_ | tire_ : donnees_);
    }
    std::uint8_t controle() const { return mode_raquette() ? touches_ : controle_; }
    bool mode_raquette() const { return controle_ == sans_touche; }

    /// The code the paddle makes from now on, 0 to 255, 11 released: its low four bits stand on the control
    /// lines, the rest on data lines 16 and 128. No paddle pulls 32 or 64, but a code that has them is made
    /// so too, lest it be taken for a key. Gives false, and changes nothing, for a code no byte can show.
    [[nodiscard]] bool presente(int code);
    int code() const { return touches_ + tire_; }

    /// The last n writes, oldest first; fewer if there were fewer since the start or `oublie_ecritures`, or
    /// if n is beyond `memoire`.
    std::vector<ecriture> dernieres(std::size_t n) const;
    void oublie_ecritures() { oubliees_ = total_; }
    /// Writes since the start.
    std::uint64_t total_ecritures() const { return total_; }

    /// One observer at a time, which must outlive its watch; nullptr for none.
    void observe(temoin* t) { temoin_ = t; }

  private:
    std::uint8_t donnees_ = 0;
    std::uint8_t controle_ = 0;
    std::uint8_t touches_ = sans_touche;
    std::uint8_t tire_ = 0;
    monture& monture_;
    temoin* temoin_ = nullptr;
    std::uint64_t total_ = 0;
    std::uint64_t oubliees_ = 0;
    std::vector<std::uint16_t> anneau_; // value, plus 256 for the control register
};

} // namespace banc
