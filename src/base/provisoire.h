// What must not outlive its process: held while it lives, swept away after a process that was killed.
#pragma once

#include <filesystem>
#include <string>

namespace base {

/// Holds an open file or folder, and with it the mark that its owner is alive.
class tenue {
  public:
    tenue() = default;
    /// Takes the descriptor over; -1 holds nothing.
    explicit tenue(int descripteur);
    ~tenue();
    tenue(tenue&& autre) noexcept;
    tenue& operator=(tenue&& autre) noexcept;

    int descripteur() const { return descripteur_; }

  private:
    int descripteur_ = -1;
};

/// Removes everything in this folder whose name begins so and that no process holds.
void balaie(const std::filesystem::path& dossier, const std::string& prefixe);

/// A fresh folder among the temporary ones, gone with its object or, after a kill, with the next such object.
/// Throws `std::filesystem::filesystem_error` where none can be made.
class dossier_provisoire {
  public:
    dossier_provisoire();
    ~dossier_provisoire();
    dossier_provisoire(const dossier_provisoire&) = delete;
    dossier_provisoire& operator=(const dossier_provisoire&) = delete;

    std::filesystem::path chemin;

  private:
    tenue tenue_;
};

} // namespace base
