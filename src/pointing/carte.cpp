#include "pointing/carte.h"

#include "pointing/etat_pointage.h"

namespace pointing {

// Five things in this order: the caption of the chart's command ("Initialisation" or "Pointage"), its mode, a
// redraw if the chart has a view already, the panel it serves, its showing. The redraw thus still sees the
// panel before.
void ouvre_carte(operation o, bool altaz) {
    modepointage = o == operation::pointage;
    panneaualtaz = altaz;
}

} // namespace pointing
