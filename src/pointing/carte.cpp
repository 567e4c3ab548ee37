#include "pointing/carte.h"

#include "chart/etat_carte.h"
#include "chart/redessine.h"
#include "fields/frmCercle_champs.h"
#include "slewing/etat_pointage.h"

namespace pointing {

// In this order: a chart with a view is redrawn before it knows for which panel.
void ouvre_carte(operation o, bool altaz) {
    frmCercle::mnuPoint.legende(o == operation::pointage ? "Pointage" : "Initialisation");
    modepointage = o == operation::pointage;
    if (chart::cercleinit)
        chart::redessine();
    panneaualtaz = altaz;
    frmCercle::fiche.montre();
}

} // namespace pointing
