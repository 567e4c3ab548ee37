// What the process may do to the machine and to other programs on it: the lock on the real port, and the
// giving up of privileges once the port is held.
//
// Order at the head of `main`, before any window or file: `prend_port`, `verrouille_port` if the port is
// real, `abandonne_droits`.
#pragma once

#include <string_view>

namespace plateforme {

/// For the observer who starts a second program on the real port; the caller shows it and ends with status 1.
inline constexpr std::string_view message_port_occupe =
    "Le port parallèle est déjà tenu par un autre programme Velmoria : quittez-le avant de lancer celui-ci.";

/// Locks the real port for the rest of the run; false if another program of this machine holds it (or if the
/// lock cannot be had at all: two programs on one port send the telescope astray).
///
/// The lock is a Unix socket bound to an abstract name. The kernel lets the name go when the process ends,
/// however it ends, so no stale lock file is left to remove; and it is the same for all users, where a file
/// lock would need a place that all may write. Programs in another network namespace (a container) do not see
/// it.
bool verrouille_port();

/// The same with another name, at most 100 bytes.
bool verrouille(std::string_view nom);

/// Gives up every capability of the calling thread: effective, permitted, inheritable, ambient, and the
/// bounding set where that is allowed. To be called while there is no other thread. The port stays in hand:
/// `ioperm` and an open `/dev/port` ask for the capability only once. The user identity is left alone. False
/// if a capability remains.
bool abandonne_droits();

} // namespace plateforme
