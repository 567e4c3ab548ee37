// The legend of the sky chart, opened and closed from the chart's small label.
#pragma once

namespace frmLegend {

/// Wires the panel's events; part of the program's composition.
void branche();

} // namespace frmLegend
