// Windows stay where the observer put them, from run to run.
#pragma once

class QWidget;

namespace plateforme::qt {

/// Puts a window of its own where it was left, back on a screen if that has changed; false if it was never
/// moved. From then on a move or another size, once it has lasted, is remembered under the window's name.
bool reprend_sa_place(QWidget& w);

} // namespace plateforme::qt
