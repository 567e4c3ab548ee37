// The real parallel port of a Linux PC, by raw access to its registers.
//
// The kernel's own parallel-port driver is not used: it answers reads of the control register from a copy of
// what was written, so a paddle key could never be seen.
#pragma once

#include "seam/port.h"

#include <memory>
#include <string>
#include <string_view>

namespace plateforme {

/// What the program got hold of at start.
struct prise {
    std::unique_ptr<port> acces; ///< never null
    bool reel = false;           ///< false: writes go nowhere, reads give 255
    int erreur_ioperm = 0;       ///< errno of the refused call, 0 if it was granted
    int erreur_dev_port = 0;     ///< the same for opening /dev/port, 0 if granted or not tried
};

/// Takes the right to registers 888 to 890: `ioperm`, else `/dev/port`, else the port that is not there. To
/// be called first thing in `main`: threads started later inherit the right, threads that run already do not.
prise prend_port();

/// Why the port is not real, in one French sentence for the observer: the calls that failed with the system's
/// reason, the likely cause, the remedy. Empty if the port is real. Reads a file of the system, so its place
/// is after `abandonne_droits`.
std::string explication(const prise& p);

// The pieces of the above, apart so that tests reach them without a port.

/// Signature of `ioperm`; gives 0, or -1 with errno set.
using appel_ioperm = int (*)(unsigned long premier, unsigned long nombre, int permis);

/// `prend_port` with its two doors given.
prise prend_port(appel_ioperm demande, const char* chemin_dev_port);

/// The sentence of `explication` for two errno values. `verrouillage` is the content of the kernel's lockdown
/// file, such as "none [integrity] confidentiality", empty if there is none; `programme` the executable's
/// path.
std::string explique(int erreur_ioperm, int erreur_dev_port, std::string_view verrouillage,
                     std::string_view programme);

/// What of a byte read is handed on. Only four lines of the control register exist, and PCs differ in what
/// the other bits read: 11 comes back as 0x0B, 0xCB or 0xEB.
constexpr std::uint8_t lignes(int adresse, std::uint8_t octet) {
    return adresse == registre_controle ? static_cast<std::uint8_t>(octet & 0x0F) : octet;
}

} // namespace plateforme
