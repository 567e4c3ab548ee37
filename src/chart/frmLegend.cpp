#include "chart/frmLegend.h"

#include "fields/frmCercle_champs.h"
#include "fields/frmLegend_champs.h"

namespace frmLegend {

void branche() {
    bFin.au_clic([] {
        fiche.decharge();
        frmCercle::Label1.legende(fleches::ouvre); // so that its next click opens the legend again
    });
}

} // namespace frmLegend
