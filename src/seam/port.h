// The parallel port as the program sees it: two byte-wide registers of a PC.
//
//   register 888 (data, written)              register 890 (control, written)
//   bit 0  value 1   step, altitude             1   computer mode
//   bit 1  value 2   direction, altitude        11  paddle mode; reads back so while no key is down
//   bit 2  value 4   step, azimuth              0   released
//   bit 3  value 8   direction, azimuth
//
// One pulse is two writes. The direction stands alone first, then the step line rises with it:
//
//   direction  ______/~~~~~~~~~~~~~~~~~~~~~
//   step       ______________/~~~~~~~~\____
//                    write 1  write 2  write 1 of the next pulse
//
// The motor steps on the rising edge. Nothing lowers the line after the last pulse.
#pragma once

#include <cstdint>
#include <string>

namespace plateforme {

inline constexpr int registre_donnees = 888;
inline constexpr int registre_controle = 890;

inline constexpr int ligne_pas_alt = 1; ///< of the data register
inline constexpr int ligne_sens_alt = 2;
inline constexpr int ligne_pas_az = 4;
inline constexpr int ligne_sens_az = 8;

inline constexpr int controle_libre = 0; ///< values of the control register
inline constexpr int controle_ordinateur = 1;
inline constexpr int controle_raquette = 11;

/// One parallel port, real or simulated. Addresses other than the two registers above are never used.
class port {
  public:
    virtual ~port() = default;
    /// Puts the byte on the register; every write goes out, also one that changes nothing.
    virtual void ecrit(int adresse, std::uint8_t valeur) = 0;
    /// The byte the register shows now; never a remembered one.
    virtual std::uint8_t lit(int adresse) = 0;
    /// False where writes go nowhere.
    virtual bool atteint() const { return true; }
    /// Why no paddle key can be seen through this port, for the observer; empty if they are seen.
    virtual std::string raquette_invisible() const { return {}; }
};

} // namespace plateforme
