// What the process may do to the machine and to other programs on it: the lock on the real port, and the
// giving up of privileges once the port is held.
//
// Order at the head of `main`, before any window or file: `prend_port`, then whatever needs another right,
// then `abandonne_droits`.
#pragma once

#include <string>
#include <string_view>
#include <sys/types.h>

namespace plateforme {

/// A lock between programs, held until it is destroyed or the process ends; or who holds it.
class verrou {
  public:
    verrou() = default;
    ~verrou();
    verrou(verrou&& autre) noexcept;
    verrou& operator=(verrou&& autre) noexcept;

    bool demande() const { return demande_; }
    bool pris() const { return prise_ >= 0; }
    /// The process that holds it and its user, for a lock not had; process 0 if the system tells neither.
    pid_t tenant() const { return tenant_; }
    uid_t utilisateur() const { return utilisateur_; }

  private:
    friend verrou verrouille(std::string_view nom);
    bool demande_ = false;
    int prise_ = -1;
    pid_t tenant_ = 0;
    uid_t utilisateur_ = 0;
};

/// Asks for the lock of a name, at most 100 bytes: not had if another program of this machine holds it, or if
/// it cannot be had at all (two programs on one port send the telescope astray).
///
/// The lock is a Unix socket bound to an abstract name. The kernel lets the name go when the process ends,
/// however it ends, so no stale lock file is left to remove; and it is the same for all users, where a file
/// lock would need a place that all may write. Programs in another network namespace (a container) do not see
/// it.
verrou verrouille(std::string_view nom);

/// For the observer who starts a second program on the real port; the caller shows it and ends with status 1.
std::string message_port_occupe(const verrou& v);

/// Why a program ends at once that could not give up its rights.
inline constexpr std::string_view message_droits_gardes =
    "Le programme ne peut pas rendre ses droits, et s'arrête.";

/// True if the calling thread may raise this capability.
bool a_le_droit(int capacite);

/// Gives up every capability of the calling thread: effective, permitted, inheritable, ambient, and the
/// bounding set where that is allowed. Other threads keep theirs. The port stays in hand: `ioperm` and an
/// open file ask for the capability only once. The user identity is left alone. False if a capability
/// remains: the program must end, before any window.
[[nodiscard]] bool abandonne_droits();

/// The same for all but one capability, which stays permitted and is not in force.
[[nodiscard]] bool garde_un_droit(int capacite);

/// Puts a capability that is permitted in force, or no capability at all (-1). False if the kernel refuses.
[[nodiscard]] bool met_en_vigueur(int capacite);

} // namespace plateforme
