// What the observer's own account remembers from run to run; the data folder knows nothing of it.
#pragma once

namespace plateforme::qt {

/// Whether the night colours were on when they were last changed by their key; false if they never were.
bool nuit_retenue();
void retient_nuit(bool oui);

} // namespace plateforme::qt
