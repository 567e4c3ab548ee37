#include "frame/frmcopyright.h"

#include "fields/frmcopyright_champs.h"
#include "frame/aide.h"

namespace frmcopyright {

void branche() {
    fiche.au_chargement([] { Label1.legende(aide::adresse()); });
    cmdok1.au_clic([] { fiche.decharge(); });
}

} // namespace frmcopyright
