// The way from the pointing panels to the sky chart.
#pragma once

namespace pointing {

/// What a pick on the chart does: an alignment, or a slew.
enum class operation { initialisation, pointage };

/// Opens the chart for a panel, the alt-azimuth one or the other.
void ouvre_carte(operation o, bool altaz);

} // namespace pointing
