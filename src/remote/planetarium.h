// The LX200 command set, by which planetariums steer a telescope: text in, text out.
//
// A command runs from `:` to `#`; one byte alone, 06, asks for the kind of mount. Coordinates are those of
// the mean equinox of the present date. What is no command of the set, and a question whose answer is not
// known, is passed over without an answer. Site, date and time are taken and forgotten: the program's panels
// hold them.
#pragma once

#include "remote/actes.h"
#include "sky/calendrier.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace planetarium {

/// The byte that asks for the kind of mount.
inline constexpr char ack = '\x06';

/// The present instant of the sky, milliseconds of universal time since 1970: the true one, where the
/// program's clock shows another night. Of that clock unless it is set.
inline std::function<std::int64_t()> date_du_ciel = [] {
    return plateforme::depuis_date(plateforme::maintenant());
};

/// Why the last act that was asked for was refused; empty if it was not.
inline std::string dernier_refus;

/// One client: what it has chosen, and what has come of its next command.
class liaison {
  public:
    explicit liaison(numero qui) : qui_(qui) {}

    /// Takes what has come, in pieces of any length, and gives the answers. Stops act at once; other acts
    /// wait for `commence`. A command longer than 64 bytes, or with a byte in it that no command has, is
    /// passed over.
    std::string recoit(std::string_view octets);

    // What the commands work on.
    numero qui() const { return qui_; }
    bool longue = false;       ///< precision of the positions
    std::optional<double> ad;  ///< target of the present date, hours
    std::optional<double> dec; ///< degrees

  private:
    numero qui_;
    std::string entree_; // of the command under way, its colon included
};

} // namespace planetarium
