// The parallel port through the kernel's own driver, /dev/parportN: it needs no right but the group `lp`, and
// works where a secure start locks the raw ports. Its price: it answers reads of the control register from a
// copy of what was written, so no paddle key is seen through it.
#pragma once

#include "machines/linux/base_port.h"
#include "seam/port.h"

#include <memory>
#include <string>
#include <vector>

namespace plateforme {

/// What came of asking the kernel for its port.
struct prise_noyau {
    std::unique_ptr<port> acces; ///< null if it was refused
    int erreur = 0;              ///< errno of the refused call, 0 if all was granted
    bool ouvert = false;         ///< the file could be opened: what was refused is the port itself
};

/// Opens /dev/parportN and claims the port for this program alone. The claim makes the kernel write to the
/// control register, never to the data lines.
prise_noyau prend_port_du_noyau(int numero, const racines& r);

/// Who has port N of the kernel, by the names of their drivers ("lp", "ppdev0").
std::vector<std::string> tenants_du_port(int numero, const racines& r);

} // namespace plateforme
