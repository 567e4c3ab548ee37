// The real parallel port of a Linux PC, by the first of three roads that is open: the processor's
// instructions
// (`ioperm`), the kernel's file of all ports (/dev/port), the kernel's own parallel port device, through
// which no paddle is seen.
#pragma once

#include "machines/linux/base_port.h"
#include "machines/linux/droits.h"
#include "seam/port.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace plateforme {

/// What was refused on the three roads, each an errno: 0 if it was granted or not tried.
struct refus_des_routes {
    int ioperm = 0;
    int dev_port = 0;
    int parport = 0;                  ///< of /dev/parportN
    bool parport_ouvert = false;      ///< the file opened: it is the port itself that was refused
    std::vector<std::string> tenants; ///< the drivers that have that port
};

/// What the program got hold of at start.
struct prise {
    std::unique_ptr<port> acces; ///< never null
    bool reel = false;           ///< false: writes go nowhere, reads give 255
    choix_de_port choix;
    verrou garde; ///< held while the port is real; not had, the program must not start
    refus_des_routes refus;

    /// False: the address is not a parallel port's, or another program holds the port.
    bool permise() const { return choix.refus.empty() && (garde.pris() || !garde.demande()); }
};

/// Chooses the port, locks it against other programs and takes the right to its registers, or gives the port
/// that is not there. To be called first thing in `main`: threads started later inherit the right, threads
/// that run already do not.
prise prend_port(std::optional<int> voulue);

/// Why the program must not start, or why the port is not real: one French sentence for the observer, with
/// the calls that failed, the system's reason, the likely cause, the remedy. Empty if the port is real. Reads
/// files of the system, so its place is after `abandonne_droits`.
std::string explication(const prise& p);

// The pieces of the above, apart so that tests reach them without a port.

/// Signature of `ioperm`; gives 0, or -1 with errno set.
using appel_ioperm = int (*)(unsigned long premier, unsigned long nombre, int permis);

/// `prend_port` with its doors given.
prise prend_port(appel_ioperm demande, const racines& r, std::optional<int> voulue);

/// The sentence for a port that no road reaches. `verrouillage` is the content of the kernel's lockdown file,
/// such as "none [integrity] confidentiality", empty if there is none; `programme` the executable's path.
std::string explique(const port_connu& p, const refus_des_routes& refus, std::string_view verrouillage,
                     std::string_view programme);

/// What of a byte read is handed on. Only four lines of the control register exist, and PCs differ in what
/// the other bits read: 11 comes back as 0x0B, 0xCB or 0xEB.
constexpr std::uint8_t lignes(int adresse, std::uint8_t octet) {
    return adresse == registre_controle ? static_cast<std::uint8_t>(octet & 0x0F) : octet;
}

} // namespace plateforme
