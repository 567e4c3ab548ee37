// The photograph of an object, beside the chart.
#pragma once

#include <string>

namespace frmImage {

/// Wires the panel's events; part of the program's composition.
void branche();

/// Shows the photograph of an object at its natural size, in place of the one before. Fatal: a missing or
/// unreadable file, and a picture wider than 32767 hundredths of a millimetre at its own density.
void montre(const std::string& nom);

} // namespace frmImage
