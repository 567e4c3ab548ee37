// The bench as one thing: port, mount, recording and the lateness of half-pulses, on the machine's monotonic
// clock.
#pragma once

#include "bench/monture.h"
#include "bench/port_simule.h"
#include "bench/vcd.h"

#include <cstdint>
#include <filesystem>
#include <functional>

namespace banc {

/// `maintenant` gives nanoseconds that never run backwards.
class etabli final : public temoin {
  public:
    explicit etabli(std::function<std::int64_t()> maintenant);
    ~etabli() override;

    monture& mount() { return monture_; }
    port_simule& port() { return port_; }
    std::int64_t maintenant() const { return maintenant_(); }

    // ---- lateness of half-pulses: from a write to the end of the yield that follows its wait

    /// A wait of this nominal length begins.
    void commence_attente(std::int64_t ns) {
        debut_ = maintenant_();
        nominal_ = ns;
    }
    /// A yield has ended: the half-pulse it belongs to is over.
    void cession_finie() {
        if (debut_ < 0)
            return;
        const auto retard = maintenant_() - debut_ - nominal_;
        debut_ = -1;
        if (retard > pire_retard_)
            pire_retard_ = retard;
    }
    /// Nanoseconds by which the worst half-pulse since the last reset outlasted its wait.
    std::int64_t pire_retard() const { return pire_retard_; }
    void oublie_retard() { pire_retard_ = 0; }

    // ---- recording

    /// False if the file cannot be opened.
    [[nodiscard]] bool enregistre(const std::filesystem::path& chemin);
    bool enregistre_encore() const { return vcd_.ouvert(); }
    /// What was recorded so far reaches the file.
    void rince() { vcd_.rince(); }
    /// False if something could not be written.
    bool cesse_d_enregistrer();

    void lignes(std::uint8_t donnees, std::uint8_t controle) override;

  private:
    std::function<std::int64_t()> maintenant_;
    monture monture_;
    port_simule port_{monture_};
    vcd vcd_;
    std::int64_t debut_ = -1;
    std::int64_t nominal_ = 0;
    std::int64_t pire_retard_ = 0;
};

} // namespace banc
