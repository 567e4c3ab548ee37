// A recording of the port's lines as a value change dump (IEEE 1364), which any wave viewer opens.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <vector>

namespace banc {

/// Eight data lines (pas_alt, sens_alt, pas_az, sens_az, d4 to d7) and the control register as a vector of
/// four, at 1 ns. Memory is one buffer of fixed size. Nothing here is fatal: a recording that cannot be
/// opened or written ends, and says so by false.
class vcd {
  public:
    vcd() = default;
    ~vcd() { ferme(); }
    vcd(const vcd&) = delete;
    vcd& operator=(const vcd&) = delete;

    /// Starts a recording, after ending one under way: `debut_ns` becomes its time 0, with the lines as they
    /// stand there.
    [[nodiscard]] bool ouvre(const std::filesystem::path& chemin, std::int64_t debut_ns, std::uint8_t donnees,
                             std::uint8_t controle);
    /// False too once something could not be written.
    bool ouvert() const { return fichier_ != nullptr && !perdu_; }

    /// The lines at this time; only what changed is written. A change that is not later than the one before
    /// is put 1 ns after it, so that no pulse vanishes in an instant of no length. False without a recording.
    bool note(std::int64_t instant_ns, std::uint8_t donnees, std::uint8_t controle);

    /// Hands on to the file what is held: a reader finds it there now.
    void rince();

    /// Writes what is still held and closes; does nothing without a recording. False if any byte since
    /// `ouvre` did not reach the file.
    bool ferme();

  private:
    void ajoute(const char* texte, std::size_t longueur);
    void vide();

    std::FILE* fichier_ = nullptr;
    bool perdu_ = false;
    std::vector<char> tampon_;
    std::int64_t debut_ = 0;
    std::int64_t dernier_ = 0; // time of the last change, from the beginning of the recording
    unsigned donnees_ = 0;
    unsigned controle_ = 0;
};

} // namespace banc
