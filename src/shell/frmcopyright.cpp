#include "shell/frmcopyright.h"

#include "shell/aide.h"
#include "shell/frmcopyright_champs.h"

namespace frmcopyright {

void branche() {
    fiche.au_chargement([] { Label1.legende(aide::adresse()); });
    cmdok1.au_clic([] { fiche.decharge(); });
}

} // namespace frmcopyright
