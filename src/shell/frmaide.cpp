#include "shell/frmaide.h"

#include "shell/aide.h"
#include "shell/frmaide_champs.h"

namespace frmaide {

void branche() {
    fiche.au_chargement([] { Label1.legende(aide::adresse()); });
    cmdok1.au_clic([] { fiche.decharge(); });
}

} // namespace frmaide
