// Where the parallel port's registers lie: 888 on the PCs of old, elsewhere on a card of today.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace plateforme {

/// The kernel's folders, and how the lock of a port is called before its address; tests give others.
struct racines {
    std::filesystem::path proc = "/proc";
    std::filesystem::path sys = "/sys";
    std::filesystem::path dev = "/dev";
    std::string verrou = "velmoria-port-";
};

/// A parallel port that the kernel knows.
struct port_connu {
    int base = 0;    ///< address of the data register
    int numero = -1; ///< N of /dev/parportN, -1 while no driver holds it
    friend bool operator==(const port_connu&, const port_connu&) = default;
};

/// The ports of the kernel's parallel port driver, then those that it has no driver for: PCI devices of class
/// 0x0701, by their first range of input and output addresses. Each base once.
std::vector<port_connu> ports_connus(const racines& r);

/// The port to take.
struct choix_de_port {
    port_connu port;
    std::string avis;  ///< a line for standard error, empty for none
    std::string refus; ///< why the wished address is not accepted; empty if it is
};

/// The wished base, if it is 0x278, 0x378, 0x3BC or one of `connus`: the right to raw ports must not be lent
/// to other devices. Without a wish 888 if it is among `connus` or they are none or several, else the only
/// one.
choix_de_port choisit_port(const std::vector<port_connu>& connus, std::optional<int> voulue);

/// An address as an observer writes it, "888" or "0x378"; none if it is no number from 0 to 65535.
std::optional<int> lit_adresse(const std::string& texte);

/// "0x378".
std::string adresse(int base);

} // namespace plateforme
