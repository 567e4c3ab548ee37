// Arcseconds a pulse is worth on the mount in use, from its settings file.
#pragma once

namespace banc {

struct unites {
    double az = 0;
    double alt = 0;
};

/// Those of the mount whose toolbar is visible, read from its file at each call; 0 where no toolbar is, or
/// where file or figures give none. Nothing here is fatal, and no panel is loaded.
unites unites_du_mode();

} // namespace banc
