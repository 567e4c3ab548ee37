#include "frame/frmaide.h"

#include "fields/frmaide_champs.h"
#include "frame/aide.h"

namespace frmaide {

void branche() {
    fiche.au_chargement([] { Label1.legende(aide::adresse()); });
    cmdok1.au_clic([] { fiche.decharge(); });
}

} // namespace frmaide
